#include "controls/newcontrols.h"

#include "controls/goldbutton.h"
#include "controls/textlabel.h"

#include <QGroupBox>
#include <QLineEdit>

GoldButton* NewCaptionButton(const char16_t* name, QWidget* parent) {
    return new GoldButton(QString::fromUtf16(name), parent);
}

GoldButton* NewPictureButton(const char16_t* name, Icon icon, QWidget* parent) {
    auto* button = NewCaptionButton(name, parent);
    button->SetCaption(QString());
    button->SetPicture(MakeIcon(icon));
    return button;
}

TextLabel* NewLabel(const char16_t* name, QWidget* parent) {
    return new TextLabel(QString::fromUtf16(name), parent);
}

QGroupBox* NewFrame(const char16_t* name, QWidget* parent) {
    auto* frame = new QGroupBox(parent);
    frame->setObjectName(QString::fromUtf16(name));
    frame->setMouseTracking(true);
    return frame;
}

QLineEdit* NewTextBox(const char16_t* name, const QString& text, QWidget* parent) {
    auto* box = new QLineEdit(text, parent);
    box->setObjectName(QString::fromUtf16(name));
    return box;
}
