// How soon what follows the pointer is where the pointer is, and what following costs.
//
//     pointer-following [--moves 500] [--seconds 10]

#include "benchmarks/ProcessUsage.h"
#include "benchmarks/Statistics.h"

#include "desktop/support/InputDriver.h"
#include "desktop/support/ProbeWindow.h"
#include "desktop/support/Program.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/VirtualDesktop.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <exception>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <thread>

using namespace quillon;
using namespace quillon::bench;

namespace {

using Clock = std::chrono::steady_clock;

constexpr test::Rgb kPaper{240, 240, 235};
/// From the pointer to the middle of the halo's line.
constexpr int kHaloRadius = 17;
constexpr std::chrono::milliseconds kPatience{500};
constexpr std::chrono::microseconds kPauseBetweenLooks{50};
constexpr std::chrono::milliseconds kRest{8};

/// The program on a desktop, with a window of another program all over it.
class Scene {
public:
    /// `chord` switches on what is to follow; `isThere` tells by the screen whether it has come to
    /// a place.
    Scene(std::string_view key, std::function<bool(const test::ScreenReader&, test::Pixel)> isThere)
        : m_isThere(std::move(isThere)) {
        m_input.chord({"Super_L", "Shift_L", key});
        test::eventually([&] {
            m_input.moveTo({399, 400});
            m_input.moveTo({400, 400});
            return m_isThere(m_screen, {400, 400});
        });
    }

    Samples timeMoves(int moves) {
        Samples times;
        for (int move = 0; move < moves; ++move) {
            // Far enough apart that nothing of one place is seen at the next.
            const test::Pixel place{400 + 1000 * (move % 2) + move % 7, 300 + 400 * (move % 2)};
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

    /// The share of one core, in percent, while the pointer moves a thousand times a second.
    double loadOfBurst(int seconds) {
        const ProcessUsage before = ProcessUsage::of(m_program.process().pid());
        const auto start = Clock::now();
        const int moves = seconds * 1000;
        for (int move = 0; move < moves; ++move) {
            m_input.moveTo({300 + move % 1000, 300 + move % 400});
            std::this_thread::sleep_until(start + (move + 1) * std::chrono::milliseconds(1));
        }
        const std::chrono::duration<double> elapsed = Clock::now() - start;
        const ProcessUsage used = ProcessUsage::of(m_program.process().pid()).since(before);
        const double ticksPerSecond = static_cast<double>(sysconf(_SC_CLK_TCK));
        return 100 * static_cast<double>(used.processorTicks) / ticksPerSecond / elapsed.count();
    }

    test::InputDriver& input() { return m_input; }

private:
    std::function<bool(const test::ScreenReader&, test::Pixel)> m_isThere;
    test::VirtualDesktop m_desktop;
    test::ProbeWindow m_paper{m_desktop.display(), {0, 0, 1920, 1080}, kPaper};
    test::Program m_program{m_desktop};
    test::InputDriver m_input{m_desktop.connection()};
    test::ScreenReader m_screen{m_desktop.connection()};
};

bool isHaloAt(const test::ScreenReader& screen, test::Pixel place) {
    return !test::isNear(screen.pixel({place.x - kHaloRadius, place.y}), kPaper, 40);
}

/// The circle of the spotlight: clear at the pointer.
bool isCircleAt(const test::ScreenReader& screen, test::Pixel place) {
    return test::isNear(screen.pixel(place), kPaper, 2);
}

std::string rowOf(const std::string& name, const Samples& times, double load) {
    return row({name, std::to_string(times.count()), fixed(times.percentile(50), 2),
                fixed(times.percentile(99), 2), fixed(load, 1)});
}

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        const int moves = option(options, "--moves", 500);
        const int seconds = option(options, "--seconds", 10);
        // Pauses of microseconds are kept as such.
        prctl(PR_SET_TIMERSLACK, 1);
        std::cout << head(
            {"pointer → picture", "moves", "p50 ms", "p99 ms", "% of a core at 1000 Hz"});
        {
            Scene halo("h", isHaloAt);
            const Samples times = halo.timeMoves(moves);
            std::cout << rowOf("halo", times, halo.loadOfBurst(seconds)) << std::flush;
        }
        {
            Scene spotlight("l", isCircleAt);
            const Samples times = spotlight.timeMoves(moves);
            std::cout << rowOf("spotlight", times, spotlight.loadOfBurst(seconds)) << std::flush;
            spotlight.input().chord({"Super_L", "Shift_L", "h"});
            std::cout << row({"both", "", "", "", fixed(spotlight.loadOfBurst(seconds), 1)});
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "pointer-following: " << error.what() << '\n';
        return 1;
    }
}
