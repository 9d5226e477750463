// A message box for any text: shown as it stands, never as mark-up, and scrolled or cut where it
// would not fit on the screen. QMessageBox::text stays whole.
#pragma once

#include <QMessageBox>

class MessageBox : public QMessageBox {
    Q_OBJECT

public:
    explicit MessageBox(QWidget* parent = nullptr);
    MessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons,
               QWidget* parent = nullptr);

    void setVisible(bool visible) override;

private:
    void MakeRoomForText();
};
