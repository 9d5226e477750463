// Any bytes as the settings file: the program starts with them, and a tuning that is saved
// into them is there at the next start. An input is the notes of a tuning, with commas between
// them, and the file.
#include "core/codepage.h"
#include "core/notes.h"
#include "core/profile.h"
#include "core/settings.h"
#include "fuzz.h"
#include "settings/soundnumbers.h"
#include "workbench/workbench.h"

#include <algorithm>
#include <cstdlib>

namespace {

// What the program makes of the settings when it starts.
AppState Start(const QString& appPath) {
    AppState state;
    state.AppPath = appPath;
    UseSettings(state, ReadSettings(ProfileFile::Read(state.SettingsFile())));
    Workbench workbench(state);
    workbench.ChooseType(0);
    workbench.ChooseRoot(0, NoteName(0).toString());
    for (int row = 0; row < stringCount; ++row) {
        const QString& open = state.StringNotes[static_cast<std::size_t>(row)];
        const auto note = workbench.Row(row).note;
        Require(note.has_value() == SemitoneOf(open).has_value(), "only notes can be fingered");
        Require(!note || *note % 12 == 0 || *note % 12 == 4 || *note % 12 == 7,
                "a string that is a note sounds the chord");
        const QString file =
            StringSoundFile(appPath, state.SoundNumbers[static_cast<std::size_t>(row)], 0);
        Require(!file.mid(appPath.size()).contains(QStringLiteral("..")),
                "a sound file lies beside the program");
    }
    return state;
}

// The strings of a tuning; the standard one where a name is no note.
OpenStrings Tune(const QStringList& names) {
    OpenStrings strings = standardStrings;
    for (int i = 0; i < std::min<int>(stringCount, static_cast<int>(names.size())); ++i) {
        const auto string = static_cast<std::size_t>(i);
        const int number = SoundNumberFor(static_cast<quint8>(i + 1), names[i]);
        if (!SemitoneOf(names[i]))
            continue;
        Require(std::abs(number - standardStrings.soundNumbers[string].toInt()) <= 6,
                "a string is tuned the short way");
        strings.notes[string] = names[i];
        strings.soundNumbers[string] = QString::number(number);
    }
    return strings;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    Input input(data, size);
    const OpenStrings strings = Tune(FromAnsi(input.Line()).split(u','));
    const QString path = folder.Write(QStringLiteral("tonvik.ini"), input.Rest());
    const bool thinAtBottom = Start(folder.Path()).ThinStringAtBottom;

    ProfileFile file = ProfileFile::Read(path);
    Settings settings = ReadSettings(file);
    Require(thinAtBottom == ThinAtBottom(settings.layout), "the order of the strings is read");
    settings.strings = strings;
    settings.leftHanded = !settings.leftHanded;
    const bool leftHanded = settings.leftHanded;
    WriteSettings(file, settings);
    Require(!file.Write(path), "the settings are written");
    const AppState state = Start(folder.Path());
    Require(state.ThinStringAtBottom == thinAtBottom, "another setting stays");
    Require(state.LeftHanded == leftHanded, "a switch is there at the next start");
    for (std::size_t row = 0; row < stringCount; ++row) {
        const std::size_t string = thinAtBottom ? row : stringCount - 1 - row;
        Require(state.StringNotes[row] == strings.notes[string] &&
                    state.SoundNumbers[row] == strings.soundNumbers[string],
                "a saved tuning is there at the next start");
    }
    return 0;
}
