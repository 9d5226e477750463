#include "diagrams/picpage.h"

#include "controls/colours.h"
#include "diagrams/sheetpainting.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QScrollBar>

#include <cmath>

namespace {

constexpr int gap = 8;
constexpr int wheelStep = 40;
constexpr int mostPainted = 12; // Pages whose pictures are kept.

} // namespace

PicPage::PicPage(const QString& name, QWidget* parent) : QAbstractScrollArea(parent) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // The scale does not depend on it.
    verticalScrollBar()->setSingleStep(wheelStep);
    m_pages.emplace_back();
}

void PicPage::ShowPages(std::vector<SheetPage> pages, QSizeF paper) {
    const bool samePaper = paper == m_paper;
    for (auto painted = m_painted.begin(); painted != m_painted.end();) {
        const auto page = static_cast<std::size_t>(painted.key());
        const bool same = samePaper && page < pages.size() && page < m_pages.size() &&
                          pages[page] == m_pages[page];
        painted = same ? std::next(painted) : m_painted.erase(painted);
    }
    m_pages = std::move(pages);
    m_paper = paper;
    if (m_current >= static_cast<int>(AllDiagrams().size()))
        m_current = -1;
    SetRange();
    viewport()->update();
    Q_EMIT PagesShown();
}

double PicPage::Scale() const {
    return m_paper.isEmpty() ? 1 : std::max(1, viewport()->width() - 2 * gap) / m_paper.width();
}

double PicPage::PageTop(int page) const {
    return gap + page * (std::round(m_paper.height() * Scale()) + gap) -
           verticalScrollBar()->value();
}

QRectF PicPage::ToPixels(int page, const QRectF& twips) const {
    return {QPointF(gap, PageTop(page)) + twips.topLeft() * Scale(), twips.size() * Scale()};
}

void PicPage::SetRange() {
    const double end = PageTop(static_cast<int>(m_pages.size())) + verticalScrollBar()->value();
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(end) - viewport()->height()));
}

std::vector<PicPage::DiagramPlace> PicPage::AllDiagrams() const {
    std::vector<DiagramPlace> places;
    for (std::size_t page = 0; page < m_pages.size(); ++page)
        for (std::size_t i = 0; i < m_pages[page].diagrams.size(); ++i)
            places.push_back({static_cast<int>(page), i});
    return places;
}

const PlacedDiagram& PicPage::At(DiagramPlace place) const {
    return m_pages[static_cast<std::size_t>(place.page)].diagrams[place.diagram];
}

const PlacedDiagram* PicPage::DiagramAt(QPointF pixels) const {
    for (const DiagramPlace place : AllDiagrams())
        if (ToPixels(place.page, At(place).place).contains(pixels))
            return &At(place);
    return nullptr;
}

const PlacedDiagram* PicPage::DiagramNumber(int index) const {
    const auto places = AllDiagrams();
    return index >= 0 && index < static_cast<int>(places.size())
               ? &At(places[static_cast<std::size_t>(index)])
               : nullptr;
}

const PlacedDiagram* PicPage::Current() const {
    return DiagramNumber(m_current);
}

QRectF PicPage::PlaceOf(int index) const {
    const PlacedDiagram* diagram = DiagramNumber(index);
    return diagram == nullptr
               ? QRectF()
               : ToPixels(AllDiagrams()[static_cast<std::size_t>(index)].page, diagram->place);
}

const QPixmap& PicPage::Painted(int page) {
    const auto known = m_painted.constFind(page);
    if (known != m_painted.constEnd())
        return *known;
    if (m_painted.size() >= mostPainted)
        m_painted.clear();
    const double ratio = devicePixelRatioF();
    QPixmap pixmap((m_paper * Scale() * ratio).toSize());
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(Scale() * ratio, Scale() * ratio);
    PaintPage(painter, m_pages[static_cast<std::size_t>(page)]);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return *m_painted.insert(page, pixmap);
}

void PicPage::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), Colours::line.Now());
    if (m_paper.isEmpty())
        return;
    const QRectF seen = viewport()->rect();
    for (int page = 0; page < static_cast<int>(m_pages.size()); ++page) {
        const QRectF place = ToPixels(page, QRectF(QPointF(0, 0), m_paper));
        if (place.intersects(seen))
            painter.drawPixmap(place.topLeft(), Painted(page));
    }
    if (hasFocus() && Current() != nullptr) {
        painter.setPen(QPen(Colours::focus.Now(), 2));
        painter.drawRect(PlaceOf(m_current));
    }
}

void PicPage::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    m_painted.clear();
    SetRange();
}

void PicPage::mousePressEvent(QMouseEvent* event) {
    const PlacedDiagram* diagram = DiagramAt(event->position());
    m_wasPressed = diagram != nullptr && event->button() == Qt::LeftButton;
    if (m_wasPressed)
        m_pressed = diagram->source;
}

void PicPage::mouseReleaseEvent(QMouseEvent* event) {
    const PlacedDiagram* diagram = DiagramAt(event->position());
    if (m_wasPressed && diagram != nullptr && diagram->source == m_pressed)
        Q_EMIT DiagramClicked(*diagram);
    m_wasPressed = false;
}

void PicPage::mouseDoubleClickEvent(QMouseEvent* event) {
    m_wasPressed = false;
    const PlacedDiagram* diagram = DiagramAt(event->position());
    if (diagram != nullptr && event->button() == Qt::LeftButton)
        Q_EMIT DiagramDoubleClicked(*diagram);
}

void PicPage::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    if (const PlacedDiagram* diagram = byKey ? Current() : DiagramAt(event->pos()))
        Q_EMIT MenuAsked(*diagram, event->globalPos());
}

void PicPage::GoTo(int index) {
    const int count = DiagramCount();
    if (count == 0)
        return;
    m_current = std::clamp(index, 0, count - 1);
    const QRectF place = PlaceOf(m_current);
    QScrollBar* bar = verticalScrollBar();
    if (place.top() < 0)
        bar->setValue(bar->value() + static_cast<int>(place.top()) - gap);
    else if (place.bottom() > viewport()->height())
        bar->setValue(bar->value() + static_cast<int>(place.bottom()) + gap - viewport()->height());
    viewport()->update();
    Q_EMIT CurrentMoved();
    Q_EMIT DiagramClicked(*Current());
}

void PicPage::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        return GoTo(m_current - 1);
    case Qt::Key_Right:
        return GoTo(m_current + 1);
    case Qt::Key_Home:
        return verticalScrollBar()->setValue(0);
    case Qt::Key_End:
        return verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (Current() != nullptr)
            Q_EMIT DiagramDoubleClicked(*Current());
        return;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void PicPage::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
    // After the toolkit has told that the page has the focus.
    QMetaObject::invokeMethod(this, &PicPage::CurrentMoved, Qt::QueuedConnection);
}

void PicPage::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}
