// Making a window's controls: each is named as its member is, and lets the window see the pointer.
#pragma once

#include "controls/icons.h"
#include "controls/lengths.h"

#include <QString>

class GoldButton;
class QGroupBox;
class QLineEdit;
class QWidget;
class TextLabel;

constexpr int layoutGap = Lengths::gap;

GoldButton* NewCaptionButton(const char16_t* name, QWidget* parent);
GoldButton* NewPictureButton(const char16_t* name, Icon icon, QWidget* parent);
TextLabel* NewLabel(const char16_t* name, QWidget* parent);
QGroupBox* NewFrame(const char16_t* name, QWidget* parent);
QLineEdit* NewTextBox(const char16_t* name, const QString& text, QWidget* parent);

template <typename Layout>
Layout* Spaced(Layout* layout, int margin) {
    layout->setSpacing(layoutGap);
    layout->setContentsMargins(margin, margin, margin, margin);
    return layout;
}
