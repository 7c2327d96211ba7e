// How long the settings window takes from its menu entry to its picture, how many frames a second
// a dragged slider shows while each change goes to the store, and what the window leaves in memory
// when it has closed.
//
//     settings-window [--rounds 3] [--openings 5] [--seconds 5]

#include "benchmarks/ProcessUsage.h"
#include "benchmarks/Report.h"
#include "benchmarks/Statistics.h"

#include "desktop/storage/SqliteHandles.h"
#include "desktop/support/InputDriver.h"
#include "desktop/support/ProbeWindow.h"
#include "desktop/support/Program.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/StoredSettings.h"
#include "desktop/support/VirtualDesktop.h"

#include <sys/prctl.h>

#include <algorithm>
#include <cmath>
#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace quillon;
using namespace quillon::bench;

namespace {

using Clock = std::chrono::steady_clock;
using test::Pixel;
using test::Rgb;

constexpr const char* kTitle = "Quillon Mark Settings";
constexpr Rgb kPaper{40, 60, 90};
constexpr std::chrono::microseconds kPauseBetweenLooks{50};
/// 125 motions a second.
constexpr std::chrono::milliseconds kMotionInterval{8};
/// Where the halo stays while the pointer works in the settings.
constexpr Pixel kHaloPlace{300, 700};
constexpr int kTabCount = 6;
constexpr double kLongestOpening = 150;
constexpr double kFramesPerSecond = 60;
constexpr double kEveryChange = 100;
constexpr double kMostLeft = 3;

bool isAccent(Rgb seen) {
    return seen.blue > seen.red + 60;
}
bool isSelected(Rgb seen) {
    return seen.blue > seen.red + 12;
}
bool isPage(Rgb seen) {
    return test::isNear(seen, {234, 234, 234}, 10);
}
/// Of a knob that is held down.
bool isKnob(Rgb seen) {
    return test::isNear(seen, {235, 235, 235}, 5);
}

bool isHalo(Rgb seen) {
    return test::isNear(seen, {50, 173, 230}, 40);
}

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void settle(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void await(const std::function<bool()>& condition, const std::string& otherwise) {
    const auto start = Clock::now();
    while (!condition()) {
        if (millisecondsSince(start) > 5000) {
            throw std::runtime_error(otherwise);
        }
        std::this_thread::sleep_for(kPauseBetweenLooks);
    }
}

/// Tells by the file, as another program would, whether something was written.
class StoreWatch {
public:
    explicit StoreWatch(const std::string& configFolder) {
        sqlite3* database = nullptr;
        const std::string file = configFolder + "/quillon-mark/settings.sqlite";
        if (sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
            throw std::runtime_error("the store cannot be opened");
        }
        m_database.reset(database);
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(database, "PRAGMA data_version", -1, &statement, nullptr);
        m_version.reset(statement);
        hasChanged();
    }

    /// Since the question before.
    bool hasChanged() {
        sqlite3_step(m_version.get());
        const int version = sqlite3_column_int(m_version.get(), 0);
        sqlite3_reset(m_version.get());
        return std::exchange(m_lastVersion, version) != version;
    }

private:
    desktop::SqliteDatabase m_database;
    desktop::SqliteStatement m_version;
    int m_lastVersion = 0;
};

/// What is to be seen of one place of the knob.
struct Shown {
    Pixel place;
    std::function<bool(Rgb)> condition;
};

/// One run of motions and what came of them.
struct Drag {
    /// From motion to picture, of those that were shown in time, in milliseconds.
    Samples latencies;
    /// In the file by the time they were shown.
    int stored = 0;
    double seconds = 0;
};

/// The program with its item in a tray, on a desktop of its own.
class Scene {
public:
    Scene() {
        m_desktop.startTray();
        test::withStoredSettings(m_desktop.configFolder(), [](AppSettings& settings) {
            settings.haloSize = 100.0;
            settings.lineWidth = 1.0;
        });
        m_program = std::make_unique<test::Program>(m_desktop);
    }

    pid_t process() { return m_program->process().pid(); }
    test::InputDriver& input() { return m_input; }
    bool shows(const Shown& what) const { return what.condition(m_screen.pixel(what.place)); }

    /// Milliseconds from the choice of the menu entry to the window with its page.
    double open() {
        test::eventually([this] {
            m_input.click({12, 15});
            return m_screen.waitForPixel(
                {60, 60}, [](Rgb seen) { return seen.red > 200; }, std::chrono::milliseconds(300));
        });
        settle(100);
        const auto start = Clock::now();
        m_input.chord({"Control_L", "comma"});
        await([this] { return isPainted(); }, "the window does not open");
        const double time = millisecondsSince(start);
        settle(300);
        return time;
    }
    void close() {
        auto& connection = m_desktop.connection();
        connection.askWindowManager("_NET_CLOSE_WINDOW", connection.windowsTitled(kTitle).at(0),
                                    {0, 2});
        await([&] { return connection.windowsTitled(kTitle).empty(); }, "the window stays");
        settle(300);
    }
    /// Switches the halo on and leaves it behind, well away from the window.
    void showHalo() {
        m_input.chord({"Super_L", "Shift_L", "h"});
        // It comes up with the looks that it is made with.
        const Shown halo{{kHaloPlace.x - 17, kHaloPlace.y}, isHalo};
        await(
            [&] {
                m_input.moveTo({kHaloPlace.x - 1, kHaloPlace.y});
                m_input.moveTo(kHaloPlace);
                settle(5);
                return shows(halo);
            },
            "no halo comes up");
    }
    void showTab(int tab) {
        m_input.click(at({50 + 100 * tab, 28}));
        await([&] { return isSelected(m_screen.pixel(at({8 + 100 * tab, 50}))); }, "no such tab");
        settle(100);
    }

    /// A place in the window's content, on the screen.
    Pixel at(Pixel place) const { return {m_corner.x + place.x, m_corner.y + place.y}; }
    /// The middle of a row: its number from the top, and how many sections began above it.
    Pixel row(int index, int sections, int x) const {
        return at({x, 117 + 37 * index + 36 * (sections - 1)});
    }

    /// Moves the knob from spot to spot, 125 times a second. A motion is shown when all that it
    /// changes stands on the screen; one that is not by the time of the next is lost.
    Drag drag(const std::vector<Pixel>& spots,
              const std::function<std::vector<Shown>(std::size_t)>& shownAt, int seconds) {
        Drag result;
        StoreWatch store(m_desktop.configFolder());
        m_input.moveTo(spots.back());
        m_input.press();
        settle(300);
        store.hasChanged();
        const auto start = Clock::now();
        const int motions = seconds * 125;
        for (int motion = 0; motion < motions; ++motion) {
            const auto spot = static_cast<std::size_t>(motion) % spots.size();
            const auto shown = shownAt(spot);
            const auto due = start + motion * kMotionInterval;
            std::this_thread::sleep_until(due);
            const auto sent = Clock::now();
            m_input.moveTo(spots[spot]);
            bool isShown = false;
            while (!isShown && Clock::now() < due + kMotionInterval) {
                isShown = std::ranges::all_of(shown, [&](const Shown& one) { return shows(one); });
            }
            const double latency = millisecondsSince(sent);
            const bool isStored = store.hasChanged();
            if (isShown) {
                result.latencies.add(latency);
                result.stored += isStored ? 1 : 0;
            }
        }
        result.seconds = millisecondsSince(start) / 1000;
        m_input.release();
        settle(300);
        return result;
    }

private:
    /// The tab that is selected, the page, and the last control.
    bool isPainted() {
        return locate() && isSelected(m_screen.pixel(at({8, 50}))) &&
               isPage(m_screen.pixel(at({300, 400}))) &&
               isAccent(m_screen.pixel({row(1, 2, 546).x - 12, row(1, 2, 546).y}));
    }
    bool locate() {
        auto& connection = m_desktop.connection();
        const auto windows = connection.windowsTitled(kTitle);
        if (windows.empty()) {
            return false;
        }
        const xcb_rectangle_t place = connection.place(windows.front());
        m_corner = {place.x, place.y + place.height - 500};
        return true;
    }

    test::VirtualDesktop m_desktop;
    test::ProbeWindow m_paper{m_desktop.display(), {0, 40, 1920, 1000}, kPaper};
    test::InputDriver m_input{m_desktop.connection()};
    test::ScreenReader m_screen{m_desktop.connection()};
    std::unique_ptr<test::Program> m_program;
    Pixel m_corner;
};

/// Each field has a value for each round.
struct Openings {
    std::vector<double> first;
    std::vector<double> slowestLater;
    /// Megabytes that the closed window leaves behind.
    std::vector<double> left;
};

double ownMegabytes(Scene& scene) {
    settle(500);
    return static_cast<double>(ProcessMemory::of(scene.process()).anonymous) / 1024;
}

/// Opens the window, shows all of its tabs, and closes it, so many times after the first.
void measureOpenings(Openings& result, int later) {
    Scene scene;
    const double before = ownMegabytes(scene);
    Samples times;
    for (int opening = 0; opening <= later; ++opening) {
        const double time = scene.open();
        if (opening == 0) {
            result.first.push_back(time);
        } else {
            times.add(time);
        }
        for (int tab = 0; tab < kTabCount; ++tab) {
            scene.showTab(tab);
        }
        scene.close();
    }
    result.slowestLater.push_back(times.percentile(100));
    result.left.push_back(ownMegabytes(scene) - before);
}

/// Places of the pointer along a slider, far enough apart that no two knobs touch.
std::vector<Pixel> spotsFrom(Pixel first, int distance) {
    std::vector<Pixel> spots;
    for (int spot = 0; spot < 5; ++spot) {
        spots.push_back({first.x + spot * distance, first.y});
    }
    return spots;
}

Drag dragLineWidth(int seconds) {
    Scene scene;
    scene.open();
    scene.showTab(1);
    const auto spots = spotsFrom(scene.row(1, 1, 320), 35);
    const auto knobAt = [&](std::size_t spot) { return std::vector<Shown>{{spots[spot], isKnob}}; };
    return scene.drag(spots, knobAt, seconds);
}

Drag dragHaloSize(int seconds) {
    Scene scene;
    scene.showHalo();
    scene.open();
    scene.showTab(2);
    const auto spots = spotsFrom(scene.row(2, 1, 395), 25);
    const auto knobAndHaloAt = [&](std::size_t spot) {
        // The groove's ends, and what they stand for.
        const double part = (spots[spot].x - scene.at({381, 0}).x) / 128.0;
        const double size = 10 + std::round(part * 90);
        const Pixel ring{kHaloPlace.x - static_cast<int>(std::round(size / 2)) + 3, kHaloPlace.y};
        return std::vector<Shown>{{spots[spot], isKnob}, {ring, isHalo}};
    };
    return scene.drag(spots, knobAndHaloAt, seconds);
}

void reportDrags(Report& report, const std::string& slider, const std::vector<Drag>& drags) {
    std::vector<double> frames;
    std::vector<double> latencies;
    std::vector<double> stored;
    for (const Drag& drag : drags) {
        const auto shown = static_cast<double>(drag.latencies.count());
        frames.push_back(shown / drag.seconds);
        latencies.push_back(drag.latencies.percentile(99));
        stored.push_back(100 * drag.stored / shown);
    }
    report.add({"settings", slider + ", dragged at 125 Hz: frames a second", "", frames,
                atLeast(kFramesPerSecond)});
    report.add({"settings", slider + ": motion → picture, p99", "ms", latencies});
    report.add({"settings", slider + ": stored by the time it is shown", "%", stored,
                atLeast(kEveryChange)});
}

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        const int rounds = option(options, "--rounds", 3);
        const int openings = option(options, "--openings", 5);
        const int seconds = option(options, "--seconds", 5);
        // Pauses of microseconds are kept as such.
        prctl(PR_SET_TIMERSLACK, 1);
        Openings opened;
        std::vector<Drag> ofLineWidth;
        std::vector<Drag> ofHaloSize;
        for (int round = 0; round < rounds; ++round) {
            measureOpenings(opened, openings);
            ofLineWidth.push_back(dragLineWidth(seconds));
            ofHaloSize.push_back(dragHaloSize(seconds));
        }
        Report report(options);
        report.add({"settings", "menu entry → window, the first time", "ms", opened.first,
                    atMost(kLongestOpening)});
        report.add({"settings", "menu entry → window, the slowest time after", "ms",
                    opened.slowestLater, atMost(kLongestOpening)});
        report.add({"settings", "memory left behind by the closed window", "MB", opened.left,
                    atMost(kMostLeft)});
        reportDrags(report, "line width", ofLineWidth);
        reportDrags(report, "halo size with the halo", ofHaloSize);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "settings-window: " << error.what() << '\n';
        return 1;
    }
}
