#include "benchmarks/DrawnPage.h"

#include "benchmarks/ProcessUsage.h"

#include "desktop/support/StoredSettings.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <stdexcept>
#include <thread>

namespace quillon::bench {

namespace {

using test::Pixel;

constexpr test::Rgb kPaper{40, 60, 90};
constexpr int kLeft = 20;
constexpr int kRight = 1900;
constexpr int kTop = 230;
constexpr int kBottom = 1060;
constexpr int kPointsOfShortStroke = 5;
/// How far a short stroke goes from one point to the next, at most.
constexpr int kReach = 12;
constexpr int kPointsOfEraser = 200;
/// How the eraser goes up and down, and how far beside its last pass the next one goes.
constexpr int kStepOfEraser = 37;
constexpr int kDepthOfEraser = 600;
constexpr int kShiftOfEraser = 120;
/// How many strokes are sent before the program has to have drawn them.
constexpr int kStrokesInFlight = 2000;

/// Where the palette stands, and the middle of its first control.
constexpr Pixel kPalette{1650, 60};
constexpr Pixel kTools{kPalette.x - 192, kPalette.y};
constexpr int kPen = 0;
constexpr int kEraser = 2;
constexpr int kToolCount = 8;

constexpr std::chrono::milliseconds kRest{80};
constexpr std::chrono::seconds kPatience{120};

/// The menu below the tools has a row of 28 pixels for each.
Pixel entryOfTools(int number) {
    return {kTools.x, kTools.y + 55 + 28 * number};
}

bool isPanel(test::Rgb color) {
    return color.red > 150 && color.green > 150 && color.blue > 150;
}

/// Prepares the settings before anything is started that reads them.
test::VirtualDesktop& prepared(test::VirtualDesktop& desktop) {
    test::withStoredSettings(desktop.configFolder(), [](AppSettings& settings) {
        settings.toolbarPosition = ToolbarPosition{kPalette.x, kPalette.y};
        settings.selectedTool = DrawingTool::pen;
        settings.selectedColor = Color(1, 0, 0);
        settings.lineWidth = 5;
    });
    return desktop;
}

} // namespace

DrawnPage::DrawnPage()
    : m_paper(m_desktop.display(), {0, 0, 1920, 1080}, kPaper)
    , m_program(prepared(m_desktop)) {
    m_input.chord({"Super_L", "Shift_L", "s"});
    if (!m_screen.waitForPixel({kPalette.x - 92, kPalette.y}, isPanel)) {
        throw std::runtime_error("the palette does not appear");
    }
    settle();
}

void DrawnPage::fillUpTo(int strokes) {
    while (m_strokes < strokes) {
        const int next = std::min(m_strokes + kStrokesInFlight, strokes);
        for (; m_strokes < next; ++m_strokes) {
            drawShortStroke();
        }
        settle();
    }
}

void DrawnPage::drawShortStroke() {
    std::uniform_int_distribution<int> across(kLeft, kRight);
    std::uniform_int_distribution<int> down(kTop, kBottom);
    std::uniform_int_distribution<int> step(-kReach, kReach);
    std::vector<Pixel> places{{across(m_random), down(m_random)}};
    while (places.size() < kPointsOfShortStroke) {
        const Pixel last = places.back();
        places.push_back({last.x + step(m_random), std::max(kTop, last.y + step(m_random))});
    }
    sendStroke(places);
}

void DrawnPage::drawLongStroke() {
    sendStroke({{kLeft, kTop + 50}, {500, 900}, {900, 400}, {1400, 1000}, {kRight, kTop + 100}});
    settle();
}

void DrawnPage::undo() {
    m_input.chord({"Super_L", "z"});
}

void DrawnPage::clear() {
    m_input.chord({"Super_L", "Shift_L", "c"});
}

void DrawnPage::turnToWhiteboard() {
    m_input.chord({"Super_L", "Shift_L", "w"});
    m_strokes = 0;
    settle();
}

void DrawnPage::erase() {
    chooseTool(kEraser);
    std::vector<Pixel> sweep;
    for (int point = 0; point < kPointsOfEraser; ++point) {
        const int down =
            (kStepOfEraser * point + kShiftOfEraser * m_passesOfEraser) % kDepthOfEraser;
        sweep.push_back({kLeft + (kRight - kLeft) * point / kPointsOfEraser, kTop + 100 + down});
    }
    ++m_passesOfEraser;
    sendStroke(sweep);
    chooseTool(kPen);
}

void DrawnPage::chooseTool(int entry) {
    m_input.click(kTools);
    const Pixel lastEntry = entryOfTools(kToolCount - 1);
    if (!m_screen.waitForPixel(lastEntry, isPanel, kPatience)) {
        throw std::runtime_error("the tools do not open");
    }
    m_input.click(entryOfTools(entry));
    if (!m_screen.waitForPixel(lastEntry, [](test::Rgb seen) { return !isPanel(seen); })) {
        throw std::runtime_error("the tools do not close");
    }
}

void DrawnPage::settle() {
    m_desktop.connection().synchronise();
    const auto start = std::chrono::steady_clock::now();
    for (auto before = ProcessUsage::of(process());;) {
        std::this_thread::sleep_for(kRest);
        const auto now = ProcessUsage::of(process());
        if (isAsleep(process()) && now.contextSwitches == before.contextSwitches &&
            now.processorTicks == before.processorTicks) {
            return;
        }
        if (std::chrono::steady_clock::now() - start > kPatience) {
            throw std::runtime_error("the program does not come to rest");
        }
        before = now;
    }
}

void DrawnPage::sendStroke(const std::vector<Pixel>& places) {
    send(XCB_MOTION_NOTIFY, 0, places.front());
    send(XCB_BUTTON_PRESS, 1);
    for (const Pixel& place : places) {
        send(XCB_MOTION_NOTIFY, 0, place);
    }
    send(XCB_BUTTON_RELEASE, 1);
    xcb_flush(m_desktop.connection().get());
}

void DrawnPage::send(std::uint8_t type, std::uint8_t button, Pixel place) {
    const auto& connection = m_desktop.connection();
    xcb_test_fake_input(connection.get(), type, button, XCB_CURRENT_TIME, connection.root(),
                        static_cast<std::int16_t>(place.x), static_cast<std::int16_t>(place.y), 0);
}

} // namespace quillon::bench
