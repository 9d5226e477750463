#include "info/frmabout.h"

#include "controls/goldbutton.h"
#include "controls/handle.h"
#include "core/mdlmain.h"
#include "core/phrase.h"
#include "info/linklabel.h"

#include <QBoxLayout>
#include <QDesktopServices>
#include <QLabel>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int gap = 8;
constexpr int lettersAcross = 62;

QLabel* Label(int number, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("Label%1").arg(number));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QFrame* Line(int index, QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setObjectName(QStringLiteral("Line1(%1)").arg(index));
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    return line;
}

} // namespace

frmAbout::frmAbout(const AppState& state, const ChordRows& rows, const Author& author,
                   QWidget* parent)
    : InfoWindow(QStringLiteral("frmAbout"), parent),
      Label1(Label(1, this)),
      Label2(Label(2, this)),
      Label3(Label(3, this)),
      Label4(new LinkLabel(QStringLiteral("Label4"), this)),
      Label5(Label(5, this)),
      Label6(Label(6, this)),
      Label7(Label(7, this)),
      m_openLink([](const QUrl& link) { QDesktopServices::openUrl(link); }) {
    Handle(Label4, &LinkLabel::Click, this, &frmAbout::Label4_Click);
    Form_Load(state, rows, author);
    LayOut();
    cmdOK->setFocus();
}

void frmAbout::Form_Load(const AppState& state, const ChordRows& rows, const Author& author) {
    const QString count = QString::number(ChordCount(rows));
    ShowRussianTexts(author);
    Label7->setText(QStringLiteral("Всего уникальных аккордов: ") + count);
    if (!state.IsDefaultLanguage()) {
        ShowEnglishTexts(author);
        Label7->setText(QStringLiteral("Chords at this time: ") + count);
    }
    Label4->setText(author.email);
    Label4->setVisible(!author.email.isEmpty());
    const Tongue tongue = state.InterfaceTongue();
    Label4->setAccessibleName(
        Phrase{QStringLiteral("Написать автору: %1"), QStringLiteral("Write to the author: %1")}
            .In(tongue)
            .arg(author.email));
    cmdOK->setAccessibleDescription(
        Phrase{QStringLiteral("Закрыть окно"), QStringLiteral("Close the window")}.In(tongue));
}

void frmAbout::ShowRussianTexts(const Author& author) {
    setWindowTitle(QStringLiteral("О программе"));
    Label1->setText(QStringLiteral("Тонвик"));
    Label2->setText(QStringLiteral("Версия 2.1-beta, платформа: Win9x/NT"));
    Label3->setText(QStringLiteral("Автор программы: ") + author.name.russian +
                    QStringLiteral(", "));
    Label5->setText(QStringLiteral("Программа распространяется бесплатно и «как есть»: автор не "
                                   "несёт ответственности за последствия её использования."));
    Label6->setText(QStringLiteral("Присылайте, пожалуйста, свои замечания и пожелания. Я, по "
                                   "возможности, отвечу Вам."));
}

void frmAbout::ShowEnglishTexts(const Author& author) {
    setWindowTitle(QStringLiteral("About"));
    Label1->setText(QStringLiteral("Tonvik"));
    Label2->setText(QStringLiteral("Version 2.1-beta, platform Win9x/NT"));
    Label3->setText(QStringLiteral("Author of program: ") + author.name.english);
    Label5->setText(QStringLiteral("This program is distributed free of charge and \"as is\": its "
                                   "author accepts no responsibility for the consequences of using "
                                   "it."));
    Label6->setText(QStringLiteral(
        "If you have any questions, comments or suggestions, please mail them to me at the "
        "address above. I will try to fix any bugs or implement suggestions I receive (within "
        "reason)."));
}

void frmAbout::LayOut() {
    QFont title = Label1->font();
    title.setPointSizeF(title.pointSizeF() * 2);
    title.setBold(true);
    Label1->setFont(title);
    QFont count = Label7->font();
    count.setBold(true);
    Label7->setFont(count);
    Label5->setWordWrap(true);
    Label6->setWordWrap(true);

    auto* author = new QHBoxLayout;
    author->setSpacing(gap / 2);
    author->addWidget(Label3);
    author->addWidget(Label4);
    author->addStretch(1);
    auto* window = new QVBoxLayout(this);
    window->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
    window->setSpacing(gap);
    window->addWidget(Label1);
    window->addWidget(Label2);
    window->addWidget(Line(0, this));
    window->addLayout(author);
    window->addWidget(Label5);
    window->addWidget(Label6);
    window->addWidget(Line(1, this));
    window->addWidget(Label7);
    window->addWidget(cmdOK, 0, Qt::AlignRight);
    cmdOK->setMinimumWidth(fontMetrics().averageCharWidth() * 14);

    const int width = std::max(fontMetrics().averageCharWidth() * lettersAcross,
                               window->totalMinimumSize().width());
    setFixedSize(width, window->totalHeightForWidth(width));
}

void frmAbout::Label4_Click() {
    m_openLink(QUrl(QStringLiteral("mailto:") + Label4->text()));
}
