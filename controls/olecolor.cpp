#include "controls/olecolor.h"

#include <QApplication>
#include <QPalette>

namespace {

int Byte(quint32 value) {
    return static_cast<int>(value & 0xFF);
}

} // namespace

QColor OleColor::In(const QPalette& palette) const {
    if ((value & 0x80000000U) == 0)
        return QColor::fromRgb(qRgb(Byte(value), Byte(value >> 8), Byte(value >> 16)));
    switch (value & 0xFF) {
    case 5: // Window.
        return palette.color(QPalette::Base);
    case 8: // Window text.
        return palette.color(QPalette::Text);
    case 13: // Selection.
        return palette.color(QPalette::Highlight);
    case 14:
        return palette.color(QPalette::HighlightedText);
    case 16: // Button shadow.
        return palette.color(QPalette::Dark);
    case 17: // Disabled text.
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case 18: // Button text.
        return palette.color(QPalette::ButtonText);
    case 20: // Button highlight.
        return palette.color(QPalette::Light);
    case 21: // Dark shadow.
        return palette.color(QPalette::Shadow);
    case 22: // Light shadow.
        return palette.color(QPalette::Midlight);
    default: // 15 is the button's face.
        return palette.color(QPalette::Button);
    }
}

void RegisterOleColor() {
    static const bool once = [] {
        QMetaType::registerConverter<OleColor, QColor>(
            [](OleColor colour) { return colour.In(QApplication::palette()); });
        QMetaType::registerConverter<QColor, OleColor>([](const QColor& colour) {
            return OleColor::Rgb(colour.red(), colour.green(), colour.blue());
        });
        QMetaType::registerConverter<OleColor, quint32>(
            [](OleColor colour) { return colour.value; });
        QMetaType::registerConverter<quint32, OleColor>(
            [](quint32 value) { return OleColor{value}; });
        QMetaType::registerConverter<int, OleColor>(
            [](int value) { return OleColor{static_cast<quint32>(value)}; });
        return true;
    }();
    Q_UNUSED(once)
}
