// The main window's mouse: presses on the pictures and labels, and what lights up under the
// pointer.
#include "workbench/frmmain.h"

#include "pictures/fretboardlayout.h"
#include "pictures/keyboardlayout.h"

#include <QKeyEvent>
#include <QMouseEvent>

void frmMain::picStrings_MouseDown(Qt::MouseButton button, QPointF place) {
    if (button == Qt::RightButton) {
        DoQuietly([&] { m_workbench.ClearFretboard(); });
        return;
    }
    if (m_workbench.GrabsBarre(place.x())) {
        BarreDragging = true;
        return;
    }
    DoQuietly([&] {
        m_workbench.PressString(FretboardLayout::RowAt(place.y()),
                                FretboardLayout::FretAt(place.x()));
    });
}

void frmMain::picStrings_MouseMove(QPointF place) {
    Form_MouseMove();
    const auto row = FretboardLayout::RowAt(place.y());
    const auto fret = FretboardLayout::FretAt(place.x());
    const bool free = !BarreDragging && !m_workbench.GrabsBarre(place.x());
    PointAt(free && row && fret ? std::optional(BoardPlace{*row, *fret}) : std::nullopt, {});
    if (BarreDragging)
        DoQuietly([&] { m_workbench.DragBarre(place.x()); });
}

void frmMain::picStrings_MouseUp() {
    BarreDragging = false;
}

void frmMain::picStrings_MouseLeave() {
    PointAt({}, {});
}

void frmMain::picKeyboard_MouseDown(Qt::MouseButton button, QPointF place) {
    if (button != Qt::LeftButton)
        Do([&] { m_workbench.ClearKeyMarks(); });
    else if (const auto key = KeyboardLayout::KeyAt(place))
        Do([&] { m_workbench.ToggleKey(*key); });
}

void frmMain::picKeyboard_MouseMove(QPointF place) {
    m_fretLabelLit = false;
    ShowHighlights();
    PointAt({}, KeyboardLayout::KeyAt(place));
}

void frmMain::picKeyboard_MouseLeave() {
    PointAt({}, {});
}

void frmMain::PointAt(std::optional<BoardPlace> place, std::optional<int> key) {
    if (m_pointed == place && m_pointedKey == key)
        return;
    m_pointed = place;
    m_pointedKey = key;
    ShowInstruments();
    ShowHint();
}

void frmMain::Label3_Click(int index) {
    DoQuietly([&] { m_workbench.PressFretNumber(index + 1); });
}

void frmMain::Label3_MouseMove(int index) {
    LastFretLabel = index;
    m_fretLabelLit = true;
    m_stringLabelLit = false;
    ShowHighlights();
}

void frmMain::Label6_MouseDown(int index, Qt::MouseButton button) {
    if (button == Qt::RightButton) {
        DoQuietly([&] { m_workbench.ToggleMute(index); });
        return;
    }
    txtStr->setText(QString::number(index + 1));
    DoQuietly([&] { m_workbench.FindNextFret(txtStr->text()); });
}

void frmMain::Label6_MouseMove(int index) {
    LastStringLabel = index;
    m_stringLabelLit = true;
    ShowHighlights();
}

void frmMain::Form_MouseMove() {
    m_fretLabelLit = false;
    m_stringLabelLit = false;
    ShowHighlights();
}

void frmMain::mouseMoveEvent(QMouseEvent*) {
    Form_MouseMove();
}
