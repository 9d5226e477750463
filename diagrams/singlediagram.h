// One diagram by itself: on the clipboard, or as a file.
#pragma once

#include "pictures/diagramlayout.h"

class QImage;
class QWidget;

// The diagram with a little air around it on white, four pixels to a point.
QImage DiagramImage(const Diagram& diagram);

// Puts it on the clipboard, as a picture and as text: "x32010".
void CopyDiagram(const Diagram& diagram);

// Writes an SVG or PNG file that the user chooses and gives its path, the empty text when
// cancelled. programFolder: where the library that prints lies. A run-time error that names the
// reason when it cannot be written.
QString SaveDiagram(QWidget* owner, const QString& title, const Diagram& diagram,
                    const QString& programFolder);
