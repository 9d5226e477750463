// What is on the neck, played by the real synthesiser and heard.
#pragma once

#include "workbench/workbench.h"

// What is wrong with what is heard of the strings, one after the other; empty where all is well.
// Nothing where a pitch is too low or too high for the ear.
std::optional<QString> BrokenChord(const Workbench& workbench, const AppState& state);
