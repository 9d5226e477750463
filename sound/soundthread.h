// The sound room's own thread: it opens the device and the sound font, which may take as long
// as a sound server likes, and gives the device back when nothing sounds any more. It touches
// nothing of the program's logic and nobody ever waits for it.
#pragma once

#include "sound/output.h"
#include "sound/synthesiser.h"

#include <QString>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

class SoundThread {
public:
    // appPath: where a sound font of the user's own may lie. rest: how many seconds the device
    // is kept after a note: an open one asks for samples thousands of times a minute, also for
    // silence.
    SoundThread(QString appPath, std::unique_ptr<Output> output, double rest);

    // Ends the thread; one that waits for a sound server is left behind.
    ~SoundThread();
    SoundThread(const SoundThread&) = delete;
    SoundThread& operator=(const SoundThread&) = delete;

    // Plays the files as soon as the device asks for samples. Without a device they are dropped.
    void Begin(std::vector<Beginning> files);

    // Lets the files of an id die away; those that have not begun never do.
    void End(Ending files);

    // Whether files wait for a device to ask for samples.
    bool Waiting() const;

    // Whether a device is open.
    bool HoldsDevice() const;

private:
    class Room;

    std::shared_ptr<Room> m_room; // Shared with the thread, which may outlive this object.
    std::thread m_thread;
};
