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
    Handle(panel->picKeyboard, &TwipPicture::MouseDown, this, &frmMain::picKeyboard_MouseDown);
    Handle(panel->picKeyboard, &TwipPicture::MouseMove, this, &frmMain::picKeyboard_MouseMove);
    for (TwipPicture* picture :
         std::initializer_list<TwipPicture*>{panel->picStrings, panel->picKeyboard})
        Handle(picture, &TwipPicture::MouseLeave, this, [this] { PointAt({}); });
    for (QWidget* watched :
         std::initializer_list<QWidget*>{panel->picStrings, panel->picKeyboard, lblChord})
        watched->installEventFilter(this);
    for (int index = 0; index < InstrumentPanel::fretLabels; ++index) {
        HotLabel* label = panel->Label3[static_cast<std::size_t>(index)];
        Handle(label, &HotLabel::MouseDown, this, [this, index] { Label3_Click(index); });
        Handle(label, &HotLabel::MouseMove, this, [this, index] { Label3_MouseMove(index); });
        Handle(label, &HotLabel::MouseLeave, this, &frmMain::Form_MouseMove);
    }
    for (int row = 0; row < stringCount; ++row) {
        HotLabel* label = panel->Label6[static_cast<std::size_t>(row)];
        Handle(label, &HotLabel::MouseDown, this,
               [this, row](Qt::MouseButton button) { Label6_MouseDown(row, button); });
        Handle(label, &HotLabel::MouseMove, this, [this, row] { Label6_MouseMove(row); });
        Handle(label, &HotLabel::MouseLeave, this, &frmMain::Form_MouseMove);
    }
}

bool frmMain::IsOnBarre(double x) const {
    const auto barre = m_workbench.ShownBarre();
    return barre && LayoutOfFretboard(m_state).IsOnBarre(*barre, x);
}

void frmMain::picStrings_MouseDown(Qt::MouseButton button, QPointF place) {
    if (button == Qt::RightButton) {
        const bool wipes = m_workbench.HasFingers();
        DoQuietly([&] { m_workbench.ClearFretboard(); });
        return PointAt({.wiped = wipes});
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
    PointAt({.place = free && row && fret ? std::optional(BoardPlace{*row, *fret}) : std::nullopt});
    const auto barre = m_workbench.ShownBarre();
    if (BarreDragging && barre)
        DoQuietly([&] { m_workbench.MoveBarre(layout.BarreStep(*barre, place.x())); });
}

void frmMain::picStrings_MouseUp() {
    BarreDragging = false;
    m_history.EndGesture();
}

void frmMain::picKeyboard_MouseDown(Qt::MouseButton button, QPointF place) {
    if (button != Qt::LeftButton)
        Do([&] { m_workbench.ClearKeyMarks(); });
    else if (const auto key = KeyboardLayout().KeyAt(place))
        Do([&] { m_workbench.ToggleKey(*key); });
}

void frmMain::picKeyboard_MouseMove(QPointF place) {
    Light(false, m_stringLabelLit);
    PointAt({.key = KeyboardLayout().KeyAt(place)});
}

void frmMain::PointAt(const Pointed& pointed) {
    if (m_pointed == pointed)
        return;
    m_pointed = pointed;
    ShowInstruments();
    ShowHint();
}

void frmMain::Label3_Click(int index) {
    DoQuietly([&] { m_workbench.PressFretNumber(index + 1); });
}

void frmMain::Label3_MouseMove(int index) {
    LastFretLabel = index;
    Light(true, false);
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
    Light(m_fretLabelLit, true);
}

void frmMain::Form_MouseMove() {
    Light(false, false);
}

void frmMain::Light(bool fretLabel, bool stringLabel) {
    m_fretLabelLit = fretLabel;
    m_stringLabelLit = stringLabel;
    ShowLabels();
}

bool frmMain::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) { // The pointer is a dialog's now.
        Form_MouseMove();
        PointAt({});
    }
    return QWidget::event(event);
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lblChord && (event->type() == QEvent::Enter || event->type() == QEvent::Leave))
        PointAt({.chord = event->type() == QEvent::Enter});
    const auto* picture = qobject_cast<TwipPicture*>(watched);
    if (picture == nullptr || event->type() != QEvent::ToolTip)
        return QWidget::eventFilter(watched, event);
    Pointed resting = m_pointed;
    resting.restsOn = picture;
    PointAt(resting);
    return true;
}
