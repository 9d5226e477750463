// The scales and modes that the program knows: 66 of its own, and those of scales.dat.
#pragma once

#include "core/texttable.h"

// The fields of an entry, and the lines of a record of scales.dat in the same order.
namespace ScaleDef {
enum Field {
    Name = 1,
    Degrees, // Semitone positions counted from the root, which is 1: "1,3,5,6,8,10,12".
};
} // namespace ScaleDef

TextTable BuiltInScales();
