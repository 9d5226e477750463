// The main window's controls and where they stand: choose, see, try, hear, write down, from
// the left to the right.
#include "workbench/frmmain.h"

#include "controls/colours.h"
#include "controls/handle.h"
#include "controls/icons.h"
#include "controls/upscrollbar.h"
#include "music/spelling.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QScreen>

namespace {

constexpr int gap = 8; // The grid of all distances.

GoldButton* CaptionButton(const char16_t* name, QWidget* parent) {
    return new GoldButton(QString::fromUtf16(name), parent);
}

GoldButton* PictureButton(const char16_t* name, Icon icon, QWidget* parent) {
    auto* button = CaptionButton(name, parent);
    button->SetCaption(QString());
    button->SetPicture(MakeIcon(icon));
    return button;
}

QLabel* Label(const char16_t* name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromUtf16(name));
    label->setMouseTracking(true);
    return label;
}

QGroupBox* Frame(const char16_t* name, QWidget* parent) {
    auto* frame = new QGroupBox(parent);
    frame->setObjectName(QString::fromUtf16(name));
    frame->setMouseTracking(true);
    return frame;
}

template <typename Layout>
Layout* Spaced(Layout* layout, int margin) {
    layout->setSpacing(gap);
    layout->setContentsMargins(margin, margin, margin, margin);
    return layout;
}

} // namespace

void frmMain::CreateControls() {
    setMouseTracking(true);
    Frame1 = Frame(u"Frame1", this);
    lstBase = new ListBox(QStringLiteral("lstBase"), Frame1);
    lstType = new ListBox(QStringLiteral("lstType"), Frame1);
    lstLad = new ListBox(QStringLiteral("lstLad"), Frame1);
    Label5 = Label(u"Label5", Frame1);
    txtFind = new QLineEdit(Frame1);
    txtFind->setObjectName(QStringLiteral("txtFind"));
    cmdFind = PictureButton(u"cmdFind", Icon::Find, Frame1);

    Label1 = Label(u"Label1", this);
    lblChord = Label(u"lblChord", this);
    cmdFindChord = PictureButton(u"cmdFindChord", Icon::NameChord, this);
    panel = new InstrumentPanel(this);
    Label2 = Label(u"Label2", this);
    lblKeys = Label(u"lblKeys", this);
    Label7 = Label(u"Label7", this);
    lblNoS = Label(u"lblNoS", this);

    Frame2 = Frame(u"Frame2", this);
    txtStr = new QLineEdit(QStringLiteral("1"), Frame2);
    txtStr->setObjectName(QStringLiteral("txtStr"));
    VScroll3 = new UpScrollBar(QStringLiteral("VScroll3"), 1, stringCount, Frame2);
    cmdFindNew = CaptionButton(u"cmdFindNew", Frame2);
    Frame3 = Frame(u"Frame3", this);
    cmdMakeBarre = CaptionButton(u"cmdMakeBarre", Frame3);
    lstBarre = new DropDown(QStringLiteral("lstBarre"), Frame3);
    lstLadBarre = new DropDown(QStringLiteral("lstLadBarre"), Frame3);
    Command1 = PictureButton(u"Command1", Icon::LayFingers, Frame2);
    Command2 = PictureButton(u"Command2", Icon::ReadFingers, Frame2);

    Frame4 = Frame(u"Frame4", this);
    GoldButton1 = PictureButton(u"GoldButton1", Icon::PlayKeys, Frame4);
    GoldButton2 = PictureButton(u"GoldButton2", Icon::PlayStrings, Frame4);
    GoldButton3 = CaptionButton(u"GoldButton3", Frame4);
    lstWhat = new DropDown(QStringLiteral("lstWhat"), Frame4);
    lstTemp = new DropDown(QStringLiteral("lstTemp"), Frame4);

    Frame5 = Frame(u"Frame5", this);
    cmdNewDiag = PictureButton(u"cmdNewDiag", Icon::Diagrams, Frame5);
    cmdSettings = PictureButton(u"cmdSettings", Icon::Settings, Frame5);
    cmdHelp = PictureButton(u"cmdHelp", Icon::Help, Frame5);
}

void frmMain::LayOut() {
    auto* choose = Spaced(new QGridLayout(Frame1), gap);
    choose->addWidget(lstBase, 0, 0, 3, 1);
    choose->addWidget(lstType, 0, 1);
    choose->addWidget(Label5, 1, 1);
    choose->addWidget(lstLad, 2, 1);
    auto* find = Spaced(new QHBoxLayout, 0);
    find->addWidget(txtFind, 1);
    find->addWidget(cmdFind);
    choose->addLayout(find, 3, 0, 1, 2);
    choose->setRowStretch(0, 3);
    choose->setRowStretch(2, 2);
    choose->setColumnStretch(1, 1);
    const int letter = fontMetrics().horizontalAdvance(u'0');
    lstBase->setFixedWidth(letter * 7);
    lstType->setMinimumWidth(letter * 17);
    lstLad->setMinimumWidth(letter * 17);
    lstType->setMinimumHeight(lstType->fontMetrics().height() * 5);
    lstLad->setMinimumHeight(lstLad->fontMetrics().height() * 4);

    auto* chord = Spaced(new QHBoxLayout, 0);
    const int side = lblChord->fontMetrics().height() * 2;
    Label1->setPixmap(MakeIcon(Icon::PlayStrings).pixmap(QSize(side, side), devicePixelRatio()));
    QFont large = lblChord->font();
    large.setPointSizeF(large.pointSizeF() * 1.9);
    large.setBold(true);
    lblChord->setFont(large);
    lblChord->setTextFormat(Qt::PlainText);
    lblChord->setMinimumHeight(lblChord->fontMetrics().height());
    chord->addWidget(Label1);
    chord->addWidget(lblChord, 1);
    chord->addWidget(cmdFindChord);

    auto* notes = Spaced(new QGridLayout, 0);
    notes->addWidget(Label2, 0, 0);
    notes->addWidget(lblKeys, 0, 1);
    notes->addWidget(Label7, 1, 0);
    notes->addWidget(lblNoS, 1, 1, Qt::AlignLeft); // As wide as its text: it may be filled.
    notes->setColumnStretch(1, 1);
    for (QLabel* label : {lblKeys, lblNoS}) {
        label->setTextFormat(Qt::PlainText);
        label->setMinimumWidth(1); // A long list must not widen the window.
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
    }
    QPalette warning = lblNoS->palette();
    warning.setColor(QPalette::Window, Colours::behindMark);
    lblNoS->setPalette(warning);
    lblNoS->setContentsMargins(gap / 2, 0, gap / 2, 0);
    Label7->setMinimumHeight(lblNoS->sizeHint().height());

    auto* see = Spaced(new QVBoxLayout, 0);
    see->addLayout(chord);
    see->addWidget(panel, 1);
    see->addLayout(notes);

    auto* tryOut = Spaced(new QGridLayout(Frame2), gap);
    txtStr->setMaximumWidth(letter * 5);
    txtStr->setAlignment(Qt::AlignHCenter);
    VScroll3->setFixedHeight(std::max(txtStr->sizeHint().height(), 34));
    tryOut->addWidget(txtStr, 0, 0);
    tryOut->addWidget(VScroll3, 0, 1);
    tryOut->addWidget(cmdFindNew, 0, 2);
    auto* transfer = Spaced(new QHBoxLayout, 0);
    transfer->addWidget(Command1);
    transfer->addWidget(Command2);
    tryOut->addLayout(transfer, 1, 0, 1, 3);
    tryOut->setColumnStretch(2, 1);

    auto* barre = Spaced(new QGridLayout(Frame3), gap);
    barre->addWidget(cmdMakeBarre, 0, 0, 1, 2);
    barre->addWidget(lstBarre, 1, 0);
    barre->addWidget(lstLadBarre, 1, 1);

    auto* hear = Spaced(new QGridLayout(Frame4), gap);
    hear->addWidget(GoldButton1, 0, 0);
    hear->addWidget(GoldButton2, 0, 1);
    hear->addWidget(GoldButton3, 1, 0, 1, 2);
    hear->addWidget(lstWhat, 2, 0);
    hear->addWidget(lstTemp, 2, 1);

    auto* more = Spaced(new QHBoxLayout(Frame5), gap);
    more->addWidget(cmdNewDiag);
    more->addWidget(cmdSettings);
    more->addWidget(cmdHelp);

    auto* work = Spaced(new QVBoxLayout, 0);
    work->addWidget(Frame2);
    work->addWidget(Frame3);
    work->addWidget(Frame4);
    work->addWidget(Frame5);
    work->addStretch(1);

    auto* window = Spaced(new QHBoxLayout(this), gap + gap / 2);
    window->addWidget(Frame1);
    window->addLayout(see, 1);
    window->addLayout(work);
}

void frmMain::Connect() {
    Handle(lstBase, &ListBox::RowChosen, this, &frmMain::lstBase_Click);
    Handle(lstType, &ListBox::RowChosen, this, &frmMain::lstType_Click);
    Handle(lstType, &ListBox::RowDoubleClicked, this, &frmMain::lstType_DblClick);
    Handle(lstType, &ListBox::activated, this, &frmMain::lstType_DblClick);
    Handle(lstLad, &ListBox::RowChosen, this, &frmMain::lstLad_Click);
    Handle(lstBarre, &DropDown::RowChosen, this, &frmMain::lstBarre_Click);
    Handle(lstLadBarre, &DropDown::RowChosen, this, &frmMain::lstLadBarre_Click);
    Handle(VScroll3, &QScrollBar::valueChanged, this, &frmMain::VScroll3_Change);
    Handle(txtFind, &QLineEdit::returnPressed, this, &frmMain::cmdFind_Click);
    const auto click = [this](GoldButton* button, auto handler) {
        Handle(button, &GoldButton::Click, this, handler);
    };
    click(cmdFind, &frmMain::cmdFind_Click);
    click(cmdFindChord, &frmMain::cmdFindChord_Click);
    click(cmdFindNew, &frmMain::cmdFindNew_Click);
    click(cmdMakeBarre, &frmMain::cmdMakeBarre_Click);
    click(Command1, &frmMain::Command1_Click);
    click(Command2, &frmMain::Command2_Click);
    click(GoldButton1, &frmMain::GoldButton1_Click);
    click(GoldButton2, &frmMain::GoldButton2_Click);
    click(GoldButton3, &frmMain::GoldButton3_Click);
    click(cmdNewDiag, &frmMain::DiagramsAsked);
    click(cmdSettings, &frmMain::SettingsAsked);
    click(cmdHelp, [this] { Q_EMIT HelpAsked(true); });

    Handle(panel->picStrings, &TwipPicture::MouseDown, this, &frmMain::picStrings_MouseDown);
    Handle(panel->picStrings, &TwipPicture::MouseMove, this, &frmMain::picStrings_MouseMove);
    Handle(panel->picStrings, &TwipPicture::MouseUp, this, &frmMain::picStrings_MouseUp);
    Handle(panel->picStrings, &TwipPicture::MouseLeave, this, &frmMain::picStrings_MouseLeave);
    Handle(panel->picStrings, &TwipPicture::FocusMoved, this, &frmMain::ShowHint);
    Handle(panel->picKeyboard, &TwipPicture::MouseDown, this, &frmMain::picKeyboard_MouseDown);
    Handle(panel->picKeyboard, &TwipPicture::MouseMove, this, &frmMain::picKeyboard_MouseMove);
    Handle(panel->picKeyboard, &TwipPicture::MouseLeave, this, &frmMain::picKeyboard_MouseLeave);
    Handle(panel->picKeyboard, &TwipPicture::FocusMoved, this, &frmMain::ShowHint);
    panel->picStrings->SetParts([this] { return FretboardParts(); });
    panel->picKeyboard->SetParts([this] { return KeyboardParts(); });
    for (int index = 0; index < InstrumentPanel::fretLabels; ++index) {
        HotLabel* label = panel->Label3[static_cast<std::size_t>(index)];
        Handle(label, &HotLabel::MouseDown, this, [this, index] { Label3_Click(index); });
        Handle(label, &HotLabel::MouseMove, this, [this, index] { Label3_MouseMove(index); });
    }
    for (int row = 0; row < stringCount; ++row) {
        HotLabel* label = panel->Label6[static_cast<std::size_t>(row)];
        Handle(label, &HotLabel::MouseDown, this,
               [this, row](Qt::MouseButton button) { Label6_MouseDown(row, button); });
        Handle(label, &HotLabel::MouseMove, this, [this, row] { Label6_MouseMove(row); });
    }
    for (QWidget* widget : findChildren<QWidget*>())
        widget->installEventFilter(this);
    installEventFilter(this);
}

void frmMain::OpenAtBestSize() {
    constexpr double share = 0.8; // Of the screen.
    constexpr double step = 0.5;
    constexpr double largest = 3; // Beyond, the lists beside the pictures look lost.
    const QSize room = screen()->availableGeometry().size() * share;
    const QSize around = layout()->totalSizeHint() - panel->sizeHint();
    const auto windowAt = [&](double scale) {
        return (around + InstrumentPanel::SizeAt(scale)).expandedTo(layout()->totalMinimumSize());
    };
    double scale = 1;
    while (scale < largest && QRect({}, room).contains(QRect({}, windowAt(scale + step))))
        scale += step;
    resize(windowAt(scale).boundedTo(screen()->availableGeometry().size()));
}
