// A label that shows a picture, as large as it is itself, in the colours of the scheme in use.
#pragma once

#include "controls/icons.h"

#include <QLabel>

class PictureLabel : public QLabel {
    Q_OBJECT

public:
    PictureLabel(const QString& name, Icon icon, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Draw();

    QIcon m_picture;
};
