#include "desktop/program/ProgramTest.h"

namespace quillon::test {
namespace {

using Modes = ProgramTest;

TEST_F(Modes, before_annotation_every_click_reaches_the_window_below) {
    start();
    input.click({200, 200});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 1; }));
}

TEST_F(Modes, annotation_takes_the_clicks_and_gives_them_back_with_the_drawing_still_there) {
    startWithLine();
    EXPECT_EQ(below.pressCount(), 0);

    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return !takesPointer(); }));
    input.click({200, 100});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 1; }));
    EXPECT_TRUE(showsInk({200, 100}));
}

TEST_F(Modes, the_whiteboard_covers_the_screen_and_can_be_drawn_on) {
    prepareTool(DrawingTool::pen);
    start();
    toggleWhiteboard();
    // White at 0.9 over the colour below.
    const Rgb sheet{233, 235, 238};
    EXPECT_TRUE(screen.waitForColor({450, 300}, sheet));
    EXPECT_TRUE(screen.waitForColor({2, 42}, sheet));
    drawLineAt(100);
}

TEST_F(Modes, the_whiteboard_wipes_the_drawing_on_its_way_in_and_out_and_leaves_annotation_on) {
    startWithLine();
    toggleWhiteboard();
    ASSERT_TRUE(screen.waitForPixel({450, 300}, [](Rgb seen) { return seen.red > 225; }));
    EXPECT_FALSE(isNear(screen.pixel({200, 100}), kInk));
    drawLineAt(200);
    toggleWhiteboard();
    EXPECT_TRUE(showsBackground({200, 200}));
    EXPECT_TRUE(takesPointer());
}

TEST_F(Modes, annotation_switched_off_hides_the_whiteboard_and_keeps_its_mode) {
    start();
    toggleWhiteboard();
    ASSERT_TRUE(screen.waitForPixel({450, 300}, [](Rgb seen) { return seen.red > 225; }));
    toggleAnnotation();
    EXPECT_TRUE(showsBackground({450, 300}));
    toggleAnnotation();
    EXPECT_TRUE(screen.waitForPixel({450, 300}, [](Rgb seen) { return seen.red > 225; }));
}

TEST_F(Modes, annotation_switched_off_within_a_stroke_lets_the_next_click_through) {
    prepareTool(DrawingTool::pen);
    startAnnotating();
    holdLineAt(100);
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return !takesPointer(); }));
    input.release();
    input.click({400, 300});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 1; }));

    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    input.moveTo({500, 400});
    input.drag({{500, 500}, {700, 500}});
    EXPECT_TRUE(showsInk({600, 500}));
    // Nothing joins the two strokes.
    EXPECT_TRUE(showsBackground({500, 400}));
    EXPECT_TRUE(showsBackground({350, 300}));
}

TEST_F(Modes, other_buttons_and_the_wheel_draw_nothing_and_reach_nobody) {
    prepareTool(DrawingTool::pen);
    startAnnotating();
    for (const int button : {2, 3}) {
        input.moveTo({100, 100});
        input.press(button);
        input.moveTo({200, 100});
        input.moveTo({300, 100});
        input.release(button);
    }
    input.click({200, 100}, 4);
    drawLineAt(200);
    EXPECT_TRUE(showsBackground({200, 100}));
    EXPECT_EQ(below.pressCount(), 0);
}

TEST_F(Modes, a_start_with_annotation_stored_on_takes_the_pointer_by_itself) {
    prepareTool(DrawingTool::pen);
    prepare([](AppSettings& settings) { settings.isAnnotationEnabled = true; });
    start();
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    drawLineAt(100);
}

TEST_F(Modes, the_overlay_stays_above_a_window_that_comes_later) {
    startWithLine();
    ProbeWindow later(desktop.display(), {50, 50, 400, 300}, {20, 120, 20});
    later.activate();
    EXPECT_TRUE(screen.waitForColor({200, 130}, {20, 120, 20}));
    EXPECT_TRUE(showsInk({200, 100}));
}

/// The same on a desktop where no window can be translucent.
class WithoutCompositor : public ProgramTest {
protected:
    WithoutCompositor()
        : ProgramTest({.width = 900, .height = 600, .hasCompositor = false}) {}

    void startHoldingThePointer(DrawingTool tool = DrawingTool::pen) {
        prepareTool(tool);
        start();
        toggleAnnotation();
        ASSERT_TRUE(eventually([this] { return isPointerHeld(); }));
    }
    bool isCaught(Pixel place) {
        const int before = below.pressCount();
        input.click(place);
        return stays([&] { return below.pressCount() == before; }, std::chrono::milliseconds(150));
    }
};

TEST_F(WithoutCompositor, the_screen_stays_to_be_seen_round_the_strokes) {
    startHoldingThePointer();
    EXPECT_TRUE(isCaught({500, 400}));
    EXPECT_TRUE(showsBackground({450, 300}));
    drawLineAt(100);
    EXPECT_TRUE(showsBackground({200, 120}));
    clear();
    EXPECT_TRUE(showsBackground({200, 100}));
}

TEST_F(WithoutCompositor, a_pointer_that_another_program_holds_is_taken_once_it_lets_go) {
    prepareTool(DrawingTool::pen);
    start();
    xcb_connection_t* other = desktop.connection().get();
    const XOwned<xcb_grab_pointer_reply_t> grab(xcb_grab_pointer_reply(
        other,
        xcb_grab_pointer(other, 0, desktop.connection().root(), 0, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    ASSERT_EQ(grab->status, XCB_GRAB_STATUS_SUCCESS);
    const auto shownBefore = desktop.connection().shownWindows().size();
    toggleAnnotation();
    ASSERT_TRUE(
        eventually([&] { return desktop.connection().shownWindows().size() > shownBefore; }));
    input.drag({{100, 100}, {300, 100}});
    EXPECT_TRUE(
        stays([this] { return !hasInkInRow(100, 100, 300); }, std::chrono::milliseconds(150)))
        << "what the other program holds is its own";

    xcb_ungrab_pointer(other, XCB_CURRENT_TIME);
    desktop.connection().synchronise();
    ASSERT_TRUE(eventually([this] { return isPointerHeld(); }));
    drawLineAt(100);
    EXPECT_EQ(below.pressCount(), 0);
}

TEST_F(WithoutCompositor, with_annotation_off_clicks_reach_below_also_through_the_strokes) {
    startHoldingThePointer();
    drawLineAt(100);
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return !isPointerHeld(); }));
    EXPECT_FALSE(isCaught({500, 400}));
    EXPECT_FALSE(isCaught({200, 100}));
    EXPECT_TRUE(showsInk({200, 100}));
}

TEST_F(WithoutCompositor, text_can_be_typed) {
    startHoldingThePointer(DrawingTool::text);
    writeText({300, 200}, "Hill");
    EXPECT_TRUE(showsText({300, 200}));
    EXPECT_TRUE(showsBackground({380, 200}));
}

} // namespace
} // namespace quillon::test
