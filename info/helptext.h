// The help text as a text box can take it, whatever help.dat holds.
#pragma once

#include "core/phrase.h"

// Laying out one endless line, or endlessly many lines, would keep the window from opening.
constexpr qsizetype longestHelpLine = 30'000;
constexpr qsizetype mostHelpLines = 1'000'000;

// The text of the help file in this folder, or the text that says that it is missing.
// A run-time error where it cannot be read.
QString ReadHelp(const QString& appPath);

// The text unchanged, unless lines are too long, which get line breaks, or too many, which
// are left off; the last line then says so.
QString FitForTextBox(const QString& text, Tongue tongue);
