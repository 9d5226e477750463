// What About and the help have in common: the button that closes them, and the keys that do.
#pragma once

#include <QDialog>

class GoldButton;

class InfoWindow : public QDialog {
    Q_OBJECT

public:
    InfoWindow(const QString& name, QWidget* parent);

    void cmdOK_Click();

    GoldButton* cmdOK;

protected:
    // Enter closes as well, wherever the focus is not on a control that takes it.
    void keyPressEvent(QKeyEvent* event) override;
};
