#include "desktop/program/ProgramTest.h"

namespace quillon::test {
namespace {

class Keyboard : public ProgramTest {
protected:
    Keyboard() {
        below.activate();
        EXPECT_TRUE(eventually([this] { return below.hasKeyboard(); }));
    }

    void openFieldAt(Pixel place) {
        prepareTool(DrawingTool::text);
        startAnnotating();
        input.click(place);
        EXPECT_TRUE(eventually([this] { return !below.hasKeyboard(); }));
        // The field itself: white, and focused.
        EXPECT_TRUE(
            screen.waitForPixel({place.x + 80, place.y}, [](Rgb seen) { return seen.red > 200; }));
    }
};

TEST_F(Keyboard, switching_annotation_on_leaves_the_keyboard_where_it_is) {
    startAnnotating();
    EXPECT_TRUE(below.hasKeyboard());
}

TEST_F(Keyboard, the_first_press_takes_the_keyboard_and_the_end_of_annotation_gives_it_back) {
    startAnnotating();
    input.click({200, 200});
    EXPECT_TRUE(eventually([this] { return !below.hasKeyboard(); }));
    toggleAnnotation();
    EXPECT_TRUE(eventually([this] { return below.hasKeyboard(); }));
    const int before = below.keyCount();
    input.tap("a");
    EXPECT_TRUE(eventually([&] { return below.keyCount() == before + 1; }));
}

TEST_F(Keyboard, text_is_committed_by_return_right_and_below_of_the_press) {
    openFieldAt({300, 200});
    input.type("Hill");
    input.tap("Return");
    EXPECT_TRUE(showsText({300, 200}));
    EXPECT_TRUE(showsBackground({280, 200}));
}

TEST_F(Keyboard, no_key_typed_into_the_field_reaches_the_window_below) {
    openFieldAt({300, 200});
    const int before = below.keyCount();
    input.type("Hill 12");
    input.tap("Return");
    ASSERT_TRUE(showsText({300, 200}));
    EXPECT_EQ(below.keyCount(), before);
}

TEST_F(Keyboard, what_was_typed_can_be_corrected_before_it_is_committed) {
    openFieldAt({300, 200});
    input.type("WWWWWW");
    for (int count = 0; count < 5; ++count) {
        input.tap("BackSpace");
    }
    input.tap("Return");
    ASSERT_TRUE(showsText({300, 200}));
    EXPECT_TRUE(hasInkInRow(212, 300, 330));
    EXPECT_FALSE(hasInkInRow(212, 335, 450));
}

TEST_F(Keyboard, escape_keeps_what_was_typed) {
    openFieldAt({300, 200});
    input.type("Hill");
    input.tap("Escape");
    EXPECT_TRUE(showsBackground({280, 200}));
    EXPECT_TRUE(showsText({300, 200}));
}

TEST_F(Keyboard, a_click_elsewhere_commits_the_text_and_opens_no_other_field) {
    openFieldAt({300, 200});
    input.type("Hill");
    input.click({600, 400});
    EXPECT_TRUE(showsText({300, 200}));
    EXPECT_TRUE(showsBackground({600, 400}));
}

TEST_F(Keyboard, text_is_committed_when_another_window_takes_the_keyboard) {
    openFieldAt({300, 200});
    input.type("Hill");
    below.activate();
    EXPECT_TRUE(showsText({300, 200}));
    EXPECT_TRUE(showsBackground({280, 200}));
}

TEST_F(Keyboard, an_empty_field_leaves_nothing) {
    openFieldAt({300, 200});
    input.tap("Return");
    EXPECT_TRUE(showsBackground({300, 200}));
    EXPECT_TRUE(showsBackground({306, 212}));
}

TEST_F(Keyboard, text_still_being_typed_when_annotation_goes_off_keeps_the_keyboard_to_its_end) {
    openFieldAt({300, 200});
    input.type("Hi");
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return !takesPointer(); }));
    const int before = below.keyCount();
    input.type("ll");
    EXPECT_EQ(below.keyCount(), before);
    input.tap("Return");
    EXPECT_TRUE(showsText({300, 200}));
    EXPECT_TRUE(eventually([this] { return below.hasKeyboard(); }));
}

TEST_F(Keyboard, clear_drops_the_text_that_is_being_typed) {
    openFieldAt({300, 200});
    input.type("Hill");
    clear();
    EXPECT_TRUE(showsBackground({300, 200}));
    EXPECT_TRUE(showsBackground({306, 212}));
}

TEST_F(Keyboard, a_shortcut_held_for_long_leaves_the_text_that_is_being_typed) {
    openFieldAt({300, 200});
    input.type("Hi");
    input.moveTo({700, 500});
    const int before = below.keyCount();
    input.keyDown("Super_L");
    input.keyDown("Shift_L");
    input.keyDown("h");
    EXPECT_TRUE(stays(
        [this] {
            return screen.pixel({380, 200}).red > 200;
        },
        std::chrono::milliseconds(800)));
    input.keyUp("h");
    input.keyUp("Shift_L");
    input.keyUp("Super_L");
    input.type("ll");
    EXPECT_TRUE(stays(
        [this] {
            return screen.pixel({380, 200}).red > 200;
        },
        std::chrono::milliseconds(300)));
    EXPECT_EQ(below.keyCount(), before);
    input.tap("Return");
    EXPECT_TRUE(showsText({300, 200}));
}

TEST_F(Keyboard, a_held_shortcut_fires_once) {
    start();
    input.keyDown("Super_L");
    input.keyDown("Shift_L");
    input.keyDown("s");
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    // Longer than the server's delay before a key repeats.
    EXPECT_TRUE(stays([this] { return takesPointer(); }, std::chrono::milliseconds(1200)));
    input.keyUp("s");
    input.keyUp("Shift_L");
    input.keyUp("Super_L");
    toggleAnnotation();
    EXPECT_TRUE(eventually([this] { return !takesPointer(); }));
}

TEST_F(Keyboard, no_key_of_a_shortcut_but_its_modifiers_reaches_the_window_with_the_keyboard) {
    start();
    const int before = below.keyCount();
    toggleAnnotation();
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    EXPECT_EQ(below.keyCount(), before + 2);
}

TEST_F(Keyboard, a_key_with_fewer_or_more_modifiers_than_its_shortcut_is_left_to_others) {
    start();
    const int before = below.keyCount();
    input.chord({"Super_L", "s"});
    input.chord({"Control_L", "Super_L", "Shift_L", "s"});
    EXPECT_TRUE(eventually([&] { return below.keyCount() == before + 6; }));
    EXPECT_FALSE(takesPointer());
}

TEST_F(Keyboard, shortcuts_work_with_any_of_the_locks_on) {
    start();
    input.tap("Num_Lock");
    toggleAnnotation();
    EXPECT_TRUE(eventually([this] { return takesPointer(); }));
    input.tap("Caps_Lock");
    toggleAnnotation();
    EXPECT_TRUE(eventually([this] { return !takesPointer(); }));
    input.tap("Num_Lock");
    toggleAnnotation();
    EXPECT_TRUE(eventually([this] { return takesPointer(); }));
    input.tap("Caps_Lock");
    input.tap("Scroll_Lock");
    toggleAnnotation();
    EXPECT_TRUE(eventually([this] { return !takesPointer(); }));
    input.tap("Scroll_Lock");
}

} // namespace
} // namespace quillon::test
