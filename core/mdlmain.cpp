#include "core/mdlmain.h"

#include "core/chordtypes.h"
#include "core/scales.h"
#include "core/tunings.h"

#include <QDir>

const QString defaultLanguage = QStringLiteral("Default");

AppState::AppState()
    : ChordTypes(BuiltInChordTypes()),
      Scales(BuiltInScales()),
      Tunings(BuiltInTunings()),
      LanguageFile(defaultLanguage) {}

bool AppState::IsDefaultLanguage() const {
    return LanguageFile == defaultLanguage;
}

Tongue AppState::InterfaceTongue() const {
    return IsDefaultLanguage() ? Tongue::Russian : Tongue::English;
}

QString AppState::SettingsFile() const {
    return AppPath + QStringLiteral("tonvik.ini");
}

void ReadChordTypes(AppState& state) {
    state.ChordTypes.AppendDataFile(state.AppPath + QStringLiteral("chords.dat"));
}

void ReadScales(AppState& state) {
    state.Scales.AppendDataFile(state.AppPath + QStringLiteral("scales.dat"));
}

void ReadTunings(AppState& state) {
    state.Tunings.AppendDataFile(state.AppPath + QStringLiteral("tunings.dat"));
}

QString FolderPath(const QString& folder) {
    const QChar separator = QDir::separator();
    const QString path = QDir::toNativeSeparators(folder);
    return path.endsWith(separator) ? path : path + separator;
}
