#pragma once

#include "desktop/support/InputDriver.h"
#include "desktop/support/ProbeWindow.h"
#include "desktop/support/Program.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/StoredSettings.h"
#include "desktop/support/VirtualDesktop.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace quillon::test {

inline constexpr Rgb kBackground{40, 60, 90};
inline constexpr Rgb kInk{255, 0, 0};

/// A desktop with one window of another program below a strip for a tray, on which the real program
/// is tried.
class ProgramTest : public testing::Test {
protected:
    ProgramTest()
        : ProgramTest({.width = 900, .height = 600}) {}
    explicit ProgramTest(const VirtualDesktop::Options& options)
        : desktop(options) {}

    /// Changes the settings while the program does not run. The colour is red, unless changed.
    void prepare(const std::function<void(AppSettings&)>& change) {
        withStoredSettings(desktop.configFolder(), change);
    }
    void prepareTool(DrawingTool tool, CGFloat lineWidth = 8) {
        prepare([&](AppSettings& settings) {
            settings.selectedTool = tool;
            settings.selectedColor = Color(1, 0, 0);
            settings.lineWidth = lineWidth;
        });
    }
    template <typename T>
    T stored(std::function<T(AppSettings&)> read) {
        std::optional<T> value;
        prepare([&](AppSettings& settings) { value = read(settings); });
        return *value;
    }

    Program& start() {
        program = std::make_unique<Program>(desktop);
        EXPECT_TRUE(program->isReady()) << program->process().standardError();
        return *program;
    }
    void stop() { EXPECT_EQ(program->terminate(), 0); }

    /// Starts the program and switches annotation on.
    void startAnnotating() {
        start();
        toggleAnnotation();
        EXPECT_TRUE(eventually([this] { return takesPointer(); }));
    }

    void toggleAnnotation() { pressShortcut("s"); }
    void toggleWhiteboard() { pressShortcut("w"); }
    void toggleHalo() { pressShortcut("h"); }
    void toggleSpotlight() { pressShortcut("l"); }
    void toggleZoom() { pressShortcut("x"); }
    void clear() { pressShortcut("c"); }
    /// A shortcut as the program comes, by its last key.
    void pressShortcut(std::string_view key) { input.chord({"Super_L", "Shift_L", key}); }

    /// Whether the pointer meets another window than the one below, where it stands now.
    bool takesPointer() {
        const xcb_window_t window = windowUnderPointer();
        return window != XCB_NONE && window != windowBefore;
    }
    /// The one on the root window, which is the frame of a program's own; `XCB_NONE` when there is
    /// none.
    xcb_window_t windowUnderPointer() {
        const XOwned<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
            desktop.connection().get(),
            xcb_query_pointer(desktop.connection().get(), desktop.connection().root()), nullptr));
        return pointer ? pointer->child : XCB_NONE;
    }

    /// Whether a program holds the pointer as a whole, which the server tells to one who asks for
    /// it.
    bool isPointerHeld() {
        xcb_connection_t* connection = desktop.connection().get();
        // Nobody is to see this grab come and go.
        xcb_grab_server(connection);
        const XOwned<xcb_grab_pointer_reply_t> grab(xcb_grab_pointer_reply(
            connection,
            xcb_grab_pointer(connection, 0, desktop.connection().root(), 0, XCB_GRAB_MODE_ASYNC,
                             XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
            nullptr));
        xcb_ungrab_pointer(connection, XCB_CURRENT_TIME);
        xcb_ungrab_server(connection);
        desktop.connection().synchronise();
        return grab && grab->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
    }

    /// Draws a level line from x 100 to 300, and waits until its middle is there.
    void drawLineAt(int y) {
        input.drag({{100, y}, {300, y}});
        ASSERT_TRUE(showsInk({200, y}));
    }
    /// The same to 200, with the button held down.
    void holdLineAt(int y) {
        input.moveTo({100, y});
        input.press();
        for (int x = 105; x <= 200; x += 5) {
            input.moveTo({x, y});
        }
        ASSERT_TRUE(showsInk({150, y}));
    }
    /// Starts the program, switches annotation on, and draws a red line with the pen.
    void startWithLine() {
        prepareTool(DrawingTool::pen);
        startAnnotating();
        drawLineAt(100);
    }
    /// Opens a field with the text tool, types into it, and commits what was typed.
    void writeText(Pixel place, std::string_view text) {
        input.click(place);
        ASSERT_TRUE(
            screen.waitForPixel({place.x + 80, place.y}, [](Rgb seen) { return seen.red > 200; }));
        input.type(text);
        input.tap("Return");
    }

    bool showsInk(Pixel place) { return screen.waitForColor(place, kInk); }
    bool showsBackground(Pixel place) { return screen.waitForColor(place, kBackground); }
    /// Whether any pixel of the row holds ink between the two columns.
    bool hasInkInRow(int y, int left, int right) {
        for (int x = left; x < right; ++x) {
            if (isNear(screen.pixel({x, y}), kInk, 60)) {
                return true;
            }
        }
        return false;
    }
    /// Whether ink comes up where a text stands that was begun at this place.
    bool showsText(Pixel topLeft) {
        return eventually([&] {
            for (int y = topLeft.y + 8; y < topLeft.y + 26; y += 2) {
                if (hasInkInRow(y, topLeft.x, topLeft.x + 60)) {
                    return true;
                }
            }
            return false;
        });
    }

    VirtualDesktop desktop;
    InputDriver input{desktop.connection()};
    ScreenReader screen{desktop.connection()};
    ProbeWindow below{desktop.display(), {0, 40, 900, 560}, kBackground};
    std::unique_ptr<Program> program;
    /// The window under the pointer before the program started.
    xcb_window_t windowBefore = windowUnderPointer();
};

} // namespace quillon::test
