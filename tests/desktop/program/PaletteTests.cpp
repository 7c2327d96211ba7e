#include "desktop/program/ProgramTest.h"

namespace quillon::test {
namespace {

/// The palette in the middle of the screen, away from its menus' surroundings.
class Palette : public ProgramTest {
protected:
    explicit Palette(const VirtualDesktop::Options& options = {.width = 900, .height = 600})
        : ProgramTest(options) {
        preparePalette();
    }

    static constexpr Pixel kCenter{450, 120};
    // The controls' centres, from the palette's.
    static constexpr int kTool = -192;
    static constexpr int kColor = -125;
    static constexpr int kWidth = -58;
    static constexpr int kWhiteboard = 8;
    static constexpr int kUndo = 75;
    static constexpr int kRedo = 125;
    static constexpr int kClear = 192;
    /// Between two controls, where there is nothing but the body.
    static constexpr int kBody = -92;

    void preparePalette() {
        prepare([](AppSettings& settings) {
            settings.selectedTool = DrawingTool::pen;
            settings.selectedColor = Color(1, 0, 0);
            settings.lineWidth = 8;
            settings.toolbarPosition = ToolbarPosition{kCenter.x, kCenter.y};
        });
    }

    void startWithPalette() {
        startAnnotating();
        ASSERT_TRUE(showsPanel(kCenter));
    }
    static Pixel at(int control) { return {kCenter.x + control, kCenter.y}; }
    /// The `number`th entry of the menu below a control.
    static Pixel entry(int control, int number) {
        return {kCenter.x + control, kCenter.y + 36 + 5 + 28 * number + 14};
    }

    /// Something light, and no dark blue desktop.
    bool showsPanel(Pixel place) {
        return screen.waitForPixel(
            place, [](Rgb seen) { return seen.red > 150 && seen.green > 150 && seen.blue > 150; });
    }
    void drawLine() {
        input.drag({{100, 400}, {300, 400}});
        ASSERT_TRUE(showsInk({200, 400}));
        ASSERT_TRUE(eventually([this] { return isDark(kUndo); }));
    }
    /// Whether a control shows its glyph in full and not dimmed.
    bool isDark(int control) {
        for (int y = -16; y < 4; ++y) {
            for (int x = -10; x < 10; ++x) {
                if (screen.pixel({kCenter.x + control + x, kCenter.y + y}).red < 60) {
                    return true;
                }
            }
        }
        return false;
    }
};

TEST_F(Palette, it_stands_at_the_top_right_when_it_was_never_placed) {
    prepare(
        [](AppSettings& settings) { settings.toolbarPosition = ToolbarPosition::defaultPosition; });
    startAnnotating();
    EXPECT_TRUE(showsPanel({750 + kBody, 50}));
    EXPECT_TRUE(showsBackground({kCenter.x - 200, kCenter.y}));
}

TEST_F(Palette, it_comes_and_goes_with_annotation) {
    startWithPalette();
    toggleAnnotation();
    EXPECT_TRUE(showsBackground(at(kBody)));
    toggleAnnotation();
    EXPECT_TRUE(showsPanel(at(kBody)));
}

TEST_F(Palette, a_drag_by_its_body_takes_it_along_draws_nothing_and_is_kept) {
    startWithPalette();
    input.drag({at(kBody), {400, 300}, {450, 350}});
    EXPECT_TRUE(showsPanel({450 + kBody, 350}));
    EXPECT_TRUE(showsBackground({400, 300}));
    EXPECT_TRUE(showsBackground(at(kBody)));
    stop();
    EXPECT_EQ(stored<ToolbarPosition>([](AppSettings& s) { return s.toolbarPosition.get(); }),
              (ToolbarPosition{450, 350}));
    start();
    EXPECT_TRUE(showsPanel({450 + kBody, 350}));
}

TEST_F(Palette, a_click_on_its_body_leaves_it_where_it_is_and_draws_nothing) {
    startWithPalette();
    input.click(at(kBody));
    input.click(at(kBody));
    drawLine();
    EXPECT_TRUE(showsPanel(at(kBody)));
}

TEST_F(Palette, a_tool_is_chosen_from_its_menu) {
    startWithPalette();
    input.click(at(kTool));
    ASSERT_TRUE(showsPanel(entry(kTool, 4)));
    input.click(entry(kTool, 4));
    ASSERT_TRUE(showsBackground(entry(kTool, 6)));
    // A rectangle has an outline and nothing inside.
    input.drag({{100, 400}, {300, 500}});
    EXPECT_TRUE(showsInk({200, 400}));
    EXPECT_TRUE(showsInk({300, 450}));
    EXPECT_TRUE(showsBackground({200, 450}));
}

TEST_F(Palette, escape_closes_a_menu_and_changes_nothing) {
    startWithPalette();
    input.click(at(kTool));
    ASSERT_TRUE(showsPanel(entry(kTool, 4)));
    input.tap("Escape");
    EXPECT_TRUE(showsBackground(entry(kTool, 4)));
    drawLine();
}

TEST_F(Palette, a_click_beside_a_menu_closes_it_and_draws_nothing) {
    startWithPalette();
    input.click(at(kTool));
    ASSERT_TRUE(showsPanel(entry(kTool, 4)));
    input.drag({{600, 400}, {700, 400}});
    EXPECT_TRUE(showsBackground(entry(kTool, 4)));
    EXPECT_TRUE(showsBackground({650, 400}));
}

TEST_F(Palette, a_colour_is_chosen_from_the_menu) {
    startWithPalette();
    input.click(at(kColor));
    // The second of the quick colours is yellow.
    const Pixel yellow{kCenter.x + kColor - 25 + 5 + 8 + 36 + 18, kCenter.y + 36 + 5 + 4 + 40};
    ASSERT_TRUE(screen.waitForColor(yellow, {255, 204, 0}));
    input.click(yellow);
    ASSERT_TRUE(showsBackground(yellow));
    input.drag({{100, 400}, {300, 400}});
    EXPECT_TRUE(screen.waitForColor({200, 400}, {255, 204, 0}));
}

TEST_F(Palette, the_secondary_button_opens_the_popover_and_escape_closes_it) {
    startWithPalette();
    input.click(at(kColor), 3);
    ASSERT_TRUE(showsPanel({kCenter.x - 120, 400}));
    input.tap("Escape");
    EXPECT_TRUE(showsBackground({kCenter.x - 120, 400}));
    input.click(at(kColor), 3);
    EXPECT_TRUE(showsPanel({kCenter.x - 120, 400}));
}

TEST_F(Palette, a_click_beside_the_popover_closes_it_and_draws_nothing) {
    startWithPalette();
    input.click(at(kColor), 3);
    ASSERT_TRUE(showsPanel({kCenter.x - 120, 400}));
    input.drag({{100, 500}, {200, 500}});
    EXPECT_TRUE(showsBackground({kCenter.x - 120, 400}));
    EXPECT_TRUE(showsBackground({150, 500}));
    drawLine();
}

TEST_F(Palette, the_wheel_sets_the_colour) {
    startWithPalette();
    input.click(at(kColor), 3);
    ASSERT_TRUE(showsPanel({kCenter.x - 120, 400}));
    // The bottom of the wheel is hue 0.5 at full saturation.
    input.click({kCenter.x, kCenter.y + 30 + 9 + 16 + 149});
    input.tap("Escape");
    ASSERT_TRUE(showsBackground({kCenter.x - 120, 400}));
    input.drag({{100, 400}, {300, 400}});
    EXPECT_TRUE(screen.waitForPixel(
        {200, 400}, [](Rgb seen) { return seen.red < 12 && seen.green > 240 && seen.blue > 240; }));
}

TEST_F(Palette, a_preset_sets_the_width) {
    startWithPalette();
    input.click(at(kWidth));
    // The last of the six is 20 points thick.
    const Pixel thickest{kCenter.x + kWidth - 25 + 5 + 12 + 5 * 36 + 15, kCenter.y + 116};
    ASSERT_TRUE(screen.waitForPixel(thickest, [](Rgb seen) { return seen.red < 40; }));
    input.click(thickest);
    ASSERT_TRUE(showsBackground(thickest));
    input.drag({{100, 400}, {300, 400}});
    EXPECT_TRUE(showsInk({200, 408}));
    stop();
    EXPECT_EQ(stored<CGFloat>([](AppSettings& s) { return s.lineWidth.get(); }), 20);
}

TEST_F(Palette, the_whiteboard_button_switches_the_whiteboard) {
    startWithPalette();
    input.click(at(kWhiteboard));
    EXPECT_TRUE(screen.waitForPixel({450, 400}, [](Rgb seen) { return seen.red > 225; }));
    input.click(at(kWhiteboard));
    EXPECT_TRUE(showsBackground({450, 400}));
}

TEST_F(Palette, undo_redo_and_clear_work_by_their_buttons) {
    startWithPalette();
    drawLine();
    input.click(at(kUndo));
    EXPECT_TRUE(showsBackground({200, 400}));
    input.click(at(kRedo));
    EXPECT_TRUE(showsInk({200, 400}));
    input.click(at(kClear));
    EXPECT_TRUE(showsBackground({200, 400}));
    input.click(at(kUndo));
    EXPECT_TRUE(showsInk({200, 400}));
}

class PaletteKeys : public Palette, public testing::WithParamInterface<std::string_view> {};

TEST_P(PaletteKeys, undo_and_redo_work_by_their_keys_while_the_overlay_has_the_keyboard) {
    startWithPalette();
    drawLine();
    input.chord({GetParam(), "z"});
    EXPECT_TRUE(showsBackground({200, 400}));
    input.chord({GetParam(), "Shift_L", "z"});
    EXPECT_TRUE(showsInk({200, 400}));
}

INSTANTIATE_TEST_SUITE_P(ControlAndSuper, PaletteKeys, testing::Values("Control_L", "Super_L"));

TEST_F(Palette, a_press_on_it_brings_the_keyboard) {
    startWithPalette();
    input.click(at(kWhiteboard));
    ASSERT_TRUE(screen.waitForPixel({450, 400}, [](Rgb seen) { return seen.red > 225; }));
    input.tap("Tab");
    input.tap("Tab");
    input.tap("space");
    // The second control's menu is open.
    EXPECT_TRUE(screen.waitForPixel(
        {kCenter.x + kColor - 25 + 5 + 8 + 36 + 18, kCenter.y + 36 + 5 + 4 + 40}, [](Rgb seen) {
            return isNear(seen, {255, 204, 0});
        }));
}

TEST_F(Palette, it_goes_away_with_an_open_menu_and_an_open_popover) {
    startWithPalette();
    input.click(at(kColor), 3);
    ASSERT_TRUE(showsPanel({kCenter.x - 120, 400}));
    program->process().sendSignal(SIGTERM);
    EXPECT_EQ(program->process().waitForExit(), 0);
}

class PaletteWhileOpen : public Palette, public testing::WithParamInterface<int> {};

TEST_P(PaletteWhileOpen, the_shortcut_takes_it_away_with_its_menu_or_its_popover) {
    startWithPalette();
    const bool opensPopover = GetParam() == 3;
    const Pixel inside = opensPopover ? Pixel{kCenter.x - 120, 400}
                                      : Pixel{kCenter.x + kColor + 100, kCenter.y + 40};
    input.click(at(kColor), GetParam());
    ASSERT_TRUE(showsPanel(inside));
    toggleAnnotation();
    EXPECT_TRUE(showsBackground(inside));
    EXPECT_TRUE(showsBackground(at(kBody)));
    toggleAnnotation();
    ASSERT_TRUE(showsPanel(at(kBody)));
    drawLine();
}

INSTANTIATE_TEST_SUITE_P(MenuAndPopover, PaletteWhileOpen, testing::Values(1, 3));

class PaletteTakenAway : public Palette, public testing::WithParamInterface<std::uint32_t> {};

TEST_P(PaletteTakenAway, with_its_menu_by_the_shortcut_it_comes_back_with_the_next_press) {
    startWithPalette();
    input.click(at(kColor));
    ASSERT_TRUE(showsPanel({kCenter.x + kColor + 100, kCenter.y + 40}));
    // A hand lets go later than the menu does, and by then the keyboard is elsewhere.
    input.keyDown("Super_L");
    input.keyDown("Shift_L");
    input.keyDown("s");
    EXPECT_TRUE(showsBackground(at(kBody)));
    input.keyUp("s");
    input.keyDown("s", GetParam());
    input.keyUp("s");
    input.keyUp("Shift_L");
    input.keyUp("Super_L");
    EXPECT_TRUE(showsPanel(at(kBody)));
}

// At once, and when the first repeat of a held key would be due.
INSTANTIATE_TEST_SUITE_P(SomeTimeAfter, PaletteTakenAway, testing::Values(0, 700));

TEST_F(Palette, a_quick_colour_is_removed_by_its_context_menu_and_the_popover_stays) {
    startWithPalette();
    input.click(at(kColor), 3);
    const Pixel first{kCenter.x - 112, 494};
    ASSERT_TRUE(screen.waitForColor(first, {255, 59, 48}));
    input.click(first, 3);
    const Pixel remove{first.x + 20, first.y + 18};
    ASSERT_TRUE(showsPanel({first.x + 8, first.y + 8}));
    input.click(remove);
    EXPECT_TRUE(screen.waitForColor(first, {255, 204, 0}));
    input.tap("Escape");
    EXPECT_TRUE(showsBackground(first));
    stop();
    EXPECT_EQ(stored<std::size_t>([](AppSettings& s) { return s.quickColors.get().size(); }), 4U);
}

TEST_F(Palette, the_shortcut_takes_it_away_with_the_context_menu_of_a_quick_colour) {
    startWithPalette();
    input.click(at(kColor), 3);
    ASSERT_TRUE(showsPanel({kCenter.x - 120, 400}));
    // The first of the quick colours.
    const Pixel red{kCenter.x - 112, 494};
    ASSERT_TRUE(screen.waitForColor(red, {255, 59, 48}));
    input.click(red, 3);
    ASSERT_TRUE(showsPanel({red.x + 20, red.y + 20}));
    toggleAnnotation();
    EXPECT_TRUE(showsBackground(red));
    EXPECT_TRUE(showsBackground(at(kBody)));
    toggleAnnotation();
    ASSERT_TRUE(showsPanel(at(kBody)));
    drawLine();
}

/// On a desktop where no window can be translucent, the overlay holds the pointer as a whole.
class PaletteWithoutCompositor : public Palette {
protected:
    PaletteWithoutCompositor()
        : Palette({.width = 900, .height = 600, .hasCompositor = false}) {}

    void startWithPalette() {
        start();
        toggleAnnotation();
        ASSERT_TRUE(showsPanel(at(kBody)));
        ASSERT_TRUE(eventually([this] {
            input.drag({{100, 500}, {300, 500}});
            return showsInk({200, 500});
        }));
    }
};

TEST_F(PaletteWithoutCompositor, drawing_goes_on_after_a_menu_and_after_the_popover) {
    startWithPalette();
    input.click(at(kTool));
    ASSERT_TRUE(showsPanel(entry(kTool, 4)));
    input.click(entry(kTool, 0));
    ASSERT_TRUE(showsBackground(entry(kTool, 4)));
    ASSERT_TRUE(eventually([this] { return isPointerHeld(); }));
    drawLineAt(400);

    input.click(at(kColor), 3);
    ASSERT_TRUE(showsPanel({kCenter.x - 120, 400}));
    input.tap("Escape");
    ASSERT_TRUE(showsBackground({kCenter.x - 120, 440}));
    ASSERT_TRUE(eventually([this] { return isPointerHeld(); }));
    const int before = below.pressCount();
    drawLineAt(450);
    EXPECT_EQ(below.pressCount(), before);
}

TEST_F(PaletteWithoutCompositor, nothing_but_the_palette_itself_is_to_be_seen_of_it) {
    startWithPalette();
    // Beside a divider; a translucent panel would be darkened.
    EXPECT_GT(screen.pixel({kCenter.x + kBody + 4, kCenter.y}).red, 240);
    // Where elsewhere its shadow falls, and in its rounded corner.
    EXPECT_TRUE(showsBackground({kCenter.x, kCenter.y + 34}));
    EXPECT_TRUE(showsBackground({kCenter.x - 228, kCenter.y - 29}));
}

} // namespace
} // namespace quillon::test
