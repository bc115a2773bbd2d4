#include "fuzz/fuzztarget.h"
#include "fuzz/mutation.h"

#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{
constexpr char mutationsOption[] = "-mutations=";

void test(const QByteArray &bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                           std::size_t(bytes.size()));
}

/// The same mutations at every run: a fault that shows once shows again.
bool replay(const char *path, int mutations)
{
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    test(bytes);
    QRandomGenerator random(1);
    for (int i = 0; i < mutations; ++i)
        test(mutated(bytes, random));
    return true;
}
} // namespace

/// Gives each file named on the command line to the fuzz target, and after an option -mutations=N as many
/// mutations of each file that follows.
int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int files = 0;
    int mutations = 0;
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], mutationsOption, std::strlen(mutationsOption)) == 0) {
            mutations = std::atoi(argv[i] + std::strlen(mutationsOption));
        } else if (replay(argv[i], mutations)) {
            ++files;
        } else {
            std::fprintf(stderr, "cannot read %s\n", argv[i]);
            return EXIT_FAILURE;
        }
    }
    return files > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
