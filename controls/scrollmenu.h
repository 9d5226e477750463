// The menu of a scroll bar. The toolkit waits for its own until it is closed, and all that
// waits below it, such as a playback's pause, would wait as well.
#pragma once

#include <QObject>

// From now on for every scroll bar of the application, which must be there.
void InstallScrollMenus();
