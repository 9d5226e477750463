// The look that all windows share.
#pragma once

// Gives the application its own style and palette on any desktop.
void ApplyTheme();
