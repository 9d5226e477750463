// Where the program keeps what it remembers by itself.
#pragma once

#include <QString>

// The folder in the user's home, which may not exist yet, without a separator at its end:
// $XDG_STATE_HOME/tonvik, ~/.local/state/tonvik, or what the platform has instead.
QString StateFolder();
