#include "fuzz/Fuzz.h"

#include <QDir>
#include <QFile>

/// Feeds the target every file of the folders named on the command line.
int main(int argc, char** argv) {
    int fed = 0;
    for (int i = 1; i < argc; ++i) {
        const QDir folder(QString::fromLocal8Bit(argv[i]));
        const auto names = folder.entryList(QDir::Files, QDir::Name);
        for (const QString& name : names) {
            QFile file(folder.filePath(name));
            if (!file.open(QIODevice::ReadOnly))
                return 1;
            const QByteArray input = file.readAll();
            std::fprintf(stderr, "%s\n", qPrintable(file.fileName())); // the last one printed causes a crash
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()),
                                   static_cast<std::size_t>(input.size()));
            ++fed;
        }
    }
    std::printf("%d inputs\n", fed);
    return fed > 0 ? 0 : 1;
}
