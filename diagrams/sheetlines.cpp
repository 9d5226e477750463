#include "diagrams/sheetlines.h"

#include <QList>

QStringView SheetLine::BehindCodes() const {
    return codes.empty() ? QStringView() : text.sliced(codes.back().place.End()).trimmed();
}

std::vector<SheetLine> SheetLines(const QString& text) {
    std::vector<SheetLine> lines;
    QString verbatimEnd; // The directive that ends the section, while one is open.
    qsizetype start = 0;
    for (const QStringView view : QStringView(text).split(u'\n')) {
        SheetLine line{view, start, ReadDirective(view), {}};
        if (!verbatimEnd.isEmpty() && !(line.directive && line.directive->name == verbatimEnd)) {
            line.directive.reset();
            line.verbatim = true;
        } else if (line.directive) {
            const QString& name = line.directive->name;
            const bool opens = name == u"start_of_tab" || name == u"start_of_grid";
            verbatimEnd =
                opens ? QString(name).replace(QStringLiteral("start"), QStringLiteral("end"))
                      : QString();
        } else {
            line.codes = CodesOfLine(view);
            line.remark = line.codes.empty() && view.startsWith(u'#');
        }
        start += view.size() + 1;
        lines.push_back(std::move(line));
    }
    return lines;
}
