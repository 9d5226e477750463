#include "controls/plaintext.h"

#include <QMessageBox>
#include <QTextDocument>

void Tell(const QString& title, const QString& text, QWidget* parent) {
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

QString PlainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped())
                                     : text;
}
