#include "controls/theme.h"

#include "controls/colours.h"

#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

namespace {

// The toolkit's own style but for two things: its default button looks the same with the focus
// and without, and its frames are pictures, for which a program without any other would have to
// load the readers of all kinds of pictures.
class Style : public QProxyStyle {
public:
    Style() : QProxyStyle(QStringLiteral("Fusion")) {}

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        QProxyStyle::drawControl(element, option, painter, widget);
        if (element != CE_PushButton || !option->state.testFlag(State_HasFocus))
            return;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(Colours::focus, 2));
        painter->drawRoundedRect(QRectF(option->rect).adjusted(1, 1, -1, -1), 2, 2);
        painter->restore();
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element != PE_FrameGroupBox)
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Colours::line);
        painter->setBrush(Colours::frame);
        const auto* box = qobject_cast<const QGroupBox*>(widget);
        const bool titled = box != nullptr && !box->title().isEmpty();
        const int above = titled ? option->fontMetrics.height() + 3 : 3;
        painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, above + 0.5, -0.5, -0.5), 3, 3);
        painter->restore();
    }
};

QPalette ThemePalette() {
    QPalette palette(Colours::buttonFace.Now(), Colours::window.Now());
    palette.setColor(QPalette::WindowText, Colours::text);
    palette.setColor(QPalette::Text, Colours::text);
    palette.setColor(QPalette::ButtonText, Colours::text);
    palette.setColor(QPalette::Base, Colours::field);
    palette.setColor(QPalette::AlternateBase, Colours::fieldStripe);
    palette.setColor(QPalette::Light, Colours::buttonLight);
    palette.setColor(QPalette::Midlight, Colours::window);
    palette.setColor(QPalette::Mid, Colours::line);
    palette.setColor(QPalette::Dark, Colours::buttonShadow);
    palette.setColor(QPalette::Shadow, Colours::buttonDark);
    palette.setColor(QPalette::Highlight, Colours::selection);
    palette.setColor(QPalette::HighlightedText, Colours::selectionText);
    palette.setColor(QPalette::ToolTipBase, Colours::toolTip);
    palette.setColor(QPalette::ToolTipText, Colours::text);
    palette.setColor(QPalette::PlaceholderText, Colours::quietText);
    palette.setColor(QPalette::Link, Colours::focus);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, Colours::mutedText);
    return palette;
}

} // namespace

void ApplyTheme() {
    QApplication::setStyle(new Style);
    ShowScheme(Scheme::Light);
}

void ShowScheme(Scheme scheme) {
    Colours::UseScheme(scheme);
    QApplication::setPalette(ThemePalette());
}
