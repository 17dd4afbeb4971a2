/** @file
 * Runs a fuzzer's function on every file of the folder that the command line names, where there is
 * no fuzzer. What does not hold ends the program.
 */

#include <QDir>
#include <QFile>

#include <cstddef>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: replay FOLDER\n", stderr);
        return 2;
    }
    const QFileInfoList files = QDir(QFile::decodeName(argv[1])).entryInfoList(QDir::Files);
    for (const QFileInfo &info : files) {
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read %s\n", qPrintable(info.filePath()));
            return 1;
        }
        const QByteArray data = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(data.constData()),
                               static_cast<std::size_t>(data.size()));
    }
    std::printf("%d inputs\n", files.size());
    return files.isEmpty() ? 1 : 0;
}
