#include "fuzz/fuzztarget.h"

#include <QFile>

#include <cstdio>

namespace
{
bool replay(const char *path)
{
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                           std::size_t(bytes.size()));
    return true;
}
} // namespace

/// Gives each file named on the command line to the fuzz target.
int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    for (int i = 1; i < argc; ++i) {
        if (!replay(argv[i])) {
            std::fprintf(stderr, "cannot read %s\n", argv[i]);
            return EXIT_FAILURE;
        }
    }
    return argc > 1 ? EXIT_SUCCESS : EXIT_FAILURE;
}
