// Feeds every file of a folder to a fuzz target, for builds without a fuzzer.
#include <QDir>
#include <QFile>

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size);

int main(int argc, char* argv[]) {
    const QDir corpus(argc == 2 ? QFile::decodeName(argv[1]) : QString());
    const QStringList names = corpus.entryList(QDir::Files, QDir::Name);
    if (argc != 2 || names.isEmpty()) {
        std::fputs("Give a folder with inputs.\n", stderr);
        return 2;
    }
    for (const QString& name : names) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(name)); // The last name is a crash's input.
        QFile file(corpus.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fputs("It cannot be read.\n", stderr);
            return 1;
        }
        const QByteArray bytes = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const quint8*>(bytes.constData()),
                               static_cast<std::size_t>(bytes.size()));
    }
    return 0;
}
