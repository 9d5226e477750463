// The clock of the real program: waits in the event loop, at no cost of processor time.
#pragma once

#include "sound/sound.h"

class EventClock : public Clock {
public:
    double Now() const override;

    // Returns at once when the program ends.
    void WaitUntil(double seconds) override;
};
