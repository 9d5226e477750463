// The texts of the window of voicings, control by control.
#pragma once

#include "controls/windowtexts.h"

std::span<const WindowText> VoicingsTexts();
