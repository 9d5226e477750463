// Loading the library that prints.
#pragma once

#include "diagrams/printing.h"

// The library in the program's folder. Loaded by the first call and kept. A run-time error that
// says why where it cannot be loaded; the next call tries again.
const Printing& LoadPrinting(const QString& programFolder);
