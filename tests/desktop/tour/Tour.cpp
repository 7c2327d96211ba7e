// Takes the real program through what it can do, on a desktop of its own and with real input, and
// leaves numbered pictures of the screen in the folder that is its argument.

#include "desktop/support/ChildProcess.h"
#include "desktop/support/InputDriver.h"
#include "desktop/support/Program.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/StoredSettings.h"
#include "desktop/support/VirtualDesktop.h"
#include "desktop/tour/Backdrop.h"

#include <cmath>
#include <cstdio>
#include <exception>
#include <functional>
#include <memory>
#include <numbers>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using namespace quillon;
using namespace quillon::test;

namespace {

class Tour {
public:
    explicit Tour(std::string folder)
        : m_folder(std::move(folder)) {}

    void run() {
        showMenu();
        drawOverTheScreen();
        typeText();
        fade();
        useTheWhiteboard();
        showThePalette();
        showTheHalo();
        showTheSpotlight();
        showTheLens();
        showTheSettings();
    }

private:
    void showMenu() {
        m_desktop.startTray();
        restartWith(DrawingTool::pen, Color::red, 5);
        m_input.click({22, 15});
        settle();
        picture("the-menu-in-the-tray");
        m_input.tap("Escape");
    }

    void drawOverTheScreen() {
        m_program->terminate();
        restartWith(DrawingTool::highlighter, Color::yellow.opacity(0.45), 26);
        toggleAnnotation();
        m_input.drag({{320, 318}, {840, 318}});
        picture("highlighted");
        m_input.drag({{320, 370}, {840, 370}});

        restartWith(DrawingTool::pen, Color::red, 6);
        toggleAnnotation();
        drawSmoothly(circleRound({1245, 590}, 110, 200));
        drawSmoothly(wave({330, 690}, 480));
        picture("drawn-with-the-pen");
        toggleAnnotation();
        // Another bar of the page below, inside of the ring.
        m_input.click({1160, 640});
        settle();
        picture("a-click-chose-another-bar-below-and-the-drawing-stays");
        toggleAnnotation();

        restartWith(DrawingTool::arrow, Color::purple, 6);
        toggleAnnotation();
        m_input.drag({{900, 260}, {1170, 380}});
        picture("an-arrow");

        restartWith(DrawingTool::line, Color::orange, 6);
        toggleAnnotation();
        m_input.drag({{320, 260}, {884, 260}});
        m_input.drag({{990, 480}, {1540, 480}});
        picture("lines");

        restartWith(DrawingTool::rectangle, Color::green, 5);
        toggleAnnotation();
        m_input.drag({{300, 180}, {900, 270}});
        m_input.drag({{960, 400}, {1580, 800}});
        picture("rectangles");
    }

    void typeText() {
        restartWith(DrawingTool::text, Color::blue, 4);
        toggleAnnotation();
        m_input.click({1100, 250});
        settle();
        m_input.type("Best in March");
        settle();
        picture("text-being-typed");
        m_input.tap("Return");
        settle();
        picture("text-committed");
    }

    void fade() {
        withSettings(
            [](AppSettings& settings) { settings.autoEraseTimer = AutoEraseTimer::twoSeconds; });
        restartWith(DrawingTool::circle, Color::orange, 8);
        toggleAnnotation();
        m_input.drag({{1100, 420}, {1400, 800}});
        picture("a-circle-for-two-seconds");
        m_screen.waitForPixel(
            {1250, 420}, [](Rgb seen) { return seen.red < 252 || seen.blue > 60; },
            std::chrono::milliseconds(4000));
        picture("fading");
        withSettings([](AppSettings& settings) { settings.autoEraseTimer = AutoEraseTimer::off; });
    }

    void useTheWhiteboard() {
        restartWith(DrawingTool::pen, Color::indigo, 5);
        m_input.chord({"Super_L", "Shift_L", "w"});
        settle(600);
        drawSmoothly(circleRound({700, 500}, 240, 240));
        drawSmoothly(wave({1050, 500}, 480));
        picture("the-whiteboard");
        m_input.chord({"Super_L", "Shift_L", "c"});
        settle();
        picture("cleared");
        m_input.chord({"Super_L", "Shift_L", "w"});
        settle(600);
        m_input.chord({"Super_L", "Shift_L", "s"});
        settle();
        m_program->terminate();
    }

    void showThePalette() {
        restartWith(DrawingTool::pen, Color::red, 6);
        toggleAnnotation();
        const auto open = [this](int control, int button, const std::string& name) {
            m_input.click({kPalette.x + control, kPalette.y}, button);
            settle(400);
            picture(name);
            m_input.tap("Escape");
            settle();
        };
        constexpr int tool = -192;
        constexpr int color = -125;
        constexpr int width = -58;
        open(tool, 1, "the-palettes-tools");
        open(color, 1, "the-palettes-colours");
        open(color, 3, "any-colour");
        open(width, 1, "the-palettes-widths");
        toggleAnnotation();
    }

    void showTheHalo() {
        restartWith(DrawingTool::pen, Color::red, 6);
        m_input.chord({"Super_L", "Shift_L", "h"});
        settle();
        glideTo({700, 420});
        picture("the-halo");
        toggleAnnotation();
        m_input.click({704, 424});
        picture("a-click");
        toggleAnnotation();
        m_input.chord({"Super_L", "Shift_L", "h"});
    }

    void showTheSpotlight() {
        m_input.chord({"Super_L", "Shift_L", "l"});
        settle();
        glideTo({1245, 590});
        picture("the-spotlight");
        m_input.chord({"Super_L", "Shift_L", "l"});
        settle();
    }

    void showTheLens() {
        m_input.chord({"Super_L", "Shift_L", "x"});
        settle(600);
        glideTo({1112, 560});
        settle(400);
        picture("the-lens");
        m_input.chord({"Super_L", "Shift_L", "x"});
        settle();
    }

    void showTheSettings() {
        // A second start asks the first for its settings.
        ChildProcess({Program::path()}, m_desktop.environment()).waitForExit();
        settle(800);
        picture("the-settings");
        m_program->terminate();
    }

    void glideTo(Pixel place) {
        for (int step = 20; step >= 0; --step) {
            m_input.moveTo({place.x - 5 * step, place.y - 3 * step});
            settle(8);
        }
        settle();
    }

    /// One motion from place to place, as from a hand that is quick.
    void drawSmoothly(const std::vector<Pixel>& places) { m_input.drag(places, 100); }

    /// A ring that passes its start a little outside of it: a stroke that came back to the very
    /// place of its press would begin anew.
    static std::vector<Pixel> circleRound(Pixel center, int radiusX, int radiusY) {
        std::vector<Pixel> places;
        for (int degree = -100; degree <= 275; degree += 5) {
            const double angle = degree * std::numbers::pi / 180;
            const double growth = 1 + degree / 4000.0;
            places.push_back({center.x + static_cast<int>(growth * radiusX * std::cos(angle)),
                              center.y + static_cast<int>(growth * radiusY * std::sin(angle))});
        }
        return places;
    }

    static std::vector<Pixel> wave(Pixel start, int length) {
        std::vector<Pixel> places;
        for (int x = 0; x <= length; x += 16) {
            places.push_back({start.x + x, start.y + static_cast<int>(24 * std::sin(x / 32.0))});
        }
        return places;
    }

    void withSettings(const std::function<void(AppSettings&)>& change) {
        if (m_program) {
            m_program->terminate();
            m_program.reset();
        }
        withStoredSettings(m_desktop.configFolder(), change);
    }

    void restartWith(DrawingTool tool, const Color& color, CGFloat lineWidth) {
        withSettings([&](AppSettings& settings) {
            settings.isAnnotationEnabled = false;
            settings.isWhiteboardMode = false;
            settings.toolbarPosition = ToolbarPosition{kPalette.x, kPalette.y};
            settings.selectedTool = tool;
            settings.selectedColor = color;
            settings.lineWidth = lineWidth;
        });
        m_backdrop.paint();
        m_program = std::make_unique<Program>(m_desktop);
        if (!m_program->isReady()) {
            throw std::runtime_error("the program did not start: " +
                                     m_program->process().standardError());
        }
        settle();
    }

    void toggleAnnotation() {
        m_input.chord({"Super_L", "Shift_L", "s"});
        settle();
    }

    /// Lets what was asked for come to the screen.
    static void settle(int milliseconds = 250) {
        stays([] { return true; }, std::chrono::milliseconds(milliseconds));
    }

    void picture(const std::string& name) {
        m_backdrop.paint();
        settle(120);
        const std::string number = std::to_string(++m_number);
        const std::string file =
            m_folder + "/" + (number.size() < 2 ? "0" : "") + number + "-" + name + ".png";
        m_screen.save(file);
        std::printf("%s\n", file.c_str());
    }

    /// The palette's centre, beside what is drawn.
    static constexpr Pixel kPalette{960, 110};

    std::string m_folder;
    int m_number = 0;
    VirtualDesktop m_desktop;
    Backdrop m_backdrop{m_desktop.display()};
    InputDriver m_input{m_desktop.connection()};
    ScreenReader m_screen{m_desktop.connection()};
    std::unique_ptr<Program> m_program;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: quillon-tour FOLDER\n");
        return 1;
    }
    try {
        Tour(argv[1]).run();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "quillon-tour: %s\n", error.what());
        return 1;
    }
    return 0;
}
