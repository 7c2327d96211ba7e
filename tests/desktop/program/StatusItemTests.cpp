#include "desktop/program/ProgramTest.h"

#include <algorithm>
#include <chrono>
#include <optional>

namespace quillon::test {
namespace {

/// Some time after a window has lost the keyboard the toolkit notices, and closes all menus.
constexpr std::chrono::milliseconds kToolkitNotices{400};

class TrayItem : public ProgramTest {
protected:
    /// Where something lighter than the panel stands in its middle rows.
    std::optional<Pixel> findItem() {
        std::optional<Pixel> found;
        eventually([&] {
            found = lightInPanel();
            return found.has_value();
        });
        return found;
    }

    /// How much of the item is light.
    int lightCount(Pixel item) {
        int count = 0;
        for (int y = 4; y < 26; ++y) {
            for (int x = item.x - 4; x < item.x + 22; ++x) {
                count += screen.pixel({std::max(x, 0), y}).red > 180 ? 1 : 0;
            }
        }
        return count;
    }

    /// Clicks the item and waits for its menu, which hangs from the panel.
    void openMenu(int button = 1) {
        const auto item = findItem();
        ASSERT_TRUE(item);
        input.click(*item, button);
        menuColumn = item->x + 60;
        ASSERT_TRUE(screen.waitForPixel({menuColumn, 60}, isPaper));
        // Once it holds the pointer, it has the keyboard as well.
        ASSERT_TRUE(eventually([this] { return isPointerHeld(); }));
    }
    bool isMenuClosed() {
        return screen.waitForPixel({menuColumn, 60}, [](Rgb seen) { return !isPaper(seen); });
    }
    /// The last entry of the open menu, right above its lower edge.
    Pixel lastEntry() {
        int y = 60;
        while (!isNear(screen.pixel({menuColumn, y}), kBackground)) {
            ++y;
        }
        return {menuColumn, y - 12};
    }

    int menuColumn = 0;

private:
    std::optional<Pixel> lightInPanel() {
        for (int y = 8; y < 24; y += 2) {
            for (int x = 0; x < 900; ++x) {
                if (screen.pixel({x, y}).red > 180) {
                    return Pixel{x, y};
                }
            }
        }
        return std::nullopt;
    }
    static bool isPaper(Rgb seen) { return seen.red > 200; }
};

TEST_F(TrayItem, a_click_opens_the_menu_and_a_click_on_quit_ends_the_program) {
    desktop.startTray();
    start();
    openMenu();
    input.click(lastEntry());
    EXPECT_EQ(program->process().waitForExit(), 0);
}

TEST_F(TrayItem, the_keys_that_the_menu_shows_work_while_it_is_open) {
    desktop.startTray();
    start();
    openMenu();
    input.chord({"Control_L", "q"});
    EXPECT_EQ(program->process().waitForExit(), 0);
}

TEST_F(TrayItem, the_other_button_opens_the_same_menu) {
    desktop.startTray();
    start();
    openMenu(3);
    input.click(lastEntry());
    EXPECT_EQ(program->process().waitForExit(), 0);
}

TEST_F(TrayItem, escape_closes_the_menu_and_nothing_else_happens) {
    desktop.startTray();
    start();
    openMenu();
    input.tap("Escape");
    EXPECT_TRUE(isMenuClosed());
    EXPECT_TRUE(program->process().isRunning());
    input.click({450, 300});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 1; }));
}

TEST_F(TrayItem, the_menu_switches_the_whiteboard_on) {
    prepareTool(DrawingTool::pen);
    desktop.startTray();
    start();
    openMenu();
    input.tap("Down");
    input.tap("Down");
    input.tap("Return");
    ASSERT_TRUE(screen.waitForPixel({450, 500}, [](Rgb seen) { return seen.red > 225; }));
    input.drag({{300, 300}, {500, 300}});
    EXPECT_TRUE(showsInk({400, 300}));
}

TEST_F(TrayItem, the_menu_opens_over_a_drawing_left_standing_and_switches_annotation_on_again) {
    prepareTool(DrawingTool::pen);
    desktop.startTray();
    startAnnotating();
    input.drag({{300, 200}, {500, 200}});
    ASSERT_TRUE(showsInk({400, 200}));
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return !takesPointer(); }));
    ASSERT_TRUE(stays([this] { return !takesPointer(); }, kToolkitNotices));
    openMenu();
    input.tap("Down");
    input.tap("Return");
    ASSERT_TRUE(isMenuClosed());
    input.moveTo({300, 300});
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    input.drag({{300, 300}, {500, 300}});
    EXPECT_TRUE(showsInk({400, 300}));
    EXPECT_TRUE(showsInk({400, 200}));
}

TEST_F(TrayItem, its_menu_switches_annotation_off_again) {
    prepareTool(DrawingTool::pen);
    desktop.startTray();
    startAnnotating();
    openMenu();
    input.tap("Down");
    input.tap("Return");
    ASSERT_TRUE(isMenuClosed());
    input.moveTo({300, 300});
    EXPECT_TRUE(eventually([this] { return !takesPointer(); }));
}

TEST_F(TrayItem, a_palette_that_stands_over_the_panel_takes_its_clicks) {
    prepare([](AppSettings& settings) { settings.toolbarPosition = ToolbarPosition{450, 15}; });
    desktop.startTray();
    startAnnotating();
    ASSERT_TRUE(screen.waitForPixel({300, 40}, [](Rgb seen) { return seen.red > 180; }));
    const Pixel whiteboardButton{458, 15};
    input.click(whiteboardButton);
    EXPECT_TRUE(screen.waitForPixel({450, 500}, [](Rgb seen) { return seen.red > 225; }));
}

TEST_F(TrayItem, a_program_that_fills_the_screen_is_drawn_on_where_the_panel_is_hidden) {
    prepareTool(DrawingTool::pen);
    desktop.startTray();
    startAnnotating();
    ProbeWindow film(desktop.display(), {100, 100, 300, 200}, {20, 120, 20});
    film.activate();
    film.fillScreen();
    ASSERT_TRUE(screen.waitForColor({890, 10}, {20, 120, 20}));
    // The window manager tells of a film before it fills the screen.
    EXPECT_TRUE(eventually([this] {
        input.drag({{100, 15}, {300, 15}});
        return screen.waitForColor({200, 15}, kInk, std::chrono::milliseconds(100));
    }));
    const int before = film.pressCount();
    drawLineAt(10);
    EXPECT_EQ(film.pressCount(), before);
}

TEST_F(TrayItem, it_is_an_outline_and_filled_while_annotation_is_on) {
    desktop.startTray();
    start();
    const auto item = findItem();
    ASSERT_TRUE(item);
    const int outline = lightCount(*item);
    toggleAnnotation();
    EXPECT_TRUE(eventually([&] { return lightCount(*item) > outline * 3 / 2; }));
    toggleAnnotation();
    EXPECT_TRUE(eventually([&] { return lightCount(*item) == outline; }));
}

TEST_F(TrayItem, it_appears_when_the_tray_comes_up_after_the_program) {
    start();
    desktop.startTray();
    EXPECT_TRUE(findItem());
}

TEST_F(TrayItem, it_comes_back_with_a_tray_that_went_away) {
    desktop.startTray();
    start();
    ASSERT_TRUE(findItem());
    desktop.stopTray();
    desktop.startTray();
    openMenu();
    input.click(lastEntry());
    EXPECT_EQ(program->process().waitForExit(), 0);
}

} // namespace
} // namespace quillon::test
