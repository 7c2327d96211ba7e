#include "desktop/support/Eventually.h"

#include <thread>

namespace quillon::test {

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds kPause{3};

} // namespace

bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds bound) {
    const auto end = Clock::now() + bound;
    while (!condition()) {
        if (Clock::now() >= end) {
            return false;
        }
        std::this_thread::sleep_for(kPause);
    }
    return true;
}

bool stays(const std::function<bool()>& condition, std::chrono::milliseconds span) {
    return !eventually([&] { return !condition(); }, span);
}

} // namespace quillon::test
