#include "diagrams/sheettext.h"

#include "controls/fixedfont.h"

#include <QKeyEvent>
#include <QMimeData>

namespace {

// As a document keeps it; toPlainText would make blanks of no-break spaces.
QString PlainLines(QString text) {
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

} // namespace

SheetText::SheetText(QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(QStringLiteral("txtMain"));
    setFont(FixedFont());
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabChangesFocus(false);
}

QString SheetText::Text() const {
    return PlainLines(document()->toRawText());
}

QString SheetText::SelectedText() const {
    return PlainLines(textCursor().selectedText());
}

void SheetText::Insert(const QString& text) {
    insertPlainText(text);
    ensureCursorVisible();
}

void SheetText::keyPressEvent(QKeyEvent* event) {
    const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (tab && event->modifiers().testFlag(Qt::ControlModifier))
        // A text box of its own keeps every Tab. NOLINTNEXTLINE(bugprone-parent-virtual-call)
        QAbstractScrollArea::focusNextPrevChild(!event->modifiers().testFlag(Qt::ShiftModifier));
    else
        QPlainTextEdit::keyPressEvent(event);
}

QMimeData* SheetText::createMimeDataFromSelection() const {
    auto* mime = new QMimeData;
    mime->setText(SelectedText());
    return mime;
}
