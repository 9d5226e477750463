#include "controls/plaintext.h"

#include "controls/messagebox.h"

void Tell(const QString& title, const QString& text, QWidget* parent) {
    MessageBox(QMessageBox::Information, title, text, QMessageBox::Ok, parent).exec();
}
