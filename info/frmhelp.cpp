#include "info/frmhelp.h"

#include "controls/fixedfont.h"
#include "controls/goldbutton.h"
#include "controls/handle.h"
#include "controls/twips.h"
#include "controls/windowtexts.h"
#include "core/mdlmain.h"
#include "info/findbar.h"
#include "info/frmabout.h"
#include "info/helptext.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace {

constexpr int textColumns = 80;
constexpr int textLines = 32;

// In twips: the text's place, and what the window's inside measures more than the text.
constexpr int margin = 50;
constexpr int besideText = 200;
constexpr int belowText = 1000;
constexpr int buttonGap = 100;

constexpr std::array texts{
    Ours(u"frmHelp", TextPlace::Caption, u"Помощь", u"Help"),
    Ours(u"Text1", TextPlace::Name, u"Текст справки", u"Help text"),
    OfFile(u"Command1", TextPlace::Caption, 1, u"О программе"),
    Ours(u"cmdOK", TextPlace::Description, u"Закрыть окно", u"Close the window"),
};

} // namespace

frmHelp::frmHelp(const AppState& state, std::function<ChordRows()> chordRows, Author author,
                 QWidget* parent)
    : InfoWindow(QStringLiteral("frmHelp"), parent),
      Text1(new QPlainTextEdit(this)),
      Command1(new GoldButton(QStringLiteral("Command1"), this)),
      picFind(new FindBar(*Text1, state.InterfaceTongue(), this)),
      m_state(state),
      m_chordRows(std::move(chordRows)),
      m_author(std::move(author)) {
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setFont(FixedFont());
    Text1->setReadOnly(true);
    Text1->setUndoRedoEnabled(false);
    Text1->setTabChangesFocus(true);
    // With a caret, so that a screen reader can follow the keyboard through the text.
    Text1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Handle(Command1, &GoldButton::Click, this, &frmHelp::Command1_Click);
    setTabOrder(Text1, picFind->txtFind);
    setTabOrder(picFind->txtFind, Command1);
    setTabOrder(Command1, cmdOK);
    Form_Load();
    OpenAtTextWidth();
    GoTo({});
    Text1->setFocus();
}

void frmHelp::Form_Load() {
    const Tongue tongue = m_state.InterfaceTongue();
    Text1->setPlainText(FitForTextBox(ReadHelp(m_state.AppPath), tongue));
    ApplyTexts(*this, texts, QStringLiteral("Help"), TextsInUse(m_state));
}

void frmHelp::GoTo(std::optional<Chapter> chapter) {
    m_firstLine = LineOf(Text1->toPlainText(), chapter, m_state.InterfaceTongue());
    ScrollTo(m_firstLine);
}

void frmHelp::ScrollTo(int line) {
    const QTextBlock block = Text1->document()->findBlockByNumber(line);
    Text1->setTextCursor(QTextCursor(block));
    Text1->verticalScrollBar()->setValue(block.firstLineNumber());
}

void frmHelp::showEvent(QShowEvent* event) {
    InfoWindow::showEvent(event);
    if (!event->spontaneous()) // Only now does the text know how much of it is in sight.
        ScrollTo(m_firstLine);
}

void frmHelp::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Find)) {
        picFind->Open();
    } else if (event->key() == Qt::Key_Escape && picFind->IsOpen()) {
        picFind->Close();
    } else {
        InfoWindow::keyPressEvent(event);
    }
}

void frmHelp::Command1_Click() {
    if (m_about.isNull()) {
        m_about = new frmAbout(m_state, m_chordRows(), m_author, this);
        m_about->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_about->show();
    m_about->raise();
    m_about->activateWindow();
}

void frmHelp::Form_Resize() {
    const double pixels = PixelsPerTwip(*this);
    const auto toPixels = [pixels](int twips) { return qRound(twips * pixels); };
    const QRect text(toPixels(margin), toPixels(margin),
                     std::max(0, width() - toPixels(besideText)),
                     std::max(0, height() - toPixels(belowText)));
    Text1->setGeometry(text);
    const int top = text.y() + text.height() + toPixels(buttonGap);
    const int right = text.x() + text.width();
    cmdOK->move(right - cmdOK->width(), top);
    Command1->move(cmdOK->x() - toPixels(buttonGap) - Command1->width(), top);
    picFind->setGeometry(text.x(), top, Command1->x() - toPixels(buttonGap) - text.x(),
                         cmdOK->height());
}

void frmHelp::resizeEvent(QResizeEvent* event) {
    InfoWindow::resizeEvent(event);
    Form_Resize();
}

// Wide enough for the columns of the text and the overhang of a last letter, and not larger
// than the screen.
void frmHelp::OpenAtTextWidth() {
    for (GoldButton* button : {cmdOK, Command1})
        button->resize(
            button->sizeHint().expandedTo(QSize(fontMetrics().averageCharWidth() * 14, 0)));
    const double pixels = PixelsPerTwip(*this);
    const QSize around(qRound(besideText * pixels), qRound(belowText * pixels));
    const QFontMetricsF letters(Text1->font());
    const double edges = 2 * (Text1->document()->documentMargin() + Text1->frameWidth());
    const double bar = Text1->verticalScrollBar()->sizeHint().width();
    const QSize text(qCeil(letters.horizontalAdvance(QString(textColumns + 1, u'0')) + edges + bar),
                     qCeil(letters.lineSpacing() * textLines + edges));
    const int buttons = cmdOK->width() + Command1->width() + around.width() + around.width();
    setMinimumSize(buttons, around.height() * 3);
    resize((around + text).boundedTo(screen()->availableGeometry().size() * 0.9));
    Form_Resize();
}
