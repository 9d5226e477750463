// Pointing in the main window: presses on the pictures and on the labels around them, and what
// lights up under the pointer.
#include "controls/handle.h"
#include "pictures/keyboardlayout.h"
#include "workbench/frmmain.h"
#include "workbench/views.h"

void frmMain::ConnectPoint() {
    Handle(panel->picStrings, &TwipPicture::MouseDown, this, &frmMain::picStrings_MouseDown);
    Handle(panel->picStrings, &TwipPicture::MouseMove, this, &frmMain::picStrings_MouseMove);
    Handle(panel->picStrings, &TwipPicture::MouseUp, this, &frmMain::picStrings_MouseUp);
    Handle(panel->picStrings, &TwipPicture::MouseLeave, this, &frmMain::picStrings_MouseLeave);
    Handle(panel->picKeyboard, &TwipPicture::MouseDown, this, &frmMain::picKeyboard_MouseDown);
    Handle(panel->picKeyboard, &TwipPicture::MouseMove, this, &frmMain::picKeyboard_MouseMove);
    Handle(panel->picKeyboard, &TwipPicture::MouseLeave, this, &frmMain::picKeyboard_MouseLeave);
    for (int index = 0; index < InstrumentPanel::fretLabels; ++index) {
        HotLabel* label = panel->Label3[static_cast<std::size_t>(index)];
        Handle(label, &HotLabel::MouseDown, this, [this, index] { Label3_Click(index); });
        Handle(label, &HotLabel::MouseMove, this, [this, index] { Label3_MouseMove(index); });
        Handle(label, &HotLabel::MouseLeave, this, &frmMain::Label3_MouseLeave);
    }
    for (int row = 0; row < stringCount; ++row) {
        HotLabel* label = panel->Label6[static_cast<std::size_t>(row)];
        Handle(label, &HotLabel::MouseDown, this,
               [this, row](Qt::MouseButton button) { Label6_MouseDown(row, button); });
        Handle(label, &HotLabel::MouseMove, this, [this, row] { Label6_MouseMove(row); });
        Handle(label, &HotLabel::MouseLeave, this, &frmMain::Label6_MouseLeave);
    }
}

bool frmMain::IsOnBarre(double x) const {
    const auto barre = m_workbench.ShownBarre();
    return barre && LayoutOfFretboard(m_state).IsOnBarre(*barre, x);
}

void frmMain::picStrings_MouseDown(Qt::MouseButton button, QPointF place) {
    if (button == Qt::RightButton) {
        DoQuietly([&] { m_workbench.ClearFretboard(); });
        return;
    }
    if (IsOnBarre(place.x())) {
        BarreDragging = true;
        m_history.BeginGesture();
        return;
    }
    const auto fret = LayoutOfFretboard(m_state).FretAt(place.x());
    DoQuietly([&] { m_workbench.PressString(FretboardLayout::RowAt(place.y()), fret); });
}

void frmMain::picStrings_MouseMove(QPointF place) {
    Form_MouseMove();
    const FretboardLayout layout = LayoutOfFretboard(m_state);
    const auto row = FretboardLayout::RowAt(place.y());
    const auto fret = layout.FretAt(place.x());
    const bool free = !BarreDragging && !IsOnBarre(place.x());
    PointAt(free && row && fret ? std::optional(BoardPlace{*row, *fret}) : std::nullopt, {});
    const auto barre = m_workbench.ShownBarre();
    if (BarreDragging && barre)
        DoQuietly([&] { m_workbench.MoveBarre(layout.BarreStep(*barre, place.x())); });
}

void frmMain::picStrings_MouseUp() {
    BarreDragging = false;
    m_history.EndGesture();
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
    ShowLabels();
    PointAt({}, KeyboardLayout::KeyAt(place));
}

void frmMain::picKeyboard_MouseLeave() {
    PointAt({}, {});
}

void frmMain::PointAt(std::optional<BoardPlace> place, std::optional<int> key) {
    if (m_pointed == place && m_pointedKey == key && m_restsOn == nullptr)
        return;
    m_restsOn = nullptr;
    m_pointed = place;
    m_pointedKey = key;
    ShowInstruments();
    ShowHint();
}

void frmMain::RestOn(const TwipPicture* picture) {
    m_restsOn = picture;
    ShowHint();
}

void frmMain::Label3_Click(int index) {
    DoQuietly([&] { m_workbench.PressFretNumber(index + 1); });
}

void frmMain::Label3_MouseMove(int index) {
    LastFretLabel = index;
    m_fretLabelLit = true;
    m_stringLabelLit = false;
    ShowLabels();
}

void frmMain::Label3_MouseLeave() {
    m_fretLabelLit = false;
    ShowLabels();
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
    ShowLabels();
}

void frmMain::Label6_MouseLeave() {
    m_stringLabelLit = false;
    ShowLabels();
}

void frmMain::Form_MouseMove() {
    m_fretLabelLit = false;
    m_stringLabelLit = false;
    ShowLabels();
}

void frmMain::mouseMoveEvent(QMouseEvent*) {
    Form_MouseMove();
}

bool frmMain::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) { // The pointer is a dialog's now.
        Form_MouseMove();
        PointAt({}, {});
    }
    return QWidget::event(event);
}
