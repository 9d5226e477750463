#include "info/infowindow.h"

#include "controls/goldbutton.h"

#include <QKeyEvent>

InfoWindow::InfoWindow(const QString& name, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      cmdOK(new GoldButton(QStringLiteral("cmdOK"), this)) {
    setObjectName(name);
    cmdOK->SetCaption(QStringLiteral("OK"));
    connect(cmdOK, &GoldButton::Click, this, &InfoWindow::cmdOK_Click);
}

void InfoWindow::cmdOK_Click() {
    close();
}

void InfoWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        cmdOK_Click();
    else
        QDialog::keyPressEvent(event);
}
