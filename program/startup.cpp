#include "program/startup.h"

#include "controls/application.h"
#include "controls/handle.h"
#include "controls/messagebox.h"
#include "controls/placing.h"
#include "controls/theme.h"
#include "controls/windowtexts.h"
#include "core/datafile.h"
#include "core/language.h"
#include "core/profile.h"
#include "core/settings.h"
#include "core/statefolder.h"
#include "info/frmsplash.h"
#include "info/helpopener.h"
#include "program/desktopscheme.h"
#include "program/sheetopener.h"
#include "program/stopkey.h"
#include "settings/frmsettings.h"
#include "sound/eventclock.h"
#include "sound/midiapi.h"
#include "voicings/frmvoicings.h"
#include "workbench/windowroom.h"

#include <QScreen>
#include <QShortcut>

namespace {

Scheme SchemeFor(SchemeChoice choice) {
    switch (choice) {
    case SchemeChoice::Light:
        return Scheme::Light;
    case SchemeChoice::Dark:
        return Scheme::Dark;
    case SchemeChoice::AsDesktop:
        break;
    }
    return DesktopScheme();
}

} // namespace

StartUp::StartUp(Application& application, const QString& folder)
    : StartUp(application, folder, std::make_unique<MidiAPI>(FolderPath(folder)),
              std::make_unique<EventClock>()) {}

StartUp::StartUp(Application& application, const QString& folder, std::unique_ptr<MidiPlayer> midi,
                 std::unique_ptr<Clock> clock)
    : m_application(application),
      m_midi(std::move(midi)),
      m_clock(std::move(clock)),
      m_places(StateFolder() + QStringLiteral("/windows"),
               {QStringLiteral("frmMain"), QStringLiteral("frmSettings"),
                QStringLiteral("frmDiags"), QStringLiteral("frmVoicings"),
                QStringLiteral("frmHelp")}),
      m_splash(std::make_unique<frmSplash>()) {
    m_state.AppPath = FolderPath(folder);
}

StartUp::~StartUp() = default;

void StartUp::Main() {
    const Settings settings = ReadSettings(ProfileFile::Read(m_state.SettingsFile()));
    UseScheme(settings.scheme);
    // A report of what comes before the language is loaded speaks it already.
    m_application.SetTongue(FindLanguage(m_state, settings.Language()) == LanguageChoice::File
                                ? Tongue::English
                                : Tongue::Russian);
    m_splash->show();
    QApplication::processEvents();
    m_workbench = std::make_unique<Workbench>(m_state);
    m_window = std::make_unique<frmMain>(m_state, *m_workbench, *m_midi, *m_clock);
    ReadChordTypes(m_state);
    m_splash->ProgressStep();
    m_window->ShowTypes();
    LoadLanguage(settings.Language());
    m_splash->ProgressStep();
    m_window->ShowRoots();
    ReadScales(m_state);
    m_splash->ProgressStep();
    m_window->ShowScales();
    ReadTunings(m_state);
    m_splash->ProgressStep();
    m_workbench->SaveKeyColours();
    UseSettings(m_state, settings);
    m_workbench->StringsChanged();
    m_window->SelectDefaults();
    m_splash->ProgressStep();
    m_splash.reset();
    ConnectWindows();
    if (!FileExists(m_state.SettingsFile()))
        m_window->ShowNotice(
            {QStringLiteral("Выберите аккорд слева; щёлкните по струне; сыграйте: F6."),
             QStringLiteral("Choose a chord on the left; click a string; play: F6.")});
    m_window->OpenAtBestSize(RoomWithin(*m_window->screen()));
    m_window->show();
    AskDesktop();
}

void StartUp::UseScheme(SchemeChoice scheme) {
    m_scheme = scheme;
    ShowScheme(SchemeFor(scheme));
}

// The windows do not wait for the answer.
void StartUp::AskDesktop() {
    AskDesktopScheme(m_window.get(), [this](Scheme scheme) {
        SetDesktopScheme(scheme);
        UseScheme(m_scheme);
    });
}

void StartUp::LoadLanguage(const QString& name) {
    const LanguageChoice choice = ChooseLanguage(m_state, name);
    m_application.SetTongue(m_state.InterfaceTongue());
    if (choice == LanguageChoice::FileMissing) {
        MessageBox(QMessageBox::Critical, QStringLiteral("Внимание!"),
                   QStringLiteral("Файл, указанный как языковой ресурс в файле инициализации "
                                  "отсутствует!"),
                   QMessageBox::Ok)
            .exec();
        ForgetLanguage(m_state);
    }
    const TextSource texts = TextsInUse(m_state);
    m_state.UiText = texts.file ? UiTextsOf(*texts.file) : BuiltInUiTexts();
    m_window->ShowTexts(texts);
}

void StartUp::ConnectWindows() {
    m_help = std::make_unique<HelpOpener>(
        m_state,
        [this] {
            return ChordRows{m_window->lstBase->RowCount(), m_window->lstType->RowCount()};
        },
        m_window.get());
    Handle(m_window.get(), &frmMain::HelpAsked, m_window.get(), [this](bool modal) {
        if (modal)
            m_help->ShowModal();
        else
            m_help->Show(QApplication::focusWidget());
    });
    Handle(m_window.get(), &frmMain::SettingsAsked, m_window.get(), [this] { ShowSettings(); });
    ConnectSheet();
    Handle(m_window.get(), &frmMain::VoicingsAsked, m_window.get(), [this] { OpenVoicings(); });
    Handle(m_window.get(), &frmMain::StateShown, m_window.get(), [this] { ShowVoicings(); });
    m_application.SetEnd([this] { m_window->close(); });
    m_stopKey = std::make_unique<StopKey>([this] { m_window->GoldButton3_Click(); });
}

void StartUp::GiveHelp(QWidget& window) {
    Handle(new QShortcut(QKeySequence::HelpContents, &window), &QShortcut::activated,
           m_window.get(), [this, &window] {
               if (window.isModal())
                   m_help->ShowModal(QApplication::focusWidget());
               else
                   m_help->Show(QApplication::focusWidget());
           });
}

void StartUp::ShowSettings() {
    frmSettings dialog(
        m_state, *m_midi, *m_clock,
        [this](const Settings& settings) {
            UseSettings(m_state, settings);
            UseScheme(settings.scheme);
            m_window->StringsChanged();
        },
        m_window.get());
    GiveHelp(dialog);
    dialog.Form_Load();
    dialog.exec();
    if (dialog.Unsaved())
        m_window->ShowNotice(*dialog.Unsaved());
}

void StartUp::ConnectSheet() {
    m_sheet = std::make_unique<SheetOpener>(m_state, *m_workbench, *m_window,
                                            [this](QWidget& sheet) { GiveHelp(sheet); });
    frmMain* window = m_window.get();
    Handle(window, &frmMain::DiagramsAsked, window, [this] { m_sheet->Show(); });
    Handle(window, &frmMain::AddToSheetAsked, window, [this] { m_sheet->AddNeck(); });
    Handle(window, &frmMain::CopyAsked, window,
           [this](const Diagram& diagram) { m_sheet->Copy(diagram); });
    Handle(window, &frmMain::SaveAsked, window,
           [this](const Diagram& diagram) { m_sheet->Save(m_window.get(), diagram); });
    m_window->SetMayEnd([this] {
        bool mayEnd = false; // What saving the sheet reports keeps the program running.
        Application::Guard([&] { mayEnd = m_sheet->MayEnd(); });
        return mayEnd;
    });
}

void StartUp::OpenVoicings() {
    if (!m_voicings) {
        m_voicings = std::make_unique<frmVoicings>(m_state);
        OpenBeside(*m_voicings, {m_window->frameGeometry(),
                                 OnScreen(*m_window->Frame1) | OnScreen(*m_window->panel),
                                 OnScreen(*m_window->panel)});
        m_window->TakeKeysOf(m_voicings.get());
        Handle(m_voicings.get(), &frmVoicings::LayAsked, m_window.get(), &frmMain::LayShape);
        Handle(m_voicings.get(), &frmVoicings::StrumAsked, m_window.get(), &frmMain::LayAndStrum);
        Handle(m_voicings.get(), &frmVoicings::AddAsked, m_window.get(), &frmMain::LayAndAdd);
        Handle(m_voicings.get(), &frmVoicings::CopyAsked, m_window.get(),
               [this](const Shape& shape) { m_sheet->Copy(m_window->DiagramOf(shape)); });
        Handle(m_voicings.get(), &frmVoicings::SaveAsked, m_window.get(),
               [this](const Shape& shape) {
                   m_sheet->Save(m_voicings.get(), m_window->DiagramOf(shape));
               });
    }
    m_voicings->show();
    ShowVoicings();
    m_voicings->raise();
    m_voicings->activateWindow();
}

void StartUp::ShowVoicings() {
    if (m_voicings && m_voicings->isVisible())
        m_voicings->ShowState(m_window->Playing().Chord(), m_window->Playing().Found(),
                              m_workbench->NeckShape(), m_workbench->HandShape());
}
