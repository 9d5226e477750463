#include "info/frmsplash.h"

#include "controls/colours.h"

#include <QLabel>
#include <QPainter>

namespace {

constexpr QSize splashSize(420, 200);
constexpr QRectF frameRect(30, 164, 360, 12);

QLabel* Text(QWidget* parent, const QString& name, const QString& text, int top, QFont font) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setFont(font);
    label->setGeometry(30, top, splashSize.width() - 60, QFontMetrics(font).height() + 4);
    return label;
}

} // namespace

frmSplash::frmSplash(const QString& author, const QString& address)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("frmSplash"));
    setFixedSize(splashSize);
    setAttribute(Qt::WA_OpaquePaintEvent);
    QFont title(QStringLiteral("Arial"));
    title.setPixelSize(44);
    title.setBold(true);
    QFont small = font();
    small.setPixelSize(13);
    Text(this, QStringLiteral("Label1"), QStringLiteral("Tonvik 2.1"), 24, title);
    Text(this, QStringLiteral("Label2"),
         QStringLiteral("Version: 2.1-beta, platform: Win9x/NT, freeware"), 88, small);
    QString credit;
    if (!author.isEmpty())
        credit = QStringLiteral("Author: ") + author;
    if (!author.isEmpty() && !address.isEmpty())
        credit += QStringLiteral(" (") + address + u')';
    Text(this, QStringLiteral("lblInfo"), credit, 110, small)->setVisible(!credit.isEmpty());
    Text(this, QStringLiteral("Label3"), QStringLiteral("Please, wait a minute..."), 138, small);
}

void frmSplash::ProgressStep() {
    m_barWidth += FrameWidth() / static_cast<float>(steps);
    repaint(frameRect.toAlignedRect().adjusted(-1, -1, 1, 1));
}

float frmSplash::FrameWidth() const {
    return static_cast<float>(frameRect.width());
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Colours::window);
    painter.setPen(Colours::line);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(Colours::buttonShadow);
    painter.setBrush(Colours::field);
    painter.drawRect(frameRect.adjusted(-0.5, -0.5, 0.5, 0.5));
    painter.fillRect(QRectF(frameRect.topLeft(), QSizeF(m_barWidth, frameRect.height())),
                     Colours::selection);
}
