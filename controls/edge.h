// How a button's rim is drawn.
#pragma once

// Flags of an edge's two rings, as the platform's edge drawing has them.
namespace Edge {
constexpr int raisedOuter = 1;
constexpr int sunkenOuter = 2;
constexpr int raisedInner = 4;
constexpr int sunkenInner = 8;
constexpr int raised = raisedOuter | raisedInner;
constexpr int sunken = sunkenOuter | sunkenInner;
} // namespace Edge
