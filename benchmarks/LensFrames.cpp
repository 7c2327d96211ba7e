// How soon the lens shows a change of the screen, how many frames of a film it shows, and what that
// costs.
//
//     lens-frames [--changes 200] [--seconds 10] [--width 1920] [--height 1080]
//
// Where xzoom is installed it shows the same film, as fast as it can be told to.

#include "benchmarks/ProcessUsage.h"
#include "benchmarks/Statistics.h"

#include "desktop/support/Canvas.h"
#include "desktop/support/InputDriver.h"
#include "desktop/support/Program.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/StoredSettings.h"
#include "desktop/support/VirtualDesktop.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <atomic>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <thread>

using namespace quillon;
using namespace quillon::bench;

namespace {

using Clock = std::chrono::steady_clock;

constexpr test::Canvas::Frame kFilm{300, 300, 400, 400};
constexpr test::Pixel kPointer{500, 500};
/// Within the window of every magnifier, clear of the film.
constexpr test::Pixel kPlaceInLens{kPointer.x + 350, kPointer.y};
/// How often its key is pressed until it looks again without a pause.
constexpr int kPausesOfXzoom = 4;
constexpr int kFramesPerSecond = 60;
constexpr std::chrono::milliseconds kPatience{500};
constexpr std::chrono::seconds kPatienceForStart{15};
constexpr std::chrono::seconds kTimeToSettle{1};
constexpr std::chrono::microseconds kPauseBetweenLooks{100};
/// Not a multiple of a frame, so that changes fall anywhere between two frames.
constexpr std::chrono::milliseconds kRest{53};

struct Magnifier {
    std::string name;
    /// Empty for the lens of this project.
    std::vector<std::string> command = {};
};

/// Those that are installed.
std::vector<Magnifier> magnifiers() {
    std::vector<Magnifier> all{{"lens"}};
    if (std::filesystem::exists("/usr/bin/xzoom")) {
        all.push_back({"xzoom", {"xzoom", "-mag", "2", "-source", "100x100+450+450"}});
    }
    return all;
}

/// A magnifier that shows the middle of a window which changes its colour.
class Scene {
public:
    Scene(int width, int height, const Magnifier& magnifier)
        : m_desktop({.width = width, .height = height}) {
        m_input.moveTo(kPointer);
        m_process = magnifier.command.empty() ? startLens() : startOther(magnifier);
        const bool isThere = test::eventually([this] {
            show(m_frame + 1);
            std::this_thread::sleep_for(m_rest);
            return seen() == colorOf(m_frame);
        });
        if (!isThere) {
            throw std::runtime_error(magnifier.name + " did not come up");
        }
    }

    /// From a change below the pointer to its pixel in the lens, in milliseconds.
    Samples timeChanges(int changes) {
        Samples times;
        for (int change = 0; change < changes; ++change) {
            const auto start = Clock::now();
            show(m_frame + 1);
            while (seen() != colorOf(m_frame)) {
                if (Clock::now() - start > kPatience) {
                    throw std::runtime_error("a change was not shown");
                }
                std::this_thread::sleep_for(kPauseBetweenLooks);
            }
            times.add(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
            std::this_thread::sleep_for(kRest);
        }
        return times;
    }

    struct Film {
        double shownPerSecond = 0;
        /// Of one core, in percent.
        double load = 0;
    };
    /// Plays a film below the pointer and looks on.
    Film playFilm(int seconds) {
        const ProcessUsage before = ProcessUsage::of(m_process);
        const auto start = Clock::now();
        std::atomic<bool> isOver = false;
        std::thread player([&] {
            for (int frame = 0; frame < seconds * kFramesPerSecond; ++frame) {
                show(m_frame + 1);
                std::this_thread::sleep_until(
                    start + (frame + 1) * std::chrono::microseconds(1000000 / kFramesPerSecond));
            }
            isOver = true;
        });
        int shown = 0;
        for (test::Rgb last = seen(); !isOver;) {
            const test::Rgb now = seen();
            shown += now == last ? 0 : 1;
            last = now;
            std::this_thread::sleep_for(kPauseBetweenLooks);
        }
        player.join();
        const std::chrono::duration<double> elapsed = Clock::now() - start;
        return {shown / elapsed.count(), loadSince(before, elapsed.count())};
    }

    long wakeUpsAtRest(int seconds) {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        const ProcessUsage before = ProcessUsage::of(m_process);
        std::this_thread::sleep_for(std::chrono::seconds(seconds));
        return ProcessUsage::of(m_process).since(before).contextSwitches;
    }

private:
    pid_t startLens() {
        test::withStoredSettings(m_desktop.configFolder(), [](AppSettings& settings) {
            settings.showZoomCrosshair = false;
            settings.zoomWindowOffsetX = 250;
            settings.zoomWindowOffsetY = -100;
        });
        m_program.emplace(m_desktop);
        m_input.chord({"Super_L", "Shift_L", "x"});
        return m_program->process().pid();
    }

    pid_t startOther(const Magnifier& magnifier) {
        m_rest = std::chrono::milliseconds(300);
        const pid_t process = m_desktop.start(magnifier.command).pid();
        if (!test::eventually([this] { return !windows().empty(); }, kPatienceForStart)) {
            throw std::runtime_error(magnifier.name + " has no window");
        }
        std::this_thread::sleep_for(kTimeToSettle);
        moveWindowAside();
        // From 200 milliseconds between two looks to none; it has the keyboard.
        for (int press = 0; press < kPausesOfXzoom; ++press) {
            m_input.tap("d");
        }
        return process;
    }
    std::vector<xcb_window_t> windows() {
        const auto& connection = m_desktop.connection();
        return connection.property(connection.root(), "_NET_CLIENT_LIST");
    }
    /// The magnifier has the only window that the window manager knows of.
    void moveWindowAside() {
        xcb_connection_t* connection = m_desktop.connection().get();
        for (const xcb_window_t window : windows()) {
            const std::uint32_t place[] = {750, 400};
            xcb_configure_window(connection, window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y,
                                 place);
        }
        m_desktop.connection().synchronise();
    }

    static std::uint32_t rgbOf(std::uint32_t frame) {
        // Neighbouring frames differ in every component.
        return (frame * 7 & 0xFF) << 16 | (frame * 13 & 0xFF) << 8 | (frame & 0xFF);
    }
    static test::Rgb colorOf(std::uint32_t frame) {
        const std::uint32_t color = rgbOf(frame);
        return {static_cast<int>(color >> 16), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color & 0xFF)};
    }

    void show(std::uint32_t frame) {
        m_frame = frame;
        m_film.fill({0, 0, kFilm.width, kFilm.height}, rgbOf(frame));
    }
    /// The middle of the lens.
    test::Rgb seen() const { return m_screen.pixel(kPlaceInLens); }

    double loadSince(const ProcessUsage& before, double seconds) {
        const ProcessUsage used = ProcessUsage::of(m_process).since(before);
        const double ticksPerSecond = static_cast<double>(sysconf(_SC_CLK_TCK));
        return 100 * static_cast<double>(used.processorTicks) / ticksPerSecond / seconds;
    }

    test::VirtualDesktop m_desktop;
    test::Canvas m_film{m_desktop.display(), kFilm};
    std::optional<test::Program> m_program;
    test::InputDriver m_input{m_desktop.connection()};
    test::ScreenReader m_screen{m_desktop.connection()};
    pid_t m_process = 0;
    std::chrono::milliseconds m_rest = kRest;
    std::uint32_t m_frame = 0;
};

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        const int changes = option(options, "--changes", 200);
        const int seconds = option(options, "--seconds", 10);
        const int width = option(options, "--width", 1920);
        const int height = option(options, "--height", 1080);
        prctl(PR_SET_TIMERSLACK, 1);
        std::cout << head({"magnifier", "screen", "change → lens p50 ms", "p99 ms",
                           "frames a second of 60", "% of a core", "ms of a core a frame",
                           "wake-ups in 5 s at rest"});
        for (const Magnifier& magnifier : magnifiers()) {
            Scene scene(width, height, magnifier);
            const Samples times = scene.timeChanges(changes);
            const auto film = scene.playFilm(seconds);
            std::cout << row({magnifier.name, std::to_string(width) + "×" + std::to_string(height),
                              fixed(times.percentile(50), 2), fixed(times.percentile(99), 2),
                              fixed(film.shownPerSecond, 1), fixed(film.load, 1),
                              fixed(10 * film.load / film.shownPerSecond, 2),
                              std::to_string(scene.wakeUpsAtRest(5))})
                      << std::flush;
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "lens-frames: " << error.what() << '\n';
        return 1;
    }
}
