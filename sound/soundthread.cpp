#include "sound/soundthread.h"

#include "sound/leftbehind.h"
#include "sound/soundfont.h"

#include <atomic>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

std::atomic<bool> leftBehind = false;

} // namespace

// What the threads share. The synthesiser belongs to the sound thread while no device is open,
// and to the device's thread while one is. Two locks, so that the device's thread meets nobody
// but him who asks for notes, for as long as it takes to write that down.
class SoundThread::Room {
public:
    Room(QString appPath, std::unique_ptr<Output> output, double rest)
        : m_appPath(std::move(appPath)), m_output(std::move(output)), m_rest(rest) {}

    void Begin(std::vector<Beginning> files) {
        {
            const std::scoped_lock lock(m_requests);
            for (Beginning& file : files)
                m_begun.push_back(std::move(file));
            m_waiting = true;
        }
        const std::scoped_lock lock(m_mutex);
        m_changed.notify_all();
    }

    void End(Ending files) {
        const std::scoped_lock lock(m_requests);
        const auto waited =
            std::erase_if(m_begun, [=](const Beginning& file) { return file.id == files.id; });
        m_waiting = !m_begun.empty();
        if (waited == 0 && m_open)
            m_ended.push_back(files);
    }

    bool Waiting() const { return m_waiting; }
    bool HoldsDevice() const { return m_open; }

    // The thread's work until it is told to end.
    void Run() {
        std::unique_lock lock(m_mutex);
        while (!m_ending) {
            if (m_open)
                WatchDevice(lock);
            else
                WaitForNotes(lock);
        }
        if (m_open)
            CloseDevice(lock);
        m_finished = true;
        m_changed.notify_all();
    }

    // Whether the thread came to its end within a twentieth of a second.
    bool Finish() {
        std::unique_lock lock(m_mutex);
        m_ending = true;
        m_changed.notify_all();
        return m_changed.wait_for(lock, 50ms, [this] { return m_finished; });
    }

private:
    void WaitForNotes(std::unique_lock<std::mutex>& lock) {
        m_changed.wait(lock, [this] { return m_ending || m_waiting; });
        if (m_ending)
            return;
        lock.unlock();
        if (OpenDevice())
            m_open = true;
        else
            Forget(); // Silence; the next note tries again.
        lock.lock();
    }

    void WatchDevice(std::unique_lock<std::mutex>& lock) {
        m_changed.wait_for(lock, 250ms, [this] { return m_ending; });
        const bool needed = m_resting < m_rest || m_waiting;
        if (!m_ending && (!needed || m_output->Lost()))
            CloseDevice(lock);
    }

    bool OpenDevice() {
        if (!m_synthesiser)
            m_synthesiser = Synthesiser::Make(FindSoundFont(m_appPath));
        if (!m_synthesiser)
            return false;
        m_synthesiser->Silence();
        m_resting = 0;
        return m_output->Open(
            [this](float* left, float* right, int frames) { Render(left, right, frames); });
    }

    void CloseDevice(std::unique_lock<std::mutex>& lock) {
        lock.unlock();
        m_output->Close();
        lock.lock();
        const std::scoped_lock requests(m_requests);
        m_open = false;
        m_ended.clear();
    }

    void Forget() {
        const std::scoped_lock lock(m_requests);
        m_begun.clear();
        m_waiting = false;
    }

    // On the device's thread, which must not wait for any other.
    void Render(float* left, float* right, int frames) {
        if (const std::unique_lock lock(m_requests, std::try_to_lock); lock)
            TakeRequests();
        m_synthesiser->Render(left, right, frames);
        m_resting = m_synthesiser->Resting();
    }

    void TakeRequests() {
        m_open = true; // Even before Open has returned: what begins now can be ended.
        for (const Ending& files : m_ended)
            m_synthesiser->End(files);
        for (const Beginning& file : m_begun)
            m_synthesiser->Begin(file);
        m_ended.clear();
        m_begun.clear();
        m_waiting = false;
    }

    const QString m_appPath;
    const std::unique_ptr<Output> m_output;
    const double m_rest;
    std::unique_ptr<Synthesiser> m_synthesiser;
    std::atomic<double> m_resting = 0;
    std::atomic<bool> m_open = false;
    std::atomic<bool> m_waiting = false; // Whether there is anything in m_begun.

    std::mutex m_requests;
    std::vector<Beginning> m_begun; // For the device's thread to take...
    std::vector<Ending> m_ended;    // ...and these.

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_ending = false;
    bool m_finished = false;
};

SoundThread::SoundThread(QString appPath, std::unique_ptr<Output> output, double rest)
    : m_room(std::make_shared<Room>(std::move(appPath), std::move(output), rest)),
      m_thread([room = m_room] { room->Run(); }) {}

SoundThread::~SoundThread() {
    if (m_room->Finish()) {
        m_thread.join();
    } else {
        m_thread.detach();
        leftBehind = true;
    }
}

void SoundThread::Begin(std::vector<Beginning> files) {
    m_room->Begin(std::move(files));
}

void SoundThread::End(Ending files) {
    m_room->End(files);
}

bool SoundThread::Waiting() const {
    return m_room->Waiting();
}

bool SoundThread::HoldsDevice() const {
    return m_room->HoldsDevice();
}

bool SoundLeftBehind() {
    return leftBehind;
}
