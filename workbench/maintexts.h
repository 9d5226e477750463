// The main window's texts, control by control.
#pragma once

#include "controls/windowtexts.h"

// The keys are of the section "Main".
std::span<const WindowText> MainTexts();
