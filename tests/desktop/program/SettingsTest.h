#pragma once

#include "desktop/program/ProgramTest.h"

#include <algorithm>
#include <string>
#include <vector>

namespace quillon::test {

/// The settings window on a desktop with room for it. Places in it are counted from the upper left
/// corner of its content, below the line with the menu.
class SettingsTest : public ProgramTest {
protected:
    enum Tab { general, annotation, cursor, spotlight, shortcuts, about };

    SettingsTest()
        : SettingsTest({.width = 1000, .height = 800}) {}
    explicit SettingsTest(const VirtualDesktop::Options& options)
        : ProgramTest(options) {
        below.activate();
        EXPECT_TRUE(eventually([this] { return below.hasKeyboard(); }));
    }

    /// Starts the program, and opens the window as a second start does.
    void startAndOpen() {
        start();
        open();
    }
    void open() {
        ChildProcess second({Program::path()}, desktop.environment());
        EXPECT_EQ(second.waitForExit(), 0);
        awaitWindow();
    }
    /// Waits until the window stands, has the keyboard, and is painted.
    void awaitWindow() {
        ASSERT_TRUE(eventually([this] { return titled(kTitle).size() == 1; }));
        window = titled(kTitle).front();
        ASSERT_TRUE(eventually([this] { return desktop.connection().focusedWindow() == window; }));
        locate();
        ASSERT_TRUE(screen.waitForPixel(at({300, 400}), isPage));
        ASSERT_TRUE(screen.waitForPixel(tabGround(general), isSelected));
    }
    void closeWindow() {
        desktop.connection().askWindowManager("_NET_CLOSE_WINDOW", window, {0, 2});
        EXPECT_TRUE(eventually([this] { return titled(kTitle).empty(); }));
    }
    void showTab(Tab tab) {
        input.click(at({50 + 100 * tab, 28}));
        EXPECT_TRUE(screen.waitForPixel(tabGround(tab), isSelected));
    }

    /// A place in the content, on the screen.
    Pixel at(Pixel place) const { return {m_corner.x + place.x, m_corner.y + place.y}; }
    Pixel tabGround(Tab tab) const { return at({8 + 100 * tab, 50}); }
    /// The middle of a row: its number from the top, and how many sections began above it.
    Pixel row(int index, int sections, int x) const {
        return at({x, 117 + 37 * index + 36 * (sections - 1)});
    }
    Pixel switchOf(int index, int sections) const { return row(index, sections, 546); }
    /// Where a switch that is on shows the accent.
    bool isOn(Pixel toggle) { return screen.waitForPixel({toggle.x - 12, toggle.y}, isAccent); }
    bool isOff(Pixel toggle) {
        return screen.waitForPixel({toggle.x - 12, toggle.y},
                                   [](Rgb seen) { return !isAccent(seen); });
    }

    std::vector<xcb_window_t> titled(const std::string& title) {
        return desktop.connection().windowsTitled(title);
    }

    /// Whether a shortcut reaches the program: a press of it would be refused to others.
    bool areShortcutsLive() { return program->isReady(); }
    bool isAnnotating() {
        input.moveTo({20, 500});
        return eventually([this] { return takesPointer(); });
    }

    static bool isAccent(Rgb seen) { return seen.blue > seen.red + 60; }
    static bool isSelected(Rgb seen) { return seen.blue > seen.red + 12; }
    static bool isPage(Rgb seen) { return isNear(seen, {234, 234, 234}, 10); }

    static constexpr const char* kTitle = "Quillon Mark Settings";

    xcb_window_t window = XCB_NONE;
    int width = 0;
    int height = 0;

private:
    void locate() {
        const xcb_rectangle_t place = desktop.connection().place(window);
        width = place.width;
        height = place.height;
        m_corner = {place.x, place.y + height - 500};
    }

    Pixel m_corner;
};

} // namespace quillon::test
