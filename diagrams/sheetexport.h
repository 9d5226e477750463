// The sheet's pages as files.
#pragma once

#include "diagrams/printing.h"
#include "diagrams/sheetpages.h"

#include <QStringList>

class QImage;

// A4, or Letter where that is what one prints on; in twips.
QSizeF PaperOfLocale();

// The pages as they are handed to whatever paints them. pages: must outlive what is returned.
PaintedPages Painted(const std::vector<SheetPage>& pages, QSizeF paper);

// One page on white paper, two pixels to a point.
QImage PageImage(const SheetPage& page, QSizeF paper);

// Replaces the file by the picture as PNG; a run-time error as below.
void WriteImage(const QString& path, const QImage& image);

// The names of as many files, a page each: the path itself, then "song-2.svg", "song-3.svg".
QStringList PageFiles(const QString& path, int pages);

// Each replaces its files, each file whole or not at all, and gives a run-time error that names
// the reason where that cannot be done. Where a later file fails, earlier ones stay written.
void ExportPdf(const QString& path, const PaintedPages& pages, const QString& title,
               const Printing& printing);
void ExportSvg(const QString& path, const PaintedPages& pages, const QString& title,
               const Printing& printing);
void ExportPng(const QString& path, const std::vector<SheetPage>& pages, QSizeF paper);
