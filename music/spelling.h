// Which keys a chord or a scale asks for, and which catalogue entry a name or a set of
// marked keys means.
#pragma once

#include "core/texttable.h"

#include <QString>

#include <optional>
#include <vector>

// The keys of a chord, from the root upwards; nothing wraps round to a lower key, so a key
// may lie past the piano's end. A character of the structure that is no digit steps 0.
std::vector<int> ChordKeys(int root, QStringView structure);

// The semitones from the root to each further note of a scale: d - 1 for every number d of the
// degree list but the first, which stands for the root. A text that is no number is 0.
std::vector<double> ScaleSteps(QStringView degrees);

// The name of the chord whose lowest note is the lowest of the marked keys (ascending) and
// whose structure is the chain of distances between them; "---" when the catalogue has none.
// Of several entries with one structure the last names the chord. No inversions are tried.
QString NameChord(const std::vector<int>& markedKeys, const TextTable& chordTypes);

extern const QString unknownChord; // "---"

// The list row (from 0) of the first chord type of exactly this name, else of the first whose
// alternative notations hold the text with a comma behind it; case counts.
std::optional<int> FindChordType(const TextTable& chordTypes, const QString& text);
