#include "listener.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <numeric>

namespace {

constexpr double rate = 44100;
constexpr std::size_t hop = 256;

// How bright each hop is: the second difference leaves the high partials, which a pluck or a
// hammer sets off and which die away first.
std::vector<double> Brightness(const std::vector<float>& samples) {
    std::vector<double> brightness{0};
    for (std::size_t start = hop; start + hop <= samples.size(); start += hop) {
        double sum = 0;
        for (std::size_t i = start; i < start + hop; ++i) {
            const double bend = static_cast<double>(samples[i]) -
                                2 * static_cast<double>(samples[i - 1]) +
                                static_cast<double>(samples[i - 2]);
            sum += bend * bend;
        }
        brightness.push_back(std::sqrt(sum / hop));
    }
    return brightness;
}

std::vector<double> Attacks(const std::vector<float>& samples) {
    constexpr double rise = 1.25;
    constexpr double silence = 2e-5;
    constexpr std::ptrdiff_t before = 3;
    constexpr double shortest = 0.02; // Between two attacks.
    const std::vector<double> brightness = Brightness(samples);
    std::vector<double> attacks;
    for (std::size_t i = 1; i < brightness.size(); ++i) {
        const auto here = brightness.begin() + static_cast<std::ptrdiff_t>(i);
        const double loudest =
            *std::max_element(here - std::min(before, static_cast<std::ptrdiff_t>(i)), here);
        const double moment = static_cast<double>(i * hop) / rate;
        if (*here > rise * loudest && *here > silence &&
            (attacks.empty() || moment - attacks.back() > shortest))
            attacks.push_back(moment);
    }
    return attacks;
}

// How alike a stretch is to itself so many samples later; 1 is the same.
double Likeness(const std::vector<double>& x, std::size_t lag) {
    const double* const later = x.data() + lag;
    double product = 0;
    double first = 1e-12;
    double second = 1e-12;
    for (std::size_t i = 0; i < x.size() - lag; ++i) {
        product += x[i] * later[i];
        first += x[i] * x[i];
        second += later[i] * later[i];
    }
    return product / std::sqrt(first * second);
}

// Where the parabola through three neighbours has its top.
double Top(const std::vector<double>& x, std::size_t lag) {
    const double left = Likeness(x, lag - 1);
    const double middle = Likeness(x, lag);
    const double right = Likeness(x, lag + 1);
    const double bend = left - 2 * middle + right;
    return static_cast<double>(lag) + (bend < 0 ? (left - right) / (2 * bend) : 0);
}

double Pitch(const std::vector<float>& samples, double from, double to) {
    constexpr std::size_t every = 4; // A quarter of the samples is enough.
    constexpr double hertz = rate / every;
    constexpr std::size_t shortest = 9;
    constexpr std::size_t longest = 150;
    constexpr double alike = 0.6;
    std::vector<double> x;
    const auto last = std::min(static_cast<std::size_t>(to * rate), samples.size());
    for (auto i = static_cast<std::size_t>(from * rate); i + every <= last; i += every) {
        const auto first = samples.begin() + static_cast<std::ptrdiff_t>(i);
        x.push_back(std::accumulate(first, first + every, 0.0));
    }
    if (x.size() < 2 * longest)
        return 0;
    std::vector<double> likeness(longest + 1);
    for (std::size_t lag = shortest; lag <= longest; ++lag)
        likeness[lag] = Likeness(x, lag);
    const double most = *std::max_element(likeness.begin(), likeness.end());
    if (most < alike)
        return 0;
    // Twice the period is as alike as the period: the first peak among the high ones.
    std::size_t lag = shortest + 1;
    while (lag < longest && (likeness[lag] < 0.93 * most || likeness[lag] < likeness[lag - 1] ||
                             likeness[lag] < likeness[lag + 1]))
        ++lag;
    // Many periods are measured more finely than one.
    double period = Top(x, lag);
    for (double periods = 2; periods * period < static_cast<double>(x.size()) / 3; periods *= 2)
        period = Top(x, static_cast<std::size_t>(std::lround(periods * period))) / periods;
    return 69 + 12 * std::log2(hertz / period / 440);
}

} // namespace

std::vector<HeardNote> Listen(const std::vector<float>& samples) {
    constexpr double attack = 0.15; // With what is left of the note before.
    constexpr double enough = 0.3;
    const std::vector<double> attacks = Attacks(samples);
    std::vector<HeardNote> notes;
    for (std::size_t i = 0; i < attacks.size(); ++i) {
        const double end = static_cast<double>(samples.size()) / rate;
        const double next = i + 1 < attacks.size() ? attacks[i + 1] : end;
        const double from = std::min(attacks[i] + attack, (attacks[i] + next) / 2);
        notes.push_back({Pitch(samples, from, std::min(next, from + enough)), attacks[i]});
    }
    return notes;
}

double Loudness(const std::vector<float>& samples, double pitch, double from, double to) {
    const double step = 2 * std::numbers::pi * 440 * std::exp2((pitch - 69) / 12) / rate;
    const std::complex<double> turn = std::polar(1.0, -step);
    const std::complex<double> slowTurn =
        std::polar(1.0, 2 * std::numbers::pi / std::max((to - from) * rate, 1.0));
    const auto first = static_cast<std::size_t>(from * rate);
    const auto last = std::min(static_cast<std::size_t>(to * rate), samples.size());
    std::complex<double> sum = 0;
    std::complex<double> wave = 1;
    std::complex<double> slow = 1; // A window that opens and closes softly.
    for (std::size_t i = first; i < last; ++i) {
        sum += (1 - slow.real()) * static_cast<double>(samples[i]) * wave;
        wave *= turn;
        slow *= slowTurn;
    }
    return last > first ? std::abs(sum) / static_cast<double>(last - first) : 0;
}

double LengthOf(const HeardNote& note, const std::vector<float>& samples, const HeardNote& alone,
                const std::vector<float>& samplesAlone) {
    constexpr double window = 0.06;
    constexpr double step = 0.01;
    constexpr double enough = 0.6; // Of the loudness alone.
    const double end = std::min(static_cast<double>(samples.size()) / rate - note.begin,
                                static_cast<double>(samplesAlone.size()) / rate - alone.begin);
    double length = 0.12; // Before, it may beat with the end of the note before.
    while (length + window < end &&
           Loudness(samples, alone.pitch, note.begin + length, note.begin + length + window) >
               enough * Loudness(samplesAlone, alone.pitch, alone.begin + length,
                                 alone.begin + length + window))
        length += step;
    return length + window / 2;
}
