// The settings dialog's algorithms and handlers.
#include "settings/frmsettings.h"

#include "controls/application.h"
#include "core/language.h"
#include "core/notes.h"
#include "core/numbers.h"
#include "core/profile.h"
#include "core/runtimeerror.h"
#include "core/tunings.h"
#include "settings/soundnumbers.h"
#include "sound/playback.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

quint8 StringNumber(int index) {
    return static_cast<quint8>(index + 1);
}

QString Tag(const QObject* control) {
    return control->property("Tag").toString();
}

// The names of a tuning's notes, string 1 first; an empty text is none.
QStringList TuningNotes(const TextTable& tunings, int row) {
    const QString notes = tunings.Field(TuningDef::Notes, row + 1);
    return notes.isEmpty() ? QStringList() : notes.split(u',');
}

RunTimeError ShortTuning(const QString& name, int notes) {
    constexpr std::array<const char16_t*, stringCount> counted{
        u"нет ни одной ноты", u"только 1 нота", u"только 2 ноты",
        u"только 3 ноты",     u"только 4 ноты", u"только 5 нот"};
    return RunTimeError(
        {QStringLiteral("В строе «%1» %2 из шести.")
             .arg(name, QString::fromUtf16(counted[static_cast<std::size_t>(notes)])),
         QStringLiteral("The tuning \"%1\" has only %2 of its six notes.")
             .arg(name, QString::number(notes))});
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
    ShowTexts();
    LayOut();
    Connect();
}

void frmSettings::Form_Load() {
    Application::Guard([this] { LoadDialogSettings(); });
    Application::Guard([this] { ListLanguages(); });
}

void frmSettings::LoadDialogSettings() {
    const QScopedValueRollback filling(m_filling, true);
    m_loaded = ReadSettings(ProfileFile::Read(m_state.SettingsFile()));
    QRadioButton* chosen = Options[static_cast<std::size_t>(m_loaded.layout) - 1];
    chosen->setChecked(true);
    chosen->setFocus();
    Check2->setChecked(m_loaded.leftHanded);
    lstScheme->ShowRow(static_cast<int>(m_loaded.scheme));
    // A tuning that is not there must not cost the strings.
    if (m_loaded.HasUserTuning())
        Application::Guard([this] { SelectTuning(m_loaded.tuningRow); });
    ShowStrings(m_loaded.strings);
}

void frmSettings::SelectTuning(const QString& row) {
    const double number = std::nearbyint(LeadingNumber(row));
    const int last = lstTunings->RowCount() - 1;
    if (number < -1 || number > last) {
        const Phrase asked = AsTyped(row);
        throw RunTimeError(
            {QStringLiteral("В списке строев нет строки %1 (UserN в tonvik.ini): их номера от 0 "
                            "до %2.")
                 .arg(asked.russian, QString::number(last)),
             QStringLiteral("The list of tunings has no row %1 (UserN in tonvik.ini): they are "
                            "numbered 0 to %2.")
                 .arg(asked.english, QString::number(last))});
    }
    lstTunings->SelectRow(static_cast<int>(number));
}

void frmSettings::ShowStrings(const OpenStrings& strings) {
    std::optional<std::size_t> unknown;
    for (std::size_t i = 0; i < stringCount; ++i) {
        Text1[i]->setText(strings.notes[i]);
        Text1[i]->setProperty("Tag", strings.soundNumbers[i]);
        if (const int position = NoteIndexOf(strings.notes[i]); position > 0)
            VScroll1[i]->setValue(position);
        else if (!unknown)
            unknown = i;
    }
    if (!unknown)
        return;
    const QString note = strings.notes[*unknown];
    const QString number = QString::number(*unknown + 1);
    throw RunTimeError(
        {QStringLiteral("Нота «%1» струны %2 неизвестна: это не одно из двенадцати названий от C "
                        "до B.")
             .arg(note, number),
         QStringLiteral("The note \"%1\" of string %2 is none of the twelve from C to B.")
             .arg(note, number)});
}

std::optional<Phrase> frmSettings::SaveDialogSettings() {
    Settings settings = DialogSettings();
    m_state.ThinStringAtBottom = ThinAtBottom(settings.layout);
    const std::optional<QString> language = ChosenLanguage();
    const bool lasts = language && CanBeRemembered(*language);
    if (lasts)
        settings.language = language;
    ProfileFile file = ProfileFile::Read(m_state.SettingsFile());
    WriteSettings(file, settings);
    if (const auto failure = file.Write(m_state.SettingsFile()))
        return Phrase{QStringLiteral("Настройки не запомнены. ") + failure->russian,
                      QStringLiteral("The settings were not remembered. ") + failure->english};
    if (!language)
        throw RunTimeError(
            {QStringLiteral("Язык не запомнен: его файла больше нет в папке программы."),
             QStringLiteral("The language was not remembered: its file is no longer in the "
                            "program's folder.")});
    if (!lasts)
        return Phrase{QStringLiteral("Язык не запомнен: имя файла «%1» нельзя записать в "
                                     "tonvik.ini. Переименуйте его.")
                          .arg(*language),
                      QStringLiteral("The language was not remembered: tonvik.ini cannot hold the "
                                     "file name \"%1\". Rename the file.")
                          .arg(*language)};
    return std::nullopt;
}

std::optional<QString> frmSettings::ChosenLanguage() const {
    const int row = lstLang->Row();
    if (row < 1)
        return defaultLanguage;
    const QStringList files = LanguageFiles(m_state.AppPath);
    return row <= files.size() ? std::optional(files[row - 1]) : std::nullopt;
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
    const QStringList notes = TuningNotes(m_state.Tunings, row);
    for (int index = 0; index < stringCount; ++index) {
        if (index == notes.size())
            throw ShortTuning(lstTunings->RowText(row), index);
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
    const QString number = Tag(Text1[static_cast<std::size_t>(index)]);
    PlayForSeconds(m_midi, m_clock, StringSoundFile(m_state.AppPath, number, 0), seconds);
}

void frmSettings::cmdOK_Click() {
    m_unsaved = Check1->isChecked() ? SaveDialogSettings() : std::nullopt;
    m_handOver(DialogSettings());
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

Settings frmSettings::DialogSettings() const {
    Settings settings;
    settings.layout = CheckedLayout();
    settings.tuningRow = QString::number(lstTunings->Row());
    for (std::size_t i = 0; i < stringCount; ++i) {
        settings.strings.notes[i] = Text1[i]->text();
        settings.strings.soundNumbers[i] = Tag(Text1[i]);
    }
    settings.leftHanded = Check2->isChecked();
    settings.scheme = static_cast<SchemeChoice>(lstScheme->currentIndex());
    return settings;
}

void frmSettings::ListLanguages() {
    QStringList rows{QStringLiteral("Russian - default")};
    const QStringList files = LanguageFiles(m_state.AppPath);
    for (const QString& file : files)
        rows += LanguageTexts(m_state.AppPath + file).DisplayName() + QStringLiteral(" - ") + file;
    lstLang->SetTexts(rows);
    const qsizetype chosen = files.indexOf(m_loaded.Language());
    lstLang->SelectRow(
        m_loaded.Language() == defaultLanguage || chosen >= 0 ? static_cast<int>(chosen) + 1 : -1);
}
