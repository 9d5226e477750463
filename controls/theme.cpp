#include "controls/theme.h"

#include "controls/colours.h"
#include "controls/elided.h"
#include "controls/faces.h"
#include "controls/focusring.h"
#include "controls/lengths.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr int frameLetters = 24; // How far a caption widens its frame...
constexpr int buttonLetters = 22;
constexpr int optionLetters = 44; // ...or its option.

// The toolkit's own style but for three things: the focus looks the same on every control,
// captions of any length are cut instead of widening the window for ever, and its frames are
// pictures, for which a program without any other would have to load the readers of all kinds
// of pictures.
class Style : public QProxyStyle {
public:
    Style() : QProxyStyle(QStringLiteral("Fusion")) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        // The focus ring of a list is painted into its frame.
        return metric == PM_DefaultFrameWidth ? 2
                                              : QProxyStyle::pixelMetric(metric, option, widget);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        if (element == CE_PushButton) {
            QStyleOptionButton button = *static_cast<const QStyleOptionButton*>(option);
            button.state.setFlag(State_HasFocus, false);
            QProxyStyle::drawControl(element, &button, painter, widget);
        } else if (element == CE_ShapedFrame && IsStyledPanel(*option)) {
            PaintFace(*painter, QRectF(option->rect), option->palette.color(QPalette::Base),
                      Colours::edge.Now());
        } else {
            QProxyStyle::drawControl(element, option, painter, widget);
        }
        if ((element == CE_PushButton || element == CE_ShapedFrame) && FocusRing::IsShown(widget))
            FocusRing::Paint(*painter, QRectF(option->rect));
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override {
        if (control != CC_ComboBox) {
            QProxyStyle::drawComplexControl(control, option, painter, widget);
            return;
        }
        QStyleOptionComboBox box = *static_cast<const QStyleOptionComboBox*>(option);
        box.state.setFlag(State_HasFocus, false);
        QProxyStyle::drawComplexControl(control, &box, painter, widget);
        if (FocusRing::IsShown(widget))
            FocusRing::Paint(*painter, QRectF(option->rect));
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        switch (element) {
        case PE_FrameGroupBox:
            PaintGroupBox(*option, *painter, widget);
            break;
        case PE_FrameFocusRect: // In a list the ring goes around the list.
            if (FocusRing::IsShown(widget) &&
                qobject_cast<const QAbstractItemView*>(widget) == nullptr)
                FocusRing::Paint(*painter, QRectF(option->rect));
            break;
        case PE_PanelLineEdit:
            PaintFace(*painter, QRectF(option->rect), option->palette.color(QPalette::Base),
                      Colours::edge.Now());
            if (FocusRing::IsShown(widget))
                FocusRing::Paint(*painter, QRectF(option->rect));
            break;
        case PE_FrameMenu:
            PaintFace(*painter, QRectF(option->rect), Qt::transparent, Colours::edge.Now());
            break;
        case PE_PanelButtonCommand:
            PaintButtonFace(*option, *painter);
            break;
        case PE_IndicatorCheckBox:
            PaintCheck(*painter, QRectF(option->rect), CheckOf(option->state),
                       option->state.testFlag(State_Enabled));
            break;
        case PE_IndicatorRadioButton:
            PaintOption(*painter, QRectF(option->rect), option->state.testFlag(State_On),
                        option->state.testFlag(State_Enabled));
            break;
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }

    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override {
        const bool severalLines = (flags & Qt::TextWordWrap) != 0 || text.contains(u'\n');
        QProxyStyle::drawItemText(painter, rect, flags, palette, enabled,
                                  severalLines ? text
                                               : Elided(text, painter->fontMetrics(), rect.width(),
                                                        flags & Qt::TextShowMnemonic),
                                  role);
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        const int letter = option->fontMetrics.averageCharWidth();
        QSize size = contents;
        if (type == CT_GroupBox)
            size.setWidth(std::min(size.width(), frameLetters * letter));
        else if (type == CT_PushButton)
            size.setWidth(std::min(size.width(), buttonLetters * letter));
        else if (type == CT_RadioButton || type == CT_CheckBox)
            size.setWidth(std::min(size.width(), optionLetters * letter));
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
        const bool title = control == CC_GroupBox && part == SC_GroupBoxLabel;
        return title ? rect.intersected(option->rect) : rect;
    }

private:
    static bool IsStyledPanel(const QStyleOption& option) {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
        return frame != nullptr && frame->frameShape == QFrame::StyledPanel;
    }

    static Qt::CheckState CheckOf(State state) {
        if (state.testFlag(State_NoChange))
            return Qt::PartiallyChecked;
        return state.testFlag(State_On) ? Qt::Checked : Qt::Unchecked;
    }

    static void PaintButtonFace(const QStyleOption& option, QPainter& painter) {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
        const bool down = option.state.testFlag(State_Sunken) || option.state.testFlag(State_On);
        const bool hovered = option.state.testFlag(State_MouseOver);
        const bool chosen =
            button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
        PaintFace(painter, QRectF(option.rect),
                  down || hovered ? Colours::checked.Now() : Colours::buttonFace.Now(),
                  chosen ? Colours::selection.Now() : Colours::edge.Now());
    }

    static void PaintGroupBox(const QStyleOption& option, QPainter& painter,
                              const QWidget* widget) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Colours::line);
        painter.setBrush(Colours::frame);
        const auto* box = qobject_cast<const QGroupBox*>(widget);
        const bool titled = box != nullptr && !box->title().isEmpty();
        const int above = titled ? option.fontMetrics.height() + 3 : 3;
        painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, above + 0.5, -0.5, -0.5),
                                Lengths::corner, Lengths::corner);
        painter.restore();
    }
};

Scheme desktopScheme = Scheme::Light;

QPalette ThemePalette() {
    QPalette palette(Colours::buttonFace.Now(), Colours::window.Now());
    palette.setColor(QPalette::WindowText, Colours::text);
    palette.setColor(QPalette::Text, Colours::text);
    palette.setColor(QPalette::ButtonText, Colours::text);
    palette.setColor(QPalette::Base, Colours::field);
    palette.setColor(QPalette::AlternateBase, Colours::fieldStripe);
    palette.setColor(QPalette::Light, Colours::edge);
    palette.setColor(QPalette::Midlight, Colours::window);
    palette.setColor(QPalette::Mid, Colours::line);
    palette.setColor(QPalette::Dark, Colours::edge);
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
    desktopScheme = SchemeOfWindows(QApplication::palette());
    QApplication::setStyle(new Style);
    ShowScheme(desktopScheme);
}

Scheme DesktopScheme() {
    return desktopScheme;
}

void SetDesktopScheme(Scheme scheme) {
    desktopScheme = scheme;
}

Scheme SchemeOfWindows(const QPalette& palette) {
    constexpr int middle = 128;
    return palette.color(QPalette::Window).lightness() < middle ? Scheme::Dark : Scheme::Light;
}

void ShowScheme(Scheme scheme) {
    Colours::UseScheme(scheme);
    QApplication::setPalette(ThemePalette());
}
