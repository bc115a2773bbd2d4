#!/usr/bin/env bash
# withdisplay.sh <program> [argument...]: runs a test program on a virtual display of its own, with a window manager.
# DISPLAY_DEPTH: bits of its colours, 24 unless given.
# Exits with 77, which means skipped, when the machine lacks a tool; where CI is set that is a failure.
set -euo pipefail

for tool in Xvfb openbox xdotool; do
    command -v "$tool" >/dev/null && continue
    echo "$tool is missing" >&2
    [[ -n ${CI:-} ]] && exit 1
    exit 77
done

work=$(mktemp -d)
children=()
clean_up() {
    ((${#children[@]})) && kill "${children[@]}" 2>/dev/null
    wait
    rm -rf "$work"
}
trap clean_up EXIT

# The server picks a free display and tells its number once it takes connections. No key repeats, however slow
# the machine is to release it.
mkfifo "$work/display" "$work/manager"
Xvfb -displayfd 3 -r -screen 0 "1280x800x${DISPLAY_DEPTH:-24}" -nolisten tcp 3>"$work/display" 2>"$work/server.log" &
children+=($!)
read -rt 60 number <"$work/display" || { cat "$work/server.log" >&2; exit 1; }
export DISPLAY=:$number

# The desktop here is the window manager alone. The user's own would bring its dialogs, and libraries that leak.
export XDG_CURRENT_DESKTOP=openbox
unset QT_QPA_PLATFORMTHEME

# A configuration of its own keeps the user's key bindings out.
mkdir "$work/config"
XDG_CONFIG_HOME=$work/config openbox --sm-disable --startup "sh -c 'echo ready >$work/manager'" 2>"$work/manager.log" &
children+=($!)
read -rt 60 _ <"$work/manager" || { cat "$work/manager.log" >&2; exit 1; }

"$@"
