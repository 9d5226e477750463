// The sound font to play with.
#pragma once

#include <QString>

// One beside the program, the first by name, else the desktop's; empty for none.
QString FindSoundFont(const QString& appPath);
