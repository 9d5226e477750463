// Someone who does anything at all in the program's windows: presses, drags, types, opens and
// closes dialogs, by a seed. The same seed does the same.
#pragma once

#include <QPointer>
#include <QWidget>

#include <random>

class RandomUser : public QObject {
public:
    // folder: where files may be written.
    RandomUser(QWidget& mainWindow, quint32 seed, QString folder);

    // One action, and the end of whatever dialogs and menus it opened.
    void Act();

    // What may come in while a note sounds; stops a loop that takes too long.
    void ActDuringNote();

    int DialogsMet() const { return m_dialogsMet; }

    // Whether the settings were open, an action failed half way, or the keys of undo and redo
    // were pressed, since the last call.
    bool MetSettings() { return std::exchange(m_metSettings, false); }
    bool MetError() { return std::exchange(m_metError, false); }
    bool MetUndo() { return std::exchange(m_metUndo, false); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int Pick(int count);
    bool Chance(int oneIn) { return Pick(oneIn) == 0; }

    void ActIn(QWidget& window);
    void UseMouse(QWidget& control);
    void UseKeyboard(QWidget& window);
    void KeepTheSheetShort();
    void EndPopups();
    void Answer(QWidget& dialog);
    void End(QWidget& dialog);

    QWidget& m_mainWindow;
    std::mt19937 m_random;
    QString m_folder;
    int m_dialogs = 0; // Open now, one in the other.
    int m_notes = 0;   // Sounded since the user last was free.
    int m_dialogsMet = 0;
    bool m_metSettings = false;
    bool m_metError = false;
    bool m_metUndo = false;
};
