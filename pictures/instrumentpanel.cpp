#include "pictures/instrumentpanel.h"

#include "controls/accessiblepicture.h"
#include "controls/colours.h"
#include "controls/labellook.h"
#include "pictures/keyboardlayout.h"

#include <QPainter>
#include <QtMath>

#include <cmath>

namespace {

constexpr double twipsPerPixel = 15; // At 96 dpi.
constexpr double smallestScale = 0.85;

// The window's places, measured from the top left corner of the fretboard's nut; before it lie
// the signs of open and muted strings.
constexpr double nutMargin = 225;
constexpr QSizeF panelSize{nutMargin + 7695, 4215};
constexpr double keyboardTop = 2640;
constexpr QRectF hint{0, 2415, 7215, 225};

// How much of a label's or line's height its letters may take.
constexpr double letterShare = 0.78;

void PaintNutSign(QPainter& painter, NutSign sign, QPointF centre, double radius) {
    painter.setPen(QPen(Colours::onPlate, std::max(1.4, radius / 3)));
    painter.setBrush(Qt::NoBrush);
    if (sign == NutSign::Open)
        painter.drawEllipse(centre, radius, radius);
    if (sign != NutSign::Muted)
        return;
    const QPointF corner(radius, radius);
    const QPointF other(radius, -radius);
    painter.drawLine(centre - corner, centre + corner);
    painter.drawLine(centre - other, centre + other);
}

} // namespace

InstrumentPanel::InstrumentPanel(QWidget* parent) : QWidget(parent) {
    InstallAccessiblePictures();
    setMouseTracking(true);
    for (int fret = 1; fret <= fretLabels; ++fret) {
        auto* label = new HotLabel(QStringLiteral("Label3(%1)").arg(fret - 1), this);
        label->setText(QString::number(fret));
        Label3[static_cast<std::size_t>(fret - 1)] = label;
    }
    for (int row = 0; row < stringCount; ++row) {
        auto* label = new TextLabel(QStringLiteral("Label4(%1)").arg(row), this);
        label->setAlignment(Qt::AlignCenter);
        Label4[static_cast<std::size_t>(row)] = label;
    }
    for (int row = 0; row < stringCount; ++row)
        Label6[static_cast<std::size_t>(row)] =
            new HotLabel(QStringLiteral("Label6(%1)").arg(row), this);
    lblHint = new TextLabel(QStringLiteral("lblHint"), this);
    lblHint->setAlignment(Qt::AlignCenter);
    // Raised last: the picture lies over the first 15 twips of the labels around it.
    picStrings = new PicStrings(this);
    picKeyboard = new PicKeyboard(this);
}

void InstrumentPanel::ShowLabels(const LabelsView& view) {
    if (view.layout != m_layout) {
        m_layout = view.layout;
        Place();
    }
    if (view.nutSigns != m_nutSigns) {
        m_nutSigns = view.nutSigns;
        update(NutSignsRect());
    }
    const auto colour = [](bool lit) { return lit ? Colours::highlight : Colours::normalText; };
    for (int fret = 1; fret <= fretLabels; ++fret)
        SetTextColour(Label3[static_cast<std::size_t>(fret - 1)], colour(view.litFret == fret));
    for (int row = 0; row < stringCount; ++row) {
        const auto index = static_cast<std::size_t>(row);
        QLabel* label = Label4[index];
        label->setText(view.notes[index]);
        label->setProperty("Tag", view.soundNumbers[index]);
        label->setEnabled(!view.muted[index]);
        SetStruckOut(label, view.muted[index]);
        SetTextColour(label, colour(view.litRow == row));
    }
}

void InstrumentPanel::ShowHint(const QString& text) {
    lblHint->setText(text);
    lblHint->setAccessibleName(text);
}

QSize InstrumentPanel::SizeAt(double scale) {
    const QSizeF size = panelSize * scale / twipsPerPixel;
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

QSize InstrumentPanel::minimumSizeHint() const {
    return SizeAt(smallestScale);
}

QSize InstrumentPanel::sizeHint() const {
    return SizeAt(1);
}

void InstrumentPanel::resizeEvent(QResizeEvent*) {
    Place();
}

void InstrumentPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (Colours::plate.Now() != Colours::window.Now())
        PaintPlate(painter);
    constexpr double radius = 66;
    const double scale = picStrings->Scale();
    for (int row = 0; row < stringCount; ++row)
        PaintNutSign(painter, m_nutSigns[static_cast<std::size_t>(row)],
                     QPointF(picStrings->pos()) +
                         QPointF(m_layout.FromNut(-nutMargin / 2), FretboardLayout::StringY(row)) *
                             scale,
                     radius * scale);
}

// Where the signs stand, beside the board, which is not painted anew with them.
QRect InstrumentPanel::NutSignsRect() const {
    const QRect board = picStrings->geometry();
    const int width = qCeil(nutMargin * picStrings->Scale());
    const int left = m_layout.leftHanded ? board.right() + 1 : board.left() - width;
    return {left, board.top(), width, board.height()};
}

// One plate lies under the board, the signs, the fret numbers and the notes.
void InstrumentPanel::PaintPlate(QPainter& painter) const {
    constexpr double margin = 3;
    QRectF plate(picStrings->geometry());
    for (const QWidget* label : std::initializer_list<QWidget*>{Label3.front(), Label4.front()})
        plate |= QRectF(label->geometry());
    plate |= QRectF(NutSignsRect());
    painter.setPen(Qt::NoPen);
    painter.setBrush(Colours::plate);
    painter.drawRoundedRect(plate.adjusted(-margin, -margin, margin, margin), margin, margin);
}

void InstrumentPanel::Place() {
    const double scale = std::min(width() / panelSize.width(), height() / panelSize.height());
    const QPointF origin((width() - panelSize.width() * scale) / 2, 0);
    const auto rect = [&](const QRectF& twips) {
        return QRectF(twips.topLeft() * scale + origin, twips.size() * scale).toRect();
    };
    // The notes stand beside the board: at the right, or at the left of a mirrored one.
    const QPointF board(m_layout.leftHanded
                            ? panelSize.width() - nutMargin - FretboardLayout::size.width()
                            : nutMargin,
                        0);
    picStrings->setGeometry(rect({board, FretboardLayout::size}));
    picKeyboard->setGeometry(
        rect({QPointF(m_layout.leftHanded ? 0 : nutMargin, keyboardTop), KeyboardLayout::size}));
    QFont font = this->font();
    font.setPixelSize(
        std::max(9, static_cast<int>(m_layout.NoteLabel(0).height() * letterShare * scale)));
    const auto place = [&](QLabel* label, const QRectF& twips) {
        label->setGeometry(rect(twips.translated(board)));
        label->setFont(font);
    };
    for (int fret = 1; fret <= fretLabels; ++fret)
        place(Label3[static_cast<std::size_t>(fret - 1)], m_layout.FretLabel(fret));
    QFont hintFont = font;
    hintFont.setPixelSize(std::max(9, static_cast<int>(hint.height() * letterShare * scale)));
    place(lblHint, hint);
    lblHint->setFont(hintFont);
    QFont noteFont = font;
    noteFont.setBold(true);
    for (int row = 0; row < stringCount; ++row) {
        QLabel* label = Label4[static_cast<std::size_t>(row)];
        noteFont.setStrikeOut(label->font().strikeOut()); // A muted string stays struck out.
        place(label, m_layout.NoteLabel(row));
        place(Label6[static_cast<std::size_t>(row)], m_layout.NoteLabel(row));
        label->setFont(noteFont);
    }
}
