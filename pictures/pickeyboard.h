// The piano on the screen: three octaves of keys and the marks on them.
#pragma once

#include "controls/twippicture.h"
#include "pictures/instrumentviews.h"

#include <QPixmap>

class PicKeyboard : public TwipPicture {
public:
    explicit PicKeyboard(QWidget* parent = nullptr);

    void Show(const KeyboardView& view);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    KeyboardView m_view;
    QPixmap m_picture; // The keys as they are; painted anew where the view changed.
};
