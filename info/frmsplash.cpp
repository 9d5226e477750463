#include "info/frmsplash.h"

#include "controls/colours.h"
#include "controls/twips.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QScreen>

#include <array>

namespace {

// In twips.
constexpr QSize splashSize(7200, 3600);
constexpr QRect frameRect(360, 3060, 6480, 180);
constexpr QRect neckRect(4800, 420, 2040, 1500);
constexpr int titleHeight = 690;
constexpr int textHeight = 200;
constexpr int firstLine = 2040;
constexpr int lineStep = 330;

// Six strings, four frets, and a C major chord on them.
class Fretboard : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        constexpr int strings = 6;
        constexpr int frets = 4;
        constexpr std::array marks{QPoint(0, 1), QPoint(1, 3), QPoint(2, 4)};
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const double fret = (width() - 4.0) / frets;
        const double row = height() / static_cast<double>(strings);
        const double top = row / 2;
        const double bottom = height() - top;
        for (int i = 0; i <= frets; ++i) {
            painter.setPen(
                QPen(i == 0 ? Colours::buttonDark.Now() : Colours::line.Now(), i == 0 ? 4 : 2));
            const double x = 2 + i * fret;
            painter.drawLine(QPointF(x, top), QPointF(x, bottom));
        }
        for (int i = 0; i < strings; ++i) {
            painter.setPen(QPen(Colours::buttonShadow, 1 + 0.25 * i));
            const double y = top + i * row;
            painter.drawLine(QPointF(2, y), QPointF(width() - 2.0, y));
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(Colours::mark);
        for (const QPoint& mark : marks)
            painter.drawEllipse(QPointF(2 + (mark.x() + 0.5) * fret, top + mark.y() * row),
                                row * 0.38, row * 0.38);
    }
};

void Fill(QWidget* widget, const QColor& colour) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, colour);
    palette.setColor(QPalette::WindowText, Colours::buttonShadow);
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

} // namespace

frmSplash::frmSplash(const Author& author)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      Shape1(new Fretboard(this)),
      Shape2(new QFrame(this)),
      Shape3(new QWidget(this)) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QStringLiteral("Tonvik"));
    setFixedSize(Place(QRect(QPoint(), splashSize)).size());
    setAttribute(Qt::WA_OpaquePaintEvent);
    Shape1->setObjectName(QStringLiteral("Shape1"));
    Shape1->setGeometry(Place(neckRect));
    Shape2->setObjectName(QStringLiteral("Shape2"));
    Shape2->setGeometry(Place(frameRect));
    static_cast<QFrame*>(Shape2)->setFrameStyle(QFrame::Box | QFrame::Plain);
    Fill(Shape2, Colours::field);
    Shape3->setObjectName(QStringLiteral("Shape3"));
    Fill(Shape3, Colours::selection);
    ShowBar();

    QFont title(QStringLiteral("Arial"));
    title.setBold(true);
    title.setPixelSize(Place(QRect(0, 0, 0, titleHeight)).height());
    AddText(QStringLiteral("Label1"), QStringLiteral("Tonvik 2.1"),
            QRect(360, 825, 4320, titleHeight), title);
    const auto place = [](int top) { return QRect(360, top, 6480, textHeight); };
    AddText(QStringLiteral("Label2"),
            QStringLiteral("Version: 2.1-beta, platform: Win9x/NT, freeware"), place(firstLine),
            font());
    AddText(QStringLiteral("lblInfo"), CreditLine(author), place(firstLine + lineStep), font());
    AddText(QStringLiteral("Label3"), QStringLiteral("Please, wait a minute..."),
            place(firstLine + 2 * lineStep), font());
    move(screen()->availableGeometry().center() - rect().center());
}

void frmSplash::ProgressStep() {
    m_barWidth += FrameWidth() / static_cast<float>(steps);
    ShowBar();
    repaint(Place(frameRect));
}

float frmSplash::FrameWidth() const {
    return static_cast<float>(frameRect.width());
}

void frmSplash::ShowBar() {
    Shape3->setGeometry(
        Place(QRect(frameRect.topLeft(), QSize(qRound(m_barWidth), frameRect.height()))));
}

QRect frmSplash::Place(const QRect& twips) const {
    const double pixels = PixelsPerTwip(*this);
    return {qRound(twips.x() * pixels), qRound(twips.y() * pixels), qRound(twips.width() * pixels),
            qRound(twips.height() * pixels)};
}

void frmSplash::AddText(const QString& name, const QString& text, const QRect& twips,
                        const QFont& font) {
    auto* label = new QLabel(text, this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    const QRect place = Place(twips);
    label->setFont(font);
    // Room above and below for the letters that reach out of the font's size.
    label->setGeometry(place.adjusted(0, -place.height() / 4, 0, place.height() / 4));
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Colours::window.Now());
    painter.setPen(Colours::buttonShadow);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

QString CreditLine(const Author& author) {
    const QString line = QStringLiteral("Author: ") + author.name.english;
    return author.email.isEmpty() ? line : line + QStringLiteral(" (") + author.email + u')';
}
