#include "benchmarks/FollowerScene.h"

#include "benchmarks/ProcessUsage.h"

#include <unistd.h>

#include <chrono>
#include <stdexcept>
#include <thread>

namespace quillon::bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPatience{2000};
constexpr std::chrono::microseconds kPauseBetweenLooks{50};
constexpr std::chrono::milliseconds kRest{8};
constexpr test::Pixel kHere{400, 300};
constexpr test::Pixel kFarAway{1400, 700};

} // namespace

FollowerScene::FollowerScene(const test::VirtualDesktop::Options& screen, Look isThere)
    : m_isThere(isThere)
    , m_desktop(screen)
    , m_paper(m_desktop.display(), {0, 0, screen.width, screen.height}, followedPaper) {}

void FollowerScene::waitUntilFollowed() {
    const bool isFollowed = test::eventually([&] {
        m_input.moveTo(kFarAway);
        m_input.moveTo(kHere);
        return test::eventually(
            [&] { return m_isThere(m_screen, kHere) && !m_isThere(m_screen, kFarAway); },
            kPatience);
    });
    if (!isFollowed) {
        throw std::runtime_error("nothing follows the pointer");
    }
}

Samples FollowerScene::timeMoves(Way way, int moves) {
    Samples times;
    for (int move = 0; move < moves; ++move) {
        const test::Pixel place = way(move);
        const auto start = Clock::now();
        m_input.moveTo(place);
        while (!m_isThere(m_screen, place)) {
            if (Clock::now() - start > kPatience) {
                throw std::runtime_error("a move was not followed");
            }
            std::this_thread::sleep_for(kPauseBetweenLooks);
        }
        times.add(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
        std::this_thread::sleep_for(kRest);
    }
    return times;
}

double FollowerScene::loadOfBurst(int seconds) {
    const ProcessUsage before = ProcessUsage::of(process());
    const auto start = Clock::now();
    const int moves = seconds * 1000;
    for (int move = 0; move < moves; ++move) {
        m_input.moveTo({300 + move % 1000, 300 + move % 400});
        std::this_thread::sleep_until(start + (move + 1) * std::chrono::milliseconds(1));
    }
    const std::chrono::duration<double> elapsed = Clock::now() - start;
    const ProcessUsage used = ProcessUsage::of(process()).since(before);
    const double ticksPerSecond = static_cast<double>(sysconf(_SC_CLK_TCK));
    return 100 * static_cast<double>(used.processorTicks) / ticksPerSecond / elapsed.count();
}

ProgramScene::ProgramScene(const test::VirtualDesktop::Options& screen, std::string_view key,
                           Look isThere)
    : FollowerScene(screen, isThere) {
    toggle(key);
    waitUntilFollowed();
}

void ProgramScene::toggle(std::string_view key) {
    input().chord({"Super_L", "Shift_L", key});
}

BareScene::BareScene(const test::VirtualDesktop::Options& screen, const std::string& follower,
                     Look isThere)
    : FollowerScene(screen, isThere)
    , m_follower({QUILLON_BARE_FOLLOWER_PATH, follower}, desktop().environment()) {
    waitUntilFollowed();
}

} // namespace quillon::bench
