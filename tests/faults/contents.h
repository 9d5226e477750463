// Two contents that a file is given in turn, through the routines that the program saves with.
#pragma once

#include "core/profile.h"
#include "core/settings.h"
#include "diagrams/chordprofile.h"
#include "diagrams/sheetfile.h"

enum class Content { Old, New };

// The settings as OK in the settings dialog writes them. What else the file holds is kept.
inline void WriteSettings(const QString& path, Content content) {
    Settings settings;
    if (content == Content::New)
        settings.strings.notes.fill(QStringLiteral("C#"));
    settings.language =
        content == Content::New ? QStringLiteral("a rather long name.lng") : defaultLanguage;
    ProfileFile file = ProfileFile::Read(path);
    WriteSettings(file, settings);
    if (file.Write(path))
        qFatal("cannot write the settings");
}

// A sheet as the diagram window saves it.
inline void WriteDiagrams(const QString& path, Content content) {
    const QString line = content == Content::New ? QStringLiteral("Am - Б5/000220\n")
                                                 : QStringLiteral("C - 032010\n");
    WriteSheet(path, line.repeated(2000));
}

// The same as a song for other programs.
inline void WriteSong(const QString& path, Content content) {
    const QString line = content == Content::New ? QStringLiteral("[Am]И так[F]далее\n")
                                                 : QStringLiteral("[C]И вот\n");
    WriteChordProFile(path, line.repeated(2000));
}

inline void WriteContent(const QString& path, Content content) {
    if (path.endsWith(QStringLiteral(".ini")))
        WriteSettings(path, content);
    else if (path.endsWith(QStringLiteral(".cho")))
        WriteSong(path, content);
    else
        WriteDiagrams(path, content);
}
