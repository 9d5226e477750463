// Makes the program's sound files: a file a key of the piano and a file a string's note.
#include "program/soundfile.h"

#include <QDir>
#include <QFile>
#include <QString>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int piano = 0;
constexpr int steelGuitar = 25;
constexpr int lowestKeyNote = 48; // Key 0 is the C below middle C.
constexpr int keys = 36;
constexpr int soundNumberOfNoteZero = 84; // A string's numbers run down as the pitch goes up.
constexpr int notes = 128;

bool Write(const QString& folder, int number, int instrument, int note) {
    QFile file(folder + u'/' + QString::number(number) + QStringLiteral(".mid"));
    const QByteArray bytes = OneNoteFile(instrument, note);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool WriteAll(const QString& folder) {
    const QString keyFolder = folder + QStringLiteral("/keys");
    const QString stringFolder = folder + QStringLiteral("/strings");
    bool written = QDir().mkpath(keyFolder) && QDir().mkpath(stringFolder);
    for (int key = 0; key < keys; ++key)
        written = written && Write(keyFolder, key, piano, lowestKeyNote + key);
    for (int note = 0; note < notes; ++note)
        written = written && Write(stringFolder, soundNumberOfNoteZero - note, steelGuitar, note);
    return written;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && WriteAll(QString::fromLocal8Bit(argv[1])))
        return EXIT_SUCCESS;
    std::fputs("usage: soundmaker FOLDER, which must be writable\n", stderr);
    return EXIT_FAILURE;
}
