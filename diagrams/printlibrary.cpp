#include "diagrams/printlibrary.h"

#include "core/runtimeerror.h"

#include <QLibrary>

const Printing& LoadPrinting(const QString& programFolder) {
    static const Printing* printing = nullptr;
    if (printing != nullptr)
        return *printing;
    QLibrary library(programFolder + QStringLiteral("tonvikprint"));
    const auto function = reinterpret_cast<PrintingFunction>(library.resolve(printingFunction));
    printing = function != nullptr ? function() : nullptr;
    if (printing == nullptr)
        throw RunTimeError(
            {QStringLiteral("Печать и запись в PDF и SVG недоступны: ") + library.errorString(),
             QStringLiteral("Printing and writing PDF and SVG are not available: ") +
                 library.errorString()});
    return *printing;
}
