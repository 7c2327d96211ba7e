#include "desktop/program/ProgramTest.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace quillon::test {
namespace {

class Drawing : public ProgramTest {
protected:
    /// Where the pointer turns on its way up and down.
    static std::vector<Pixel> zigzag() {
        std::vector<Pixel> tips;
        for (int tooth = 0; tooth < 60; ++tooth) {
            tips.push_back({100 + tooth * 12, tooth % 2 == 0 ? 150 : 350});
        }
        return tips;
    }
    /// Whether a stroke that was drawn by one motion from tip to tip passes all of them: a lost
    /// motion would cut the tip of a tooth.
    void expectInkAtTips(const std::vector<Pixel>& tips) {
        // The curve passes near its second point and through all later ones.
        for (std::size_t tip = 2; tip < tips.size(); ++tip) {
            EXPECT_TRUE(showsInk(tips[tip])) << "tooth " << tip;
        }
    }
};

TEST_F(Drawing, the_pen_leaves_its_line) {
    startWithLine();
    EXPECT_TRUE(showsBackground({200, 120}));
}

TEST_F(Drawing, the_line_is_seen_while_the_button_is_still_down) {
    prepareTool(DrawingTool::pen);
    startAnnotating();
    holdLineAt(100);
    EXPECT_TRUE(showsInk({195, 100}));
    input.release();
}

TEST_F(Drawing, every_place_that_the_pointer_passed_becomes_a_point) {
    prepareTool(DrawingTool::pen, 6);
    startAnnotating();
    // Faster than it can be painted.
    const std::vector<Pixel> tips = zigzag();
    input.moveTo(tips.front());
    input.press();
    for (const Pixel tip : tips) {
        input.moveTo(tip);
    }
    input.release();
    expectInkAtTips(tips);
}

TEST_F(Drawing, no_place_is_lost_where_keys_other_buttons_and_the_wheel_meet_a_stroke) {
    prepareTool(DrawingTool::pen, 6);
    startAnnotating();
    const std::vector<Pixel> tips = zigzag();
    input.moveTo(tips.front());
    input.press();
    for (std::size_t tip = 0; tip < tips.size(); ++tip) {
        input.moveTo(tips[tip]);
        switch (tip % 5) {
        case 0:
            input.tap("a");
            break;
        case 1:
            input.press(3);
            break;
        case 2:
            input.release(3);
            break;
        case 3:
            input.click(tips[tip], 4);
            break;
        default:
            pressShortcut("h");
        }
    }
    input.release();
    expectInkAtTips(tips);
}

TEST_F(Drawing, a_quick_ring_that_passes_its_own_start_is_whole) {
    prepareTool(DrawingTool::pen);
    startAnnotating();
    std::vector<Pixel> places;
    for (int degree = -100; degree <= 275; degree += 5) {
        const double angle = degree * std::numbers::pi / 180;
        const double radius = 200 + degree / 100.0;
        places.push_back({450 + static_cast<int>(std::lround(radius * std::cos(angle))),
                          300 + static_cast<int>(std::lround(radius * std::sin(angle)))});
    }
    constexpr int oneMotionFromPlaceToPlace = 100;
    input.drag(places, oneMotionFromPlaceToPlace);
    EXPECT_TRUE(showsInk({650, 300}));
    EXPECT_TRUE(showsInk({450, 501}));
    EXPECT_TRUE(showsInk({249, 300}));
    EXPECT_TRUE(showsInk({450, 100}));
}

TEST_F(Drawing, a_stroke_that_comes_back_to_the_very_place_of_its_press_begins_anew_there) {
    prepareTool(DrawingTool::pen);
    startAnnotating();
    input.drag({{100, 100}, {300, 100}, {300, 200}, {100, 100}, {100, 300}});
    EXPECT_TRUE(showsInk({100, 200}));
    EXPECT_TRUE(showsBackground({200, 100}));
    EXPECT_TRUE(showsBackground({300, 150}));
}

TEST_F(Drawing, the_highlighter_leaves_a_line_of_its_width) {
    prepareTool(DrawingTool::highlighter, 20);
    startAnnotating();
    drawLineAt(100);
    EXPECT_TRUE(showsInk({200, 107}));
    EXPECT_TRUE(showsBackground({200, 125}));
}

TEST_F(Drawing, the_rectangle_is_an_outline_and_not_filled) {
    prepareTool(DrawingTool::rectangle);
    startAnnotating();
    input.drag({{300, 300}, {100, 200}});
    EXPECT_TRUE(showsInk({100, 250}));
    EXPECT_TRUE(showsInk({200, 300}));
    EXPECT_TRUE(showsBackground({200, 250}));
}

TEST_F(Drawing, the_circle_lies_in_its_rectangle) {
    prepareTool(DrawingTool::circle);
    startAnnotating();
    input.drag({{100, 100}, {300, 200}});
    EXPECT_TRUE(showsInk({100, 150}));
    EXPECT_TRUE(showsInk({200, 200}));
    EXPECT_TRUE(showsBackground({104, 104}));
    EXPECT_TRUE(showsBackground({200, 150}));
}

TEST_F(Drawing, the_line_goes_from_press_to_release) {
    prepareTool(DrawingTool::line);
    startAnnotating();
    input.drag({{100, 300}, {300, 100}});
    EXPECT_TRUE(showsInk({200, 200}));
    EXPECT_TRUE(showsBackground({100, 100}));
}

TEST_F(Drawing, the_arrow_has_its_head_at_the_release) {
    prepareTool(DrawingTool::arrow, 3);
    startAnnotating();
    drawLineAt(200);
    // A barb ends 15 points away at 30 degrees.
    EXPECT_TRUE(showsInk({289, 194}));
    EXPECT_TRUE(showsInk({289, 206}));
    EXPECT_TRUE(showsBackground({111, 194}));
}

TEST_F(Drawing, the_eraser_takes_a_stroke_at_the_end_of_its_drag) {
    prepareTool(DrawingTool::rectangle);
    startAnnotating();
    input.drag({{100, 100}, {200, 200}});
    ASSERT_TRUE(showsInk({100, 150}));
    // Until there is a palette the tool comes from the store, so the program starts again; strokes
    // go with it. What the eraser does to strokes is a matter of the core tests.
    stop();
    prepareTool(DrawingTool::eraser);
    start();
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    input.moveTo({300, 300});
    input.press();
    for (int x = 305; x < 400; x += 5) {
        input.moveTo({x, 300});
    }
    EXPECT_TRUE(screen.waitForPixel({350, 300}, [](Rgb seen) { return seen.red > 120; }));
    input.release();
    EXPECT_TRUE(showsBackground({350, 300}));
}

TEST_F(Drawing, a_click_without_a_move_leaves_nothing_of_the_pen) {
    prepareTool(DrawingTool::pen);
    startAnnotating();
    input.click({100, 100});
    input.drag({{200, 200}, {250, 200}});
    ASSERT_TRUE(showsInk({225, 200}));
    EXPECT_TRUE(showsBackground({100, 100}));
}

TEST_F(Drawing, clear_takes_everything_away) {
    startWithLine();
    clear();
    EXPECT_TRUE(showsBackground({200, 100}));
}

TEST_F(Drawing, undo_and_redo_work_by_the_shortcuts_that_the_store_binds) {
    prepareTool(DrawingTool::pen);
    prepare([](AppSettings& settings) {
        HotkeyMap hotkeys = settings.hotkeys;
        hotkeys[HotkeyAction::undo] = {6, 0x300, HotkeyAction::undo};
        hotkeys[HotkeyAction::redo] = {16, 0x300, HotkeyAction::redo};
        settings.hotkeys = hotkeys;
    });
    startAnnotating();
    drawLineAt(100);
    pressShortcut("z");
    EXPECT_TRUE(showsBackground({200, 100}));
    pressShortcut("y");
    EXPECT_TRUE(showsInk({200, 100}));
}

TEST_F(Drawing, auto_erase_takes_a_stroke_after_its_time) {
    prepareTool(DrawingTool::pen);
    prepare([](AppSettings& settings) { settings.autoEraseTimer = AutoEraseTimer::twoSeconds; });
    startAnnotating();
    drawLineAt(100);
    EXPECT_TRUE(showsInk({200, 100}));
    EXPECT_TRUE(showsBackground({200, 100}));
}

} // namespace
} // namespace quillon::test
