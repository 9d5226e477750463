// The sheet as it will be printed, one page below the other, as wide as there is room.
#pragma once

#include "core/phrase.h"
#include "diagrams/sheetpages.h"

#include <QAbstractScrollArea>
#include <QHash>
#include <QPixmap>

class PicPage : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit PicPage(const QString& name, QWidget* parent = nullptr);

    // paper: its size in twips. A page that looks as before is not painted anew.
    void ShowPages(std::vector<SheetPage> pages, QSizeF paper);

    const std::vector<SheetPage>& Pages() const { return m_pages; }

    // Where a place of a page, counted from 0, lies in the viewport now, in its pixels.
    QRectF ToPixels(int page, const QRectF& twips) const;

    // The diagram at a place of the viewport; null where there is none.
    const PlacedDiagram* DiagramAt(QPointF pixels) const;

    // The one that the keyboard works on, or null: arrows go from one to the next, which selects
    // it, and Enter lays it on the neck.
    const PlacedDiagram* Current() const;

    // The diagrams of all pages, counted from 0 as they follow each other.
    int DiagramCount() const { return static_cast<int>(AllDiagrams().size()); }
    const PlacedDiagram* DiagramNumber(int index) const; // Null where there is none.
    QRectF PlaceOf(int index) const;                     // In the viewport's pixels.
    int CurrentNumber() const { return m_current; }      // -1 for none.

    // Makes it the current one, which is brought into view and selected.
    void GoTo(int index);

    // What a screen reader is told about diagrams is in this language.
    void SetTongue(Tongue tongue) { m_tongue = tongue; }
    Tongue SpokenTongue() const { return m_tongue; }

Q_SIGNALS:
    void PagesShown();   // There may be other diagrams now...
    void CurrentMoved(); // ...or the keyboard may be at another one.
    void DiagramClicked(const PlacedDiagram& diagram);
    void DiagramDoubleClicked(const PlacedDiagram& diagram);
    void MenuAsked(const PlacedDiagram& diagram, QPoint screen);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct DiagramPlace {
        int page;
        std::size_t diagram;
    };

    double Scale() const; // Pixels to a twip.
    double PageTop(int page) const;
    void SetRange();
    std::vector<DiagramPlace> AllDiagrams() const;
    const PlacedDiagram& At(DiagramPlace place) const;
    const QPixmap& Painted(int page);

    std::vector<SheetPage> m_pages;
    QSizeF m_paper;
    QHash<int, QPixmap> m_painted; // Of pages that were seen, at the present scale.
    int m_current = -1;            // Counted over all pages.
    Tongue m_tongue = Tongue::Russian;
    TextSpan m_pressed; // What the mouse went down on.
    bool m_wasPressed = false;
};
