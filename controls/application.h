// The application object: what a thrown run-time error meets at the top of the event loop.
#pragma once

#include "core/phrase.h"

#include <QApplication>
#include <QTranslator>

#include <functional>

class RunTimeError;

class Application : public QApplication {
public:
    Application(int& argc, char** argv);

    // The language of the report from now on, and of the toolkit's own texts: the buttons of
    // message boxes, file dialogs.
    void SetTongue(Tongue tongue);

    // Shows the report; the user chooses to go on or to end the program.
    void Report(const RunTimeError& error);

    // Shows the report with no choice: the program cannot go on.
    void ReportAtStart(const RunTimeError& error);

    // What ends the program when the user chooses so; quits at once while none is set.
    void SetEnd(std::function<void()> end) { m_end = std::move(end); }

    // Runs an action; a run-time error abandons it and is reported.
    static void Guard(const std::function<void()>& action);

    // The last resort: handlers are guarded where they are connected.
    bool notify(QObject* receiver, QEvent* event) override;

private:
    Tongue m_tongue = Tongue::Russian;
    QTranslator m_toolkitTexts;
    std::function<void()> m_end;
};
