#include "benchmarks/PenMeter.h"

#include "benchmarks/ScreenPart.h"

#include <cmath>
#include <stdexcept>
#include <thread>

namespace quillon::bench {

namespace {

using Clock = std::chrono::steady_clock;
using test::Pixel;

constexpr int kMotionsOfAStroke = 80;
constexpr int kStep = 16;
constexpr int kMargin = 120;
constexpr int kLineHeight = 150;
constexpr int kWaveHeight = 40;
constexpr double kWaveLength = 300;
/// Half the side of the square that is looked at; its nearest ink lies further away.
constexpr int kReach = 4;

constexpr std::chrono::milliseconds kPatience{5000};
/// All else that was asked for comes first.
constexpr std::chrono::seconds kPatienceForUndo{30};
constexpr std::chrono::microseconds kPauseBetweenLooks{50};
/// The pace of a mouse that reports 125 times a second.
constexpr std::chrono::milliseconds kRest{8};

Pixel placeOn(int baseline, int motion) {
    const int x = kMargin + motion * kStep;
    const double wave = kWaveHeight * std::sin(x * 2 * 3.14159265358979 / kWaveLength);
    return {x, baseline + static_cast<int>(std::lround(wave))};
}

/// In the middle of the stroke along the upper edge.
Pixel witness() {
    return placeOn(kMargin, kMotionsOfAStroke / 2);
}

} // namespace

PenMeter::PenMeter(test::VirtualDesktop& desktop)
    : m_connection(desktop.connection())
    , m_input(desktop.connection()) {}

PenResult PenMeter::measurePage(Pen& pen, int strokes) {
    PenResult result;
    m_blank = pixelsAround(witness());
    for (int stroke = 0; stroke < strokes; ++stroke) {
        measureStrokeAlong(kMargin + stroke * kLineHeight, result);
    }
    if (pixelsAround(witness()) == m_blank) {
        throw std::runtime_error("the strokes left no ink");
    }
    pen.clear();
    awaitErased();
    return result;
}

void PenMeter::measureStroke(PenResult& result) {
    m_blank = pixelsAround(witness());
    measureStrokeAlong(kMargin, result);
}

void PenMeter::awaitErased() const {
    if (!test::eventually([this] { return pixelsAround(witness()) == m_blank; },
                          kPatienceForUndo)) {
        throw std::runtime_error("the stroke does not go");
    }
}

void PenMeter::measureStrokeAlong(int baseline, PenResult& result) {
    m_input.moveTo(placeOn(baseline, 0));
    m_input.press();
    std::this_thread::sleep_for(kRest);
    for (int motion = 1; motion <= kMotionsOfAStroke; ++motion) {
        if (const auto time = timeMotion(placeOn(baseline, motion))) {
            result.latency.add(time->count());
            if (motion == 1) {
                result.latencyOfFirst.add(time->count());
            }
        } else {
            ++result.missed;
        }
        std::this_thread::sleep_for(kRest);
    }
    m_input.release();
    std::this_thread::sleep_for(kRest);
}

std::optional<std::chrono::duration<double, std::milli>> PenMeter::timeMotion(Pixel place) {
    const Pixels before = pixelsAround(place);
    const auto start = Clock::now();
    m_input.moveTo(place);
    while (pixelsAround(place) == before) {
        if (Clock::now() - start > kPatience) {
            return std::nullopt;
        }
        std::this_thread::sleep_for(kPauseBetweenLooks);
    }
    return Clock::now() - start;
}

PenMeter::Pixels PenMeter::pixelsAround(Pixel place) const {
    constexpr int side = 2 * kReach + 1;
    return screenPart(m_connection, place.x - kReach, place.y - kReach, side, side);
}

} // namespace quillon::bench
