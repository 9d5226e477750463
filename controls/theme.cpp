#include "controls/theme.h"

#include "controls/colours.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

void ApplyTheme() {
    QPalette palette(Colours::buttonFace, Colours::window);
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
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette);
}
