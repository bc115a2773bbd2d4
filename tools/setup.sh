# shellcheck shell=bash
# Sourced by run and test: what a Debian machine needs, and how it gets there.

build_packages=(
    ca-certificates g++ cmake ninja-build ccache
    qtbase5-dev qtbase5-dev-tools libqt5svg5 libpng-dev zlib1g-dev
    fontconfig libfontconfig-dev fonts-dejavu-core
)
test_packages=(
    xvfb xauth x11-utils xdotool openbox
    clang libclang-rt-dev clang-format clang-tidy clazy lld
)

is_installed() {
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

apt_get() {
    local prefix=()
    ((EUID == 0)) || prefix=(sudo)
    "${prefix[@]}" env DEBIAN_FRONTEND=noninteractive apt-get \
        -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 "$@"
}

# install_missing <package>...: leaves a machine that has them all alone, and so needs no network there.
install_missing() {
    local missing=() package
    if ! command -v dpkg-query >/dev/null; then
        echo "Not a Debian machine; make sure that it has the counterparts of: $*" >&2
        return 0
    fi
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    if ((EUID != 0)) && ! command -v sudo >/dev/null; then
        echo "Neither root nor sudo here; please have these packages installed: ${missing[*]}" >&2
        return 1
    fi
    echo "Installing ${missing[*]}"
    apt_get update
    apt_get install -y --no-install-recommends "${missing[@]}"
}

install_build_needs() {
    local packages=("${build_packages[@]}")
    # npm fetches the font packages; a Node.js that did not come from Debian brings its own.
    command -v npm >/dev/null || packages+=(npm)
    install_missing "${packages[@]}" "$@"
}

install_test_needs() {
    install_build_needs "${test_packages[@]}"
}
