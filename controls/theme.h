// The look that all windows share.
#pragma once

class QApplication;

// Gives the application its own style, palette and fonts' colours on any desktop.
void ApplyTheme(QApplication& application);
