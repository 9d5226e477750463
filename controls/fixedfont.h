// The font of texts whose columns must stand under each other.
#pragma once

#include <QFont>

// Courier New or, where it is missing, the system's fixed font, in the system's size for it.
QFont FixedFont();
