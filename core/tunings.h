// The tunings that the program knows: 36 of its own, and those of tunings.dat.
#pragma once

#include "core/texttable.h"

// The fields of an entry, and the lines of a record of tunings.dat in the same order.
namespace TuningDef {
enum Field {
    Name = 1,
    Notes, // Six note names with commas between them, string 1 (the thin one) first.
};
} // namespace TuningDef

// The standard tuning is none of them: it is the default of the settings.
TextTable BuiltInTunings();
