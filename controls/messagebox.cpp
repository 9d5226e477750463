#include "controls/messagebox.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>

#include <algorithm>

namespace {

constexpr qsizetype mostLetters = 20000; // Of a longer text the beginning is shown.
constexpr int textWidth = 500;           // In pixels, on a screen that has them.

// Whether the box shows the text well by itself, in lines of that width.
bool Fits(const QString& text, const QFontMetrics& metrics, QSize room) {
    if (text.size() > mostLetters / 10)
        return false;
    const QRect lines =
        metrics.boundingRect(QRect({}, QSize(room.width(), 0)), Qt::TextWordWrap, text);
    return lines.width() <= room.width() && lines.height() <= room.height();
}

QPlainTextEdit* ScrolledText(const QString& text, QSize size, QWidget* parent) {
    auto* shown = new QPlainTextEdit(
        text.size() > mostLetters ? text.left(mostLetters) + QChar(0x2026) : text, parent);
    shown->setObjectName(QStringLiteral("LongText"));
    shown->setReadOnly(true);
    shown->setTabChangesFocus(true);
    shown->setFixedSize(size);
    return shown;
}

} // namespace

MessageBox::MessageBox(QWidget* parent) : QMessageBox(parent) {
    setTextFormat(Qt::PlainText);
}

MessageBox::MessageBox(Icon icon, const QString& title, const QString& text,
                       StandardButtons buttons, QWidget* parent)
    : MessageBox(parent) {
    setIcon(icon);
    setWindowTitle(title);
    setText(text);
    setStandardButtons(buttons);
}

void MessageBox::setVisible(bool visible) {
    if (visible && !isVisible())
        MakeRoomForText();
    QMessageBox::setVisible(visible);
}

void MessageBox::MakeRoomForText() {
    auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    const QSize screenSize = screen()->availableGeometry().size();
    const QSize room(std::min(textWidth, screenSize.width() / 2), screenSize.height() / 2);
    if (label == nullptr || label->isHidden() || Fits(text(), label->fontMetrics(), room))
        return;
    delete layout()->replaceWidget(label, ScrolledText(text(), room, this));
    label->hide();
}
