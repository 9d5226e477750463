#include "core/settings.h"

#include "core/profile.h"

namespace {

const QString settingsSection = QStringLiteral("Settings");
const QString stringsSection = QStringLiteral("Strings");

QString KeyOf(std::size_t string, QChar kind) {
    return QString::number(string + 1) + kind;
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

StringLayout ReadLayout(const ProfileFile& settings) {
    return LayoutOf(settings.Value(settingsSection, QStringLiteral("User"), QStringLiteral("2")));
}

OpenStrings ReadOpenStrings(const ProfileFile& settings) {
    OpenStrings strings;
    for (std::size_t i = 0; i < stringCount; ++i) {
        strings.notes[i] = settings.Value(stringsSection, KeyOf(i, u'S'), standardStrings.notes[i]);
        strings.soundNumbers[i] =
            settings.Value(stringsSection, KeyOf(i, u'K'), standardStrings.soundNumbers[i]);
    }
    return strings;
}

void WriteOpenStrings(ProfileFile& settings, const OpenStrings& strings) {
    for (std::size_t i = 0; i < stringCount; ++i)
        settings.SetValue(stringsSection, KeyOf(i, u'S'), strings.notes[i]);
    for (std::size_t i = 0; i < stringCount; ++i)
        settings.SetValue(stringsSection, KeyOf(i, u'K'), strings.soundNumbers[i]);
}

void LayStrings(AppState& state, const OpenStrings& strings, bool thinStringAtBottom) {
    state.ThinStringAtBottom = thinStringAtBottom;
    for (std::size_t row = 0; row < stringCount; ++row) {
        const std::size_t string = thinStringAtBottom ? row : stringCount - 1 - row;
        state.StringNotes[row] = strings.notes[string];
        state.SoundNumbers[row] = strings.soundNumbers[string];
    }
}

void LoadStartUpSettings(AppState& state) {
    const ProfileFile settings = ProfileFile::Read(state.SettingsFile());
    LayStrings(state, ReadOpenStrings(settings), ThinAtBottom(ReadLayout(settings)));
}
