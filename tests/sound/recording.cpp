#include "recording.h"

#include <array>
#include <limits>
#include <utility>

namespace {

constexpr double forEver = std::numeric_limits<double>::infinity();

} // namespace

bool PulledOutput::Open(Render render) {
    const std::scoped_lock lock(m_mutex);
    m_render = std::move(render);
    m_opened.notify_all();
    return true;
}

void PulledOutput::Close() {
    const std::scoped_lock lock(m_mutex);
    m_render = nullptr;
}

void PulledOutput::Pull(float* left, float* right, int frames) {
    std::unique_lock lock(m_mutex);
    m_opened.wait(lock, [this] { return m_render != nullptr; });
    m_render(left, right, frames);
}

Recording::Recording(const QString& appPath)
    : m_output(new PulledOutput), m_midi(appPath, std::unique_ptr<Output>(m_output), forEver) {}

void Recording::WaitUntil(double seconds) {
    while (Now() < seconds) {
        if (onWait)
            onWait();
        Pull();
        m_left.insert(m_left.end(), m_period.begin(), m_period.end());
    }
}

void Recording::Pull() {
    std::array<float, period> right{};
    m_output->Pull(m_period.data(), right.data(), period);
}
