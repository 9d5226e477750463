// The file dialog of what the sheet and its diagrams are exported as.
#pragma once

#include <QString>

class QWidget;

enum class ExportFormat { Pdf, Svg, Png, ChordPro };

struct ExportChoice {
    QString path; // Empty when cancelled.
    ExportFormat format = ExportFormat::Pdf;
};

// Asks for a file of one of the formats. The suffix of the name decides which it is; where it has
// none of theirs, the chosen filter's is added, before the user is asked whether a file that is
// there already may be overwritten. folder: what is shown first, empty for the toolkit's choice.
ExportChoice AskForExport(QWidget* owner, const QString& title, const QList<ExportFormat>& formats,
                          const QString& folder);

// "*.cho *.chopro *.pro *.crd".
QString ChordProPatterns();
