// The look that all windows share.
#pragma once

#include "controls/colours.h"

// Gives the application its own style and its light colours on any desktop.
void ApplyTheme();

// Shows all windows, also those that are open, in the scheme.
void ShowScheme(Scheme scheme);
