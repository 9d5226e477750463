#include "info/frmabout.h"

#include "controls/goldbutton.h"
#include "controls/handle.h"
#include "controls/windowtexts.h"
#include "core/mdlmain.h"
#include "core/phrase.h"
#include "info/linklabel.h"

#include <QBoxLayout>
#include <QDesktopServices>
#include <QLabel>
#include <QUrl>

#include <algorithm>
#include <array>

namespace {

constexpr int gap = 8;
constexpr int lettersAcross = 62;

constexpr std::array texts{
    Ours(u"frmAbout", TextPlace::Caption, u"О программе", u"About"),
    Ours(u"Label1", TextPlace::Caption, u"Тонвик", u"Tonvik"),
    Ours(u"Label2", TextPlace::Caption, u"Версия 2.1-beta, платформа: Win9x/NT",
         u"Version 2.1-beta, platform Win9x/NT"),
    Ours(u"Label5", TextPlace::Caption,
         u"Программа распространяется бесплатно и «как есть»: автор не несёт ответственности за "
         u"последствия её использования.",
         u"This program is distributed free of charge and \"as is\": its author accepts no "
         u"responsibility for the consequences of using it."),
    Ours(u"Label6", TextPlace::Caption,
         u"Присылайте, пожалуйста, свои замечания и пожелания. Я, по возможности, отвечу Вам.",
         u"If you have any questions, comments or suggestions, please mail them to me at the "
         u"address above. I will try to fix any bugs or implement suggestions I receive (within "
         u"reason)."),
    Ours(u"cmdOK", TextPlace::Description, u"Закрыть окно", u"Close the window"),
};

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
    const Tongue tongue = state.InterfaceTongue();
    ApplyTexts(*this, texts, {}, {tongue, std::nullopt});
    Label3->setText(
        Phrase{QStringLiteral("Автор программы: ") + author.name.russian + QStringLiteral(", "),
               QStringLiteral("Author of program: ") + author.name.english}
            .In(tongue));
    Label4->setText(author.email);
    Label4->setVisible(!author.email.isEmpty());
    Label4->setAccessibleName(
        Phrase{QStringLiteral("Написать автору: %1"), QStringLiteral("Write to the author: %1")}
            .In(tongue)
            .arg(author.email));
    Label7->setText(Phrase{QStringLiteral("Всего уникальных аккордов: "),
                           QStringLiteral("Chords at this time: ")}
                        .In(tongue) +
                    QString::number(ChordCount(rows)));
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
