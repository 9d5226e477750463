// The lengths of the windows, in pixels: one small scale of distances, and what all controls share.
#pragma once

namespace Lengths {

constexpr int tight = 4;   // Within a group.
constexpr int gap = 8;     // Between controls.
constexpr int margin = 12; // Around a window's content, between its groups.
constexpr int wide = 16;
constexpr int apart = 24;

constexpr double corner = 3; // The radius of every control's corners.

} // namespace Lengths
