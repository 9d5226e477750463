#include "controls/colours.h"

namespace {
Scheme current = Scheme::Light;
} // namespace

Scheme Colours::CurrentScheme() {
    return current;
}

void Colours::UseScheme(Scheme scheme) {
    current = scheme;
}
