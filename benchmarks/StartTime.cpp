// How long the program takes from its start until its shortcuts are live, and until its item stands
// in the tray as well.
//
//     start-time [--rounds 5] [--starts 5] [--rows]

#include "benchmarks/Report.h"
#include "benchmarks/Statistics.h"

#include "desktop/support/Program.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/VirtualDesktop.h"

#include <chrono>
#include <exception>
#include <iostream>
#include <stdexcept>

using namespace quillon;
using namespace quillon::bench;

namespace {

/// Milliseconds.
constexpr double kLongest = 150;
constexpr int kMiddleOfPanel = 15;
constexpr int kWidthOfItem = 40;

class Starts {
public:
    Starts() {
        m_desktop.startTray();
        test::Program program(m_desktop);
        if (!test::eventually([this] { return findItem(); })) {
            throw std::runtime_error("no item comes up");
        }
        end(program);
    }

    void time(Samples& shortcuts, Samples& everything) {
        const auto start = std::chrono::steady_clock::now();
        const auto elapsed = [&] {
            const auto now = std::chrono::steady_clock::now();
            return std::chrono::duration<double, std::milli>(now - start).count();
        };
        test::Program program(m_desktop);
        shortcuts.add(elapsed());
        if (!program.isReady() || !m_screen.waitForPixel(m_item, isInk)) {
            throw std::runtime_error("the program did not start");
        }
        everything.add(elapsed());
        end(program);
    }

private:
    /// The panel is dark and its items are light.
    static bool isInk(test::Rgb color) { return color.red > 180; }

    bool findItem() {
        for (int x = 0; x < kWidthOfItem; ++x) {
            if (isInk(m_screen.pixel({x, kMiddleOfPanel}))) {
                m_item = {x, kMiddleOfPanel};
                return true;
            }
        }
        return false;
    }

    void end(test::Program& program) {
        const auto isGone = [](test::Rgb color) { return !isInk(color); };
        if (program.terminate() != 0 || !m_screen.waitForPixel(m_item, isGone)) {
            throw std::runtime_error("the program did not end well");
        }
    }

    test::VirtualDesktop m_desktop;
    test::ScreenReader m_screen{m_desktop.connection()};
    /// Light while the item stands in the tray.
    test::Pixel m_item;
};

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        const int rounds = option(options, "--rounds", 5);
        const int startsOfRound = option(options, "--starts", 5);
        std::vector<double> shortcuts;
        std::vector<double> everything;
        for (int round = 0; round < rounds; ++round) {
            Starts starts;
            Samples ofShortcuts;
            Samples ofEverything;
            for (int index = 0; index < startsOfRound; ++index) {
                starts.time(ofShortcuts, ofEverything);
            }
            shortcuts.push_back(ofShortcuts.percentile(50));
            everything.push_back(ofEverything.percentile(50));
        }
        Report report(options);
        report.add({"start", "start → shortcuts live", "ms", shortcuts});
        report.add({"start", "start → shortcuts live and item in the tray", "ms", everything,
                    atMost(kLongest)});
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "start-time: " << error.what() << '\n';
        return 1;
    }
}
