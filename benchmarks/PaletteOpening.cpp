// How long the palette's menus and its popover take from the press to their first picture, and how
// soon the palette follows a drag.
//
//     palette-opening [--rounds 3] [--times 7] [--rows]

#include "benchmarks/Report.h"
#include "benchmarks/Statistics.h"

#include "desktop/support/InputDriver.h"
#include "desktop/support/Program.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/StoredSettings.h"
#include "desktop/support/VirtualDesktop.h"

#include <chrono>
#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillon::bench {
namespace {

using test::Pixel;
using test::Rgb;

constexpr Pixel kPalette{960, 110};
/// Below the palette, where every menu and the popover show nothing but their panel.
constexpr int kPanelY = 154;

bool isLight(Rgb color) {
    return color.red > 190 && color.green > 190 && color.blue > 190;
}

class OpenedPalette {
public:
    explicit OpenedPalette(test::VirtualDesktop& desktop)
        : m_desktop(desktop) {
        test::withStoredSettings(desktop.configFolder(), [](AppSettings& settings) {
            settings.toolbarPosition = ToolbarPosition{kPalette.x, kPalette.y};
        });
        m_program = std::make_unique<test::Program>(desktop);
        m_input.chord({"Super_L", "Shift_L", "s"});
        if (!m_screen.waitForPixel({kPalette.x - 92, kPalette.y + 20}, isLight)) {
            throw std::runtime_error("the palette does not appear");
        }
    }

    /// Milliseconds from the press on a control to the panel at `place`, which is then closed.
    double open(int control, int button, Pixel place) {
        m_input.moveTo({kPalette.x + control, kPalette.y});
        settle();
        const auto start = std::chrono::steady_clock::now();
        m_input.press(button);
        if (!m_screen.waitForPixel(place, isLight)) {
            throw std::runtime_error("nothing opens");
        }
        const double time = millisecondsSince(start);
        m_input.release(button);
        m_input.tap("Escape");
        m_screen.waitForPixel(place, [](Rgb color) { return !isLight(color); });
        settle();
        return time;
    }

    /// Milliseconds from each motion of a drag to the palette's edge in its new place.
    Samples drag(int steps) {
        Samples following;
        Pixel pointer{kPalette.x - 92, kPalette.y + 20};
        m_input.moveTo(pointer);
        m_input.press();
        for (int step = 0; step < steps; ++step) {
            pointer = {500 + 12 * step, 500};
            const auto start = std::chrono::steady_clock::now();
            m_input.moveTo(pointer);
            // The panel's centre goes to the pointer.
            if (!m_screen.waitForPixel({pointer.x + 222, pointer.y + 20}, isLight)) {
                throw std::runtime_error("the palette does not follow");
            }
            following.add(millisecondsSince(start));
            settle(20);
        }
        m_input.release();
        return following;
    }

private:
    using Instant = std::chrono::steady_clock::time_point;

    static double millisecondsSince(Instant start) {
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        return time.count();
    }
    static void settle(int milliseconds = 150) {
        test::stays([] { return true; }, std::chrono::milliseconds(milliseconds));
    }

    test::VirtualDesktop& m_desktop;
    test::InputDriver m_input{m_desktop.connection()};
    test::ScreenReader m_screen{m_desktop.connection()};
    std::unique_ptr<test::Program> m_program;
};

/// One figure of the palette, with its median in each round.
struct Figure {
    std::string name;
    std::function<Samples(OpenedPalette&)> measure;
    std::vector<double> rounds = {};
};

Figure opening(const std::string& name, int times, int control, int button, Pixel place) {
    return {name + ": press → picture", [=](OpenedPalette& palette) {
                Samples samples;
                for (int time = 0; time < times; ++time) {
                    samples.add(palette.open(control, button, place));
                }
                return samples;
            }};
}

} // namespace
} // namespace quillon::bench

int main(int count, char** arguments) {
    using namespace quillon::bench;
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        const int rounds = option(options, "--rounds", 3);
        const int times = option(options, "--times", 7);
        std::vector<Figure> figures = {
            opening("tools", times, -192, 1, {kPalette.x - 192 + 60, kPanelY}),
            opening("colours", times, -125, 1, {kPalette.x - 125 + 180, kPanelY}),
            opening("widths", times, -58, 1, {kPalette.x - 58 + 120, kPanelY}),
            opening("any colour", times, -125, 3, {kPalette.x + 120, kPanelY + 6}),
            {"motion of a drag → palette", [](OpenedPalette& palette) { return palette.drag(50); }},
        };
        for (int round = 0; round < rounds; ++round) {
            quillon::test::VirtualDesktop desktop;
            OpenedPalette palette(desktop);
            for (Figure& figure : figures) {
                figure.rounds.push_back(figure.measure(palette).percentile(50));
            }
        }
        Report report(options);
        for (const Figure& figure : figures) {
            report.add({"palette", figure.name, "ms", figure.rounds});
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "palette-opening: " << error.what() << '\n';
        return 1;
    }
}
