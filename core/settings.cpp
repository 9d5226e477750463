#include "core/settings.h"

#include "core/profile.h"

namespace {

const QString settingsSection = QStringLiteral("Settings");
const QString stringsSection = QStringLiteral("Strings");

const QString userKey = QStringLiteral("User");
const QString tuningRowKey = QStringLiteral("UserN");
const QString languageKey = QStringLiteral("Language");
const QString leftHandedKey = QStringLiteral("LeftHanded");
const QString schemeKey = QStringLiteral("Scheme");
const QString switchedOn = QStringLiteral("1");
const QString defaultOfOwnKeys = QStringLiteral("0");

QString KeyOf(std::size_t string, QChar kind) {
    return QString::number(string + 1) + kind;
}

SchemeChoice SchemeOf(const QString& text) {
    for (const auto scheme : {SchemeChoice::Light, SchemeChoice::Dark})
        if (text == QString::number(static_cast<int>(scheme)))
            return scheme;
    return SchemeChoice::AsDesktop;
}

// A key that the program adds to the format.
void WriteOwn(ProfileFile& file, const QString& key, const QString& value) {
    if (value != defaultOfOwnKeys || file.Value(settingsSection, key))
        file.SetValue(settingsSection, key, value);
}

} // namespace

const OpenStrings standardStrings{{QStringLiteral("E"), QStringLiteral("B"), QStringLiteral("G"),
                                   QStringLiteral("D"), QStringLiteral("A"), QStringLiteral("E")},
                                  {QStringLiteral("20"), QStringLiteral("25"), QStringLiteral("29"),
                                   QStringLiteral("34"), QStringLiteral("39"),
                                   QStringLiteral("44")}};

StringLayout LayoutOf(const QString& user) {
    for (const auto layout : {StringLayout::StandardThinAtBottom, StringLayout::UserThinAtTop,
                              StringLayout::UserThinAtBottom})
        if (user == QString::number(static_cast<int>(layout)))
            return layout;
    return StringLayout::StandardThinAtTop;
}

bool ThinAtBottom(StringLayout layout) {
    return layout == StringLayout::StandardThinAtBottom || layout == StringLayout::UserThinAtBottom;
}

Settings ReadSettings(const ProfileFile& file) {
    Settings settings;
    const auto read = [&file](const QString& section, const QString& key, QString& value) {
        value = file.Value(section, key, value);
    };
    settings.layout = LayoutOf(file.Value(settingsSection, userKey, QStringLiteral("2")));
    read(settingsSection, tuningRowKey, settings.tuningRow);
    settings.language = file.Value(settingsSection, languageKey);
    settings.leftHanded = file.Value(settingsSection, leftHandedKey) == switchedOn;
    settings.scheme = SchemeOf(file.Value(settingsSection, schemeKey).value_or(QString()));
    for (std::size_t i = 0; i < stringCount; ++i) {
        read(stringsSection, KeyOf(i, u'S'), settings.strings.notes[i]);
        read(stringsSection, KeyOf(i, u'K'), settings.strings.soundNumbers[i]);
    }
    return settings;
}

void WriteSettings(ProfileFile& file, const Settings& settings) {
    file.SetValue(settingsSection, userKey, QString::number(static_cast<int>(settings.layout)));
    if (settings.HasUserTuning())
        file.SetValue(settingsSection, tuningRowKey, settings.tuningRow);
    for (std::size_t i = 0; i < stringCount; ++i)
        file.SetValue(stringsSection, KeyOf(i, u'S'), settings.strings.notes[i]);
    for (std::size_t i = 0; i < stringCount; ++i)
        file.SetValue(stringsSection, KeyOf(i, u'K'), settings.strings.soundNumbers[i]);
    if (settings.language)
        file.SetValue(settingsSection, languageKey, *settings.language);
    WriteOwn(file, leftHandedKey, settings.leftHanded ? switchedOn : defaultOfOwnKeys);
    WriteOwn(file, schemeKey, QString::number(static_cast<int>(settings.scheme)));
}

bool CanBeRemembered(const QString& language) {
    ProfileFile file;
    file.SetValue(settingsSection, languageKey, language);
    return file.Value(settingsSection, languageKey) == language;
}

void LayStrings(AppState& state, const OpenStrings& strings, bool thinStringAtBottom) {
    state.ThinStringAtBottom = thinStringAtBottom;
    for (int string = 1; string <= stringCount; ++string) {
        const auto from = static_cast<std::size_t>(string - 1);
        const auto row = static_cast<std::size_t>(RowOfString(string, thinStringAtBottom));
        state.StringNotes[row] = strings.notes[from];
        state.SoundNumbers[row] = strings.soundNumbers[from];
    }
}

void UseSettings(AppState& state, const Settings& settings) {
    LayStrings(state, settings.strings, ThinAtBottom(settings.layout));
    state.LeftHanded = settings.leftHanded;
}
