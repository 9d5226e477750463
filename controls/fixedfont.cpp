#include "controls/fixedfont.h"

#include <QFontDatabase>
#include <QStringList>

QFont FixedFont() {
    const QFont system = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    QFont font(QStringList{QStringLiteral("Courier New"), system.family()});
    font.setStyleHint(QFont::TypeWriter);
    font.setPointSizeF(system.pointSizeF());
    return font;
}
