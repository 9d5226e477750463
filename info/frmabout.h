// About the program, with the number of chords that it knows.
#pragma once

#include "info/author.h"
#include "info/chordcount.h"
#include "info/infowindow.h"

#include <functional>

class LinkLabel;
class QBoxLayout;
class QLabel;
class QUrl;
struct AppState;

class frmAbout : public InfoWindow {
    Q_OBJECT

public:
    // A run-time error where the chords are too many to be counted.
    frmAbout(const AppState& state, const ChordRows& rows, const Author& author = ProgramAuthor(),
             QWidget* parent = nullptr);

    // What opens the link; the desktop does until another way is set.
    void SetOpenLink(std::function<void(const QUrl&)> openLink) {
        m_openLink = std::move(openLink);
    }

    void Label4_Click();

    QLabel* Label1;
    QLabel* Label2;
    QLabel* Label3;
    LinkLabel* Label4;
    QLabel* Label5;
    QLabel* Label6;
    QLabel* Label7;

private:
    void Form_Load(const AppState& state, const ChordRows& rows, const Author& author);
    void LayOut();

    std::function<void(const QUrl&)> m_openLink;
};
