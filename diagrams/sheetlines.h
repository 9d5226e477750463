// The lines of the sheet's text, and what each of them is.
#pragma once

#include "diagrams/chordpro.h"

struct SheetLine {
    QStringView text;    // Of the text that was read, which must outlive it.
    qsizetype start = 0; // In that text.

    // At most one of these; a line with none is lyrics or plain text.
    std::optional<Directive> directive;
    std::vector<SheetCode> codes;
    bool verbatim = false; // In a section whose lines mean only themselves, such as a tablature.
    bool remark = false;   // For readers of the text alone.

    // What is left of a line with codes behind the last of them, without blanks around it.
    QStringView BehindCodes() const;
};

// text: lines ended by LF.
std::vector<SheetLine> SheetLines(const QString& text);
