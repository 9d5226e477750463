// The look that all windows share.
#pragma once

#include "controls/colours.h"

class QPalette;

// Gives the application its own style, and the scheme that goes with the desktop's windows.
void ApplyTheme();

// What the desktop's windows had when the theme was applied, or what the desktop has said since.
Scheme DesktopScheme();
void SetDesktopScheme(Scheme scheme);

// The scheme that goes with a palette, by how light its windows are.
Scheme SchemeOfWindows(const QPalette& palette);

// Shows all windows, also those that are open, in the scheme.
void ShowScheme(Scheme scheme);
