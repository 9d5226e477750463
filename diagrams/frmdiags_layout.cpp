// The sheet's controls and where they stand.
#include "diagrams/frmdiags.h"

#include "controls/handle.h"
#include "controls/icons.h"
#include "controls/newcontrols.h"
#include "controls/placing.h"
#include "controls/twips.h"

#include <QScreen>
#include <QShortcut>
#include <QStyle>

namespace {

constexpr int gap = 8;
constexpr double pagesShare = 0.48;

GoldButton* Button(const QString& name, Icon icon, QWidget* parent) {
    auto* button = new GoldButton(name, parent);
    button->SetCaption(QString());
    button->SetPicture(MakeIcon(icon));
    return button;
}

} // namespace

void frmDiags::CreateControls() {
    cmdAdd = Button(QStringLiteral("cmdAdd"), Icon::Add, this);
    cmdDel = Button(QStringLiteral("cmdDel"), Icon::Remove, this);
    cmdClear = Button(QStringLiteral("cmdClear"), Icon::Clear, this);
    cmdMake = Button(QStringLiteral("cmdMake"), Icon::WriteList, this);
    lstMain = new ClickList(QStringLiteral("lstMain"), this);
    GoldButton1 = Button(QStringLiteral("GoldButton1"), Icon::Open, this);
    cmdSave = Button(QStringLiteral("cmdSave"), Icon::Save, this);
    cmdCut = Button(QStringLiteral("cmdCut"), Icon::Cut, this);
    cmdCopy = Button(QStringLiteral("cmdCopy"), Icon::Copy, this);
    cmdPast = Button(QStringLiteral("cmdPast"), Icon::Paste, this);
    GoldButton2 = Button(QStringLiteral("GoldButton2"), Icon::Dashes, this);
    Text1 = new QLineEdit(QStringLiteral("60"), this);
    Text1->setObjectName(QStringLiteral("Text1"));
    cmdImport = Button(QStringLiteral("cmdImport"), Icon::Import, this);
    cmdExport = Button(QStringLiteral("cmdExport"), Icon::Export, this);
    cmdPrint = Button(QStringLiteral("cmdPrint"), Icon::Print, this);
    picPage = new PicPage(QStringLiteral("picPage"), this);
    txtMain = new SheetText(this);
    lblRows = NewLabel(u"lblRows", this);
    lblPages = NewLabel(u"lblPages", this);
    lblText = NewLabel(u"lblText", this);
    lblLength = NewLabel(u"lblLength", this);
    lblSaved = new QLabel(this);
    lblSaved->setObjectName(QStringLiteral("lblSaved"));
    lblSaved->setTextFormat(Qt::PlainText);
}

// The list with its buttons on the left, the text with its own on the right.
void frmDiags::LayOut() {
    const QSize button = cmdAdd->sizeHint();
    constexpr int lengthLetters = 16; // In any of the languages.
    const int lengthWidth = fontMetrics().averageCharWidth() * lengthLetters;
    int x = gap;
    const auto place = [&](QWidget* control, int width) {
        control->setGeometry(x, gap, width, button.height());
        x += width + gap / 2;
    };
    for (GoldButton* control : {cmdAdd, cmdDel, cmdClear, cmdMake})
        place(control, button.width());
    const int headings = gap + button.height() + gap;
    const int heading = fontMetrics().height();
    const int top = headings + heading + Lengths::tight;
    const int listWidth = x - gap - gap / 2;
    lblRows->setGeometry(gap, headings, listWidth, heading);
    lstMain->setGeometry(gap, top, listWidth, 100);
    x += gap;
    picPage->move(x, top);
    for (GoldButton* control : {GoldButton1, cmdSave, cmdImport, cmdExport, cmdPrint})
        place(control, button.width());
    x += gap;
    for (GoldButton* control : {cmdCut, cmdCopy, cmdPast, GoldButton2})
        place(control, button.width());
    x += gap;
    place(lblLength, lengthWidth);
    place(Text1, fontMetrics().averageCharWidth() * 12);
    txtMain->move(picPage->x() + 100, top);
    setMinimumSize(x + gap, top + 200);
    const int letter = QFontMetrics(txtMain->font()).horizontalAdvance(u'0');
    resize(std::max(minimumWidth(), picPage->x() + letter * 110), 520);
}

void frmDiags::Form_Resize() {
    const double scale = PixelsPerTwip(*this);
    const auto pixels = [scale](int twips) { return qRound(twips * scale); };
    // The pages and the text share what the list leaves.
    const int shared = width() - picPage->x() - pixels(200) - gap;
    picPage->resize(static_cast<int>(shared * pagesShare), height() - picPage->y() - pixels(500));
    txtMain->move(picPage->x() + picPage->width() + gap, txtMain->y());
    txtMain->resize(width() - txtMain->x() - pixels(200), height() - txtMain->y() - pixels(500));
    lstMain->resize(lstMain->width(), height() - lstMain->y() - pixels(400));
    const auto over = [this](QWidget* heading, const QWidget* column) {
        heading->setGeometry(column->x(), lblRows->y(), column->width(), lblRows->height());
    };
    over(lblPages, picPage);
    over(lblText, txtMain);
    const int below = txtMain->y() + txtMain->height();
    lblSaved->setGeometry(txtMain->x(), below, txtMain->width(), height() - below);
}

void frmDiags::OpenBeside(const QRect& seen) {
    if (isMinimized())
        showNormal();
    if (!isVisible()) {
        // What the window manager will put above the sheet, as far as it is known yet.
        const QSize title(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
        const auto beside =
            PlaceBeside(seen, size() + title, minimumSize() + title, screen()->availableGeometry());
        if (!m_place && beside) {
            resize(beside->size() - title);
            m_place = beside->topLeft();
        }
        if (m_place)
            move(*m_place);
    }
    show();
    raise();
    activateWindow();
}

void frmDiags::closeEvent(QCloseEvent* event) {
    m_place = pos();
    QWidget::closeEvent(event);
}

void frmDiags::Connect() {
    Handle(cmdAdd, &GoldButton::Click, this, &frmDiags::cmdAdd_Click);
    Handle(cmdDel, &GoldButton::Click, this, &frmDiags::cmdDel_Click);
    Handle(cmdClear, &GoldButton::Click, this, &frmDiags::cmdClear_Click);
    Handle(cmdMake, &GoldButton::Click, this, &frmDiags::cmdMake_Click);
    Handle(cmdCut, &GoldButton::Click, this, &frmDiags::cmdCut_Click);
    Handle(cmdCopy, &GoldButton::Click, this, &frmDiags::cmdCopy_Click);
    Handle(cmdPast, &GoldButton::Click, this, &frmDiags::cmdPast_Click);
    Handle(GoldButton1, &GoldButton::Click, this, &frmDiags::GoldButton1_Click);
    Handle(GoldButton2, &GoldButton::Click, this, &frmDiags::GoldButton2_Click);
    Handle(cmdSave, &GoldButton::Click, this, &frmDiags::cmdSave_Click);
    Handle(lstMain, &ClickList::Clicked, this, &frmDiags::lstMain_Click);
    Handle(txtMain, &QPlainTextEdit::textChanged, lblSaved, &QLabel::clear);
    Handle(cmdExport, &GoldButton::Click, this, &frmDiags::cmdExport_Click);
    Handle(cmdImport, &GoldButton::Click, this, &frmDiags::cmdImport_Click);
    Handle(cmdPrint, &GoldButton::Click, this, &frmDiags::cmdPrint_Click);
    Handle(picPage, &PicPage::DiagramClicked, this, &frmDiags::picPage_Click);
    Handle(picPage, &PicPage::DiagramDoubleClicked, this, &frmDiags::picPage_DblClick);
    Handle(picPage, &PicPage::MenuAsked, this, &frmDiags::picPage_Menu);
    // Several changes of one command are seen together.
    m_preview.setSingleShot(true);
    Handle(&m_preview, &QTimer::timeout, this, &frmDiags::ShowPages);
    Handle(txtMain, &QPlainTextEdit::textChanged, this, [this] {
        m_preview.start(0);
        KeepSoon();
    });
    Handle(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, this,
           &frmDiags::cmdPrint_Click);
    Handle(new QShortcut(QKeySequence::Open, this), &QShortcut::activated, this,
           &frmDiags::GoldButton1_Click);
    Handle(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this,
           &frmDiags::cmdSave_Click);
}
