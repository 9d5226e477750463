// The texts of the settings dialog, control by control.
#pragma once

#include "controls/windowtexts.h"

std::span<const WindowText> SettingsTexts();
