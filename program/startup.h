// The start-up routine: builds the state and the windows, in an order that matters.
#pragma once

#include "controls/windowplaces.h"
#include "core/mdlmain.h"
#include "core/settings.h"
#include "sound/sound.h"
#include "workbench/frmmain.h"
#include "workbench/workbench.h"

#include <memory>

class Application;
class HelpOpener;
class SheetOpener;
class StopKey;
class frmSplash;
class frmVoicings;

class StartUp {
public:
    // folder: where the executable lies; the program's folder from now on.
    StartUp(Application& application, const QString& folder);

    // With a sound and a clock other than the machine's.
    StartUp(Application& application, const QString& folder, std::unique_ptr<MidiPlayer> midi,
            std::unique_ptr<Clock> clock);
    ~StartUp();

    // Shows the splash, loads everything, shows the main window. A step that fails throws
    // its run-time error; the program cannot go on then.
    void Main();

    frmMain& Window() { return *m_window; }
    AppState& State() { return m_state; }

private:
    void UseScheme(SchemeChoice scheme);
    void AskDesktop();
    void LoadLanguage(const QString& name);
    void ConnectWindows();
    void GiveHelp(QWidget& window); // By F1, as in the main window.
    void ShowSettings();
    void ConnectSheet();
    void OpenVoicings();
    void ShowVoicings();

    Application& m_application;
    AppState m_state;
    SchemeChoice m_scheme = SchemeChoice::AsDesktop;
    std::unique_ptr<MidiPlayer> m_midi;
    std::unique_ptr<Clock> m_clock;
    WindowPlaces m_places; // Outlives the windows, which hide at their end.
    std::unique_ptr<Workbench> m_workbench;
    std::unique_ptr<frmMain> m_window;
    std::unique_ptr<HelpOpener> m_help;
    std::unique_ptr<SheetOpener> m_sheet;
    std::unique_ptr<frmVoicings> m_voicings; // Keeps its filters for the whole run.
    std::unique_ptr<frmSplash> m_splash;
    std::unique_ptr<StopKey> m_stopKey;
};
