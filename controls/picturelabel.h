// A label that shows a picture in the colours of the scheme in use.
#pragma once

#include "controls/icons.h"

#include <QLabel>

class PictureLabel : public QLabel {
    Q_OBJECT

public:
    PictureLabel(const QString& name, Icon icon, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_picture;
};
