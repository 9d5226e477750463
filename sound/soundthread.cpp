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

// What the threads share. The lock guards everything but the synthesiser, which belongs to the
// sound thread while no device is open, and to the device's thread while one is.
class SoundThread::Room {
public:
    Room(QString appPath, std::unique_ptr<Output> output, double rest)
        : m_appPath(std::move(appPath)), m_output(std::move(output)), m_rest(rest) {}

    void Begin(std::vector<Beginning> files) {
        const std::scoped_lock lock(m_mutex);
        for (Beginning& file : files)
            m_begun.push_back(std::move(file));
        m_changed.notify_all();
    }

    void End(Ending files) {
        const std::scoped_lock lock(m_mutex);
        const auto waited =
            std::erase_if(m_begun, [=](const Beginning& file) { return file.id == files.id; });
        if (waited == 0 && m_open)
            m_ended.push_back(files);
    }

    bool Waiting() const {
        const std::scoped_lock lock(m_mutex);
        return !m_begun.empty();
    }

    bool HoldsDevice() const {
        const std::scoped_lock lock(m_mutex);
        return m_open;
    }

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
        m_changed.wait(lock, [this] { return m_ending || !m_begun.empty(); });
        if (m_ending)
            return;
        lock.unlock();
        const bool open = OpenDevice();
        lock.lock();
        m_open = open;
        if (!open)
            m_begun.clear(); // Silence; the next note tries again.
    }

    void WatchDevice(std::unique_lock<std::mutex>& lock) {
        m_changed.wait_for(lock, 250ms, [this] { return m_ending; });
        const bool needed = m_resting < m_rest || !m_begun.empty();
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
        m_open = false;
        m_ended.clear();
    }

    // On the device's thread, which must not wait for any other.
    void Render(float* left, float* right, int frames) {
        if (const std::unique_lock lock(m_mutex, std::try_to_lock); lock)
            TakeRequests();
        m_synthesiser->Render(left, right, frames);
        m_resting = m_synthesiser->Resting();
    }

    void TakeRequests() {
        m_open = true; // Even before Open has returned: what began now can be ended.
        for (const Ending& files : m_ended)
            m_synthesiser->End(files);
        for (const Beginning& file : m_begun)
            m_synthesiser->Begin(file);
        m_ended.clear();
        m_begun.clear();
    }

    const QString m_appPath;
    const std::unique_ptr<Output> m_output;
    const double m_rest;
    std::unique_ptr<Synthesiser> m_synthesiser;
    std::atomic<double> m_resting = 0;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Beginning> m_begun; // For the device's thread to take...
    std::vector<Ending> m_ended;    // ...and these.
    bool m_open = false;
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
