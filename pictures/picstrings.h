// The fretboard on the screen: neck, strings, finger marks and barre.
#pragma once

#include "controls/twippicture.h"
#include "pictures/ringpainting.h"

#include <QPixmap>

// Its parts are the rows from the top, then the barre.
class PicStrings : public TwipPicture {
public:
    explicit PicStrings(QWidget* parent = nullptr);

    void Show(const FretboardView& view);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    FretboardView m_view;
    RingStamps m_rings;
    QPixmap m_neck; // What changes only with the size, the order of the strings and the hand.
};
