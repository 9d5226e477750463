// The texts of the sheet's window, control by control.
#pragma once

#include "controls/windowtexts.h"

std::span<const WindowText> SheetTexts();
