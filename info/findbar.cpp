#include "info/findbar.h"

#include "controls/colours.h"
#include "controls/handle.h"
#include "info/wordsearch.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int gap = 8;
constexpr int lettersAcross = 22;

} // namespace

FindBar::FindBar(QPlainTextEdit& text, Tongue tongue, QWidget* parent)
    : QWidget(parent),
      lblFindKey(new QLabel(this)),
      txtFind(new QLineEdit(this)),
      lblFound(new QLabel(this)),
      m_text(text),
      m_tongue(tongue) {
    setObjectName(QStringLiteral("picFind"));
    txtFind->setObjectName(QStringLiteral("txtFind"));
    const QString tip =
        Phrase{QStringLiteral("Найти: Enter - дальше, Shift+Enter - назад, Esc - убрать поле"),
               QStringLiteral("Find: Enter goes on, Shift+Enter back, Esc puts the field away")}
            .In(tongue);
    txtFind->setToolTip(tip);
    txtFind->setAccessibleName(tip);
    txtFind->setFixedWidth(fontMetrics().averageCharWidth() * lettersAcross);
    lblFound->setObjectName(QStringLiteral("lblFound"));
    lblFindKey->setObjectName(QStringLiteral("lblFindKey"));
    lblFindKey->setText(
        Phrase{QStringLiteral("Ctrl+F - найти"), QStringLiteral("Ctrl+F: find")}.In(tongue));
    for (QLabel* label : {lblFound, lblFindKey})
        label->setTextFormat(Qt::PlainText);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(gap);
    row->addWidget(lblFindKey);
    row->addWidget(txtFind);
    row->addWidget(lblFound, 1);
    Handle(txtFind, &QLineEdit::textChanged, this, &FindBar::txtFind_Change);
    ShowField(false);
}

void FindBar::ShowField(bool show) {
    m_open = show;
    lblFindKey->setVisible(!show);
    txtFind->setVisible(show);
    lblFound->setVisible(show);
}

void FindBar::Open() {
    if (!m_open) {
        m_folded = Folded(m_text.toPlainText());
        if (!m_text.viewport()->rect().contains(m_text.cursorRect()))
            m_text.setTextCursor(m_text.cursorForPosition({0, 0})); // From where one reads.
        ShowField(true);
        txtFind_Change();
    }
    txtFind->setFocus();
    txtFind->selectAll();
}

void FindBar::Close() {
    m_hits.clear();
    m_text.setExtraSelections({});
    m_text.setFocus();
    ShowField(false);
}

void FindBar::txtFind_Change() {
    m_hits = FindWords(m_folded, txtFind->text());
    const auto next =
        std::lower_bound(m_hits.begin(), m_hits.end(), m_text.textCursor().selectionStart());
    m_shown = next == m_hits.end() ? 0 : static_cast<std::size_t>(next - m_hits.begin());
    Mark();
    ShowHit();
}

void FindBar::GoOn(bool backward) {
    if (m_hits.empty())
        return;
    m_shown = (m_shown + (backward ? m_hits.size() - 1 : 1)) % m_hits.size();
    ShowHit();
}

void FindBar::ShowHit() {
    if (m_hits.empty()) {
        const Phrase none{QStringLiteral("не найдено"), QStringLiteral("not found")};
        lblFound->setText(txtFind->text().isEmpty() ? QString() : none.In(m_tongue));
        QTextCursor before = m_text.textCursor();
        before.setPosition(before.selectionStart()); // What is selected would look like a hit.
        m_text.setTextCursor(before);
        return;
    }
    QTextCursor hit(m_text.document());
    hit.setPosition(m_hits[m_shown]);
    hit.setPosition(m_hits[m_shown] + static_cast<int>(txtFind->text().size()),
                    QTextCursor::KeepAnchor);
    const int top = m_text.verticalScrollBar()->value();
    m_text.setTextCursor(hit);
    if (m_text.verticalScrollBar()->value() != top)
        m_text.centerCursor(); // With what stands around it.
    const Phrase place{QStringLiteral("%1 из %2"), QStringLiteral("%1 of %2")};
    const QString count = QString::number(m_hits.size()) + (m_hits.size() == mostHits ? u"+" : u"");
    lblFound->setText(place.In(m_tongue).arg(m_shown + 1).arg(count));
}

void FindBar::Mark() {
    QTextEdit::ExtraSelection mark;
    mark.format.setBackground(Colours::found);
    mark.format.setForeground(Colours::text);
    mark.cursor = QTextCursor(m_text.document());
    QList<QTextEdit::ExtraSelection> marks;
    for (const int hit : m_hits) {
        mark.cursor.setPosition(hit);
        mark.cursor.setPosition(hit + static_cast<int>(txtFind->text().size()),
                                QTextCursor::KeepAnchor);
        marks += mark;
    }
    m_text.setExtraSelections(marks);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        GoOn(event->modifiers().testFlag(Qt::ShiftModifier));
        break;
    case Qt::Key_Escape:
        Close();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}
