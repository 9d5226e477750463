// The settings dialog's algorithms and handlers.
#include "settings/frmsettings.h"

#include "core/language.h"
#include "core/notes.h"
#include "core/numbers.h"
#include "core/profile.h"
#include "core/runtimeerror.h"
#include "core/tunings.h"
#include "settings/soundnumbers.h"
#include "sound/playback.h"

#include <QScopeGuard>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

const QString settingsSection = QStringLiteral("Settings");
const QString tuningRowKey = QStringLiteral("UserN");

quint8 StringNumber(int index) {
    return static_cast<quint8>(index + 1);
}

QString Tag(const QObject* control) {
    return control->property("Tag").toString();
}

} // namespace

frmSettings::frmSettings(AppState& state, MidiPlayer& midi, Clock& clock, HandOver handOver,
                         QWidget* parent)
    : QDialog(parent),
      m_state(state),
      m_midi(midi),
      m_clock(clock),
      m_handOver(std::move(handOver)) {
    setObjectName(QStringLiteral("frmSettings"));
    CreateControls();
    ShowBuiltInTexts();
    ApplyTongue();
    if (!m_state.IsDefaultLanguage())
        ApplyLanguage();
    LayOut();
    Connect();
}

void frmSettings::Form_Load() {
    // The languages come last, but must stand in the list whatever the settings hold.
    const auto languages = qScopeGuard([this] { ListLanguages(); });
    LoadDialogSettings();
}

void frmSettings::LoadDialogSettings() {
    const QScopedValueRollback filling(m_filling, true);
    const ProfileFile settings = ProfileFile::Read(m_state.SettingsFile());
    const StringLayout layout = ReadLayout(settings);
    QRadioButton* chosen = Options[static_cast<std::size_t>(layout) - 1];
    chosen->setChecked(true);
    chosen->setFocus();
    if (layout == StringLayout::UserThinAtTop || layout == StringLayout::UserThinAtBottom) {
        const QString row = settings.Value(settingsSection, tuningRowKey, QStringLiteral("3"));
        lstTunings->SelectRow(ToInteger16(LeadingNumber(row)));
    }
    const OpenStrings strings = ReadOpenStrings(settings);
    for (int index = 0; index < stringCount; ++index) {
        const auto i = static_cast<std::size_t>(index);
        Text1[i]->setText(strings.notes[i]);
        Text1[i]->setProperty("Tag", strings.soundNumbers[i]);
        const int position = NoteIndexOf(strings.notes[i]);
        const QString number = QString::number(index + 1);
        CheckIndex(position, VScroll1[i]->minimum(), VScroll1[i]->maximum(),
                   {QStringLiteral("нота «%1» струны %2").arg(strings.notes[i], number),
                    QStringLiteral("the note “%1” of string %2").arg(strings.notes[i], number)});
        VScroll1[i]->setValue(position);
    }
}

std::optional<Phrase> frmSettings::SaveDialogSettings() {
    const QString language = ChosenLanguage();
    ProfileFile settings = ProfileFile::Read(m_state.SettingsFile());
    const StringLayout layout = CheckedLayout();
    settings.SetValue(settingsSection, QStringLiteral("User"),
                      QString::number(static_cast<int>(layout)));
    if (layout == StringLayout::UserThinAtTop || layout == StringLayout::UserThinAtBottom)
        settings.SetValue(settingsSection, tuningRowKey, QString::number(lstTunings->Row()));
    m_state.ThinStringAtBottom = ThinAtBottom(layout);
    WriteOpenStrings(settings, Strings());
    settings.SetValue(settingsSection, QStringLiteral("Language"), language);
    return settings.Write(m_state.SettingsFile());
}

QString frmSettings::ChosenLanguage() const {
    const int row = lstLang->Row();
    if (row < 1)
        return defaultLanguage;
    const QStringList files = LanguageFiles(m_state.AppPath);
    CheckIndex(row, 1, files.size(),
               {QStringLiteral("языковые файлы в папке программы"),
                QStringLiteral("the language files in the program's folder")});
    return files[row - 1];
}

void frmSettings::Option1_Click() {
    UseStandardTuning();
}

void frmSettings::Option2_Click() {
    UseStandardTuning();
}

void frmSettings::Option3_Click() {
    EnableStrings(true);
}

void frmSettings::Option4_Click() {
    EnableStrings(true);
}

void frmSettings::UseStandardTuning() {
    EnableStrings(false);
    for (std::size_t i = 0; i < stringCount; ++i)
        Text1[i]->setText(standardStrings.notes[i]);
    SetSoundNumbers();
}

void frmSettings::lstTunings_Click(int row) {
    if (row < 0)
        return;
    const QStringList notes = m_state.Tunings.Field(TuningDef::Notes, row + 1).split(u',');
    for (int index = 0; index < stringCount; ++index) {
        CheckIndex(index + 1, 1, notes.size(),
                   {QStringLiteral("ноты строя «%1»").arg(lstTunings->RowText(row)),
                    QStringLiteral("the notes of the tuning “%1”").arg(lstTunings->RowText(row))});
        Text1[static_cast<std::size_t>(index)]->setText(notes[index]);
    }
    SetSoundNumbers();
}

void frmSettings::SetSoundNumbers() {
    for (int index = 0; index < stringCount; ++index) {
        QLineEdit* text = Text1[static_cast<std::size_t>(index)];
        text->setProperty("Tag",
                          QString::number(SoundNumberFor(StringNumber(index), text->text())));
    }
}

void frmSettings::VScroll1_Change(int index) {
    if (m_filling)
        return;
    const auto i = static_cast<std::size_t>(index);
    const QString note = NoteName(VScroll1[i]->value() - 1).toString();
    Text1[i]->setText(note);
    Text1[i]->setProperty("Tag", QString::number(SoundNumberFor(StringNumber(index), note)));
}

void frmSettings::VScroll2_Change(int index) {
    constexpr int octave = 12;
    if (m_filling)
        return;
    const auto i = static_cast<std::size_t>(index);
    const int value = VScroll2[i]->value();
    const bool higher = LeadingNumber(Tag(VScroll2[i])) < value;
    const double number = LeadingNumber(Tag(Text1[i])) + (higher ? -octave : octave);
    Text1[i]->setProperty("Tag", QString::number(number, 'g', 15));
    VScroll2[i]->setProperty("Tag", QString::number(value));
}

void frmSettings::Image1_Click(int index) {
    constexpr double seconds = 0.5;
    m_midi.PlayMidiFile(
        StringSoundFile(m_state.AppPath, Tag(Text1[static_cast<std::size_t>(index)]), 0));
    m_clock.WaitUntil(m_clock.Now() + seconds);
    m_midi.CloseMidiFile();
}

void frmSettings::cmdOK_Click() {
    m_unsaved = Check1->isChecked() ? SaveDialogSettings() : std::nullopt;
    m_handOver(Strings(), ThinAtBottom(CheckedLayout()));
    accept();
}

void frmSettings::cmdCancel_Click() {
    reject();
}

StringLayout frmSettings::CheckedLayout() const {
    const auto checked =
        std::find_if(Options.begin(), Options.end(),
                     [](const QRadioButton* option) { return option->isChecked(); });
    return static_cast<StringLayout>(checked - Options.begin() + 1);
}

OpenStrings frmSettings::Strings() const {
    OpenStrings strings;
    for (std::size_t i = 0; i < stringCount; ++i) {
        strings.notes[i] = Text1[i]->text();
        strings.soundNumbers[i] = Tag(Text1[i]);
    }
    return strings;
}

void frmSettings::ListLanguages() {
    QStringList rows{QStringLiteral("Russian - default")};
    const QStringList files = LanguageFiles(m_state.AppPath);
    int chosen = m_state.IsDefaultLanguage() ? 0 : -1;
    for (const QString& file : files) {
        if (m_state.AppPath + file == m_state.LanguageFile)
            chosen = static_cast<int>(rows.size());
        rows += LanguageTexts(m_state.AppPath + file).DisplayName() + QStringLiteral(" - ") + file;
    }
    lstLang->SetTexts(rows);
    lstLang->SelectRow(chosen);
}
