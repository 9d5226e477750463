// Where the samples go: a device, or whoever listens in its place.
#pragma once

#include <functional>

class Output {
public:
    using Render = std::function<void(float* left, float* right, int frames)>;

    virtual ~Output() = default;

    // Opens the device, which asks for samples from now on, on a thread of its own. False
    // where there is none. Opening and closing may take as long as a sound server likes.
    virtual bool Open(Render render) = 0;

    // Asks for no more samples once it has returned.
    virtual void Close() = 0;

    // Whether an open device has ceased to ask.
    virtual bool Lost() const = 0;
};
