// What the library that prints does for the program, which loads it at first use.
#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>

#include <functional>

class QPainter;
class QWidget;

// Pages to be painted: one twip is one unit of the painter, its origin the corner of the paper.
struct PaintedPages {
    QSizeF size; // Of the paper, in twips.
    int count = 0;
    std::function<void(QPainter& painter, int page)> paint;
};

class Printing {
public:
    Printing() = default;
    Printing(const Printing&) = delete;
    Printing& operator=(const Printing&) = delete;
    virtual ~Printing() = default;

    // All pages as one PDF file; empty where it cannot be made.
    virtual QByteArray Pdf(const PaintedPages& pages, const QString& title) const = 0;

    // One page as an SVG file; empty where it cannot be made.
    virtual QByteArray Svg(const PaintedPages& pages, int page, const QString& title) const = 0;

    // Shows the print preview, from which the print dialog is opened, until it is closed.
    // pages: asked anew for each size of paper that the user chooses, in twips. False where
    // something was to be printed and could not be.
    virtual bool Preview(QWidget* owner, const QString& title, QSizeF paper,
                         const std::function<PaintedPages(QSizeF paper)>& pages) const = 0;
};

// The name of the library's only function, and its type; what it gives lasts as long as the
// program.
constexpr const char* printingFunction = "TonvikPrinting";
using PrintingFunction = const Printing* (*)();
