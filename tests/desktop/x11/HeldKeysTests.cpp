#include "desktop/x11/HeldKeys.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

using desktop::HeldKeys;
using enum HeldKeys::Press;

constexpr xcb_keycode_t key = 39;
constexpr xcb_keycode_t otherKey = 40;
constexpr HeldKeys::RepeatTimes times{600, 40};

class HeldKeysTest : public testing::Test {
protected:
    HeldKeysTest() { keys.setRepeatTimes(times); }

    HeldKeys keys;
};

} // namespace

TEST_F(HeldKeysTest, the_first_press_of_a_key_is_no_repeat_whatever_the_clock_says) {
    EXPECT_EQ(keys.pressed(key, 0), first);
    EXPECT_EQ(keys.pressed(otherKey, 0xFFFFFFFF), first);
}

TEST_F(HeldKeysTest, presses_without_a_release_are_repeats) {
    keys.pressed(key, 1000);
    EXPECT_EQ(keys.pressed(key, 1600), repeat);
    EXPECT_EQ(keys.pressed(key, 1640), repeat);
    EXPECT_EQ(keys.pressed(key, 1680), repeat);
}

TEST_F(HeldKeysTest, a_press_at_the_very_time_of_the_release_is_a_repeat) {
    keys.pressed(key, 1000);
    keys.released(key, 1600);
    EXPECT_EQ(keys.pressed(key, 1600), repeat);
    keys.released(key, 1640);
    EXPECT_EQ(keys.pressed(key, 1640), repeat);
}

TEST_F(HeldKeysTest, a_press_after_the_release_is_a_press_of_its_own) {
    keys.pressed(key, 1000);
    keys.released(key, 1050);
    EXPECT_EQ(keys.pressed(key, 1051), first);
}

TEST_F(HeldKeysTest, a_key_held_in_the_other_form_of_repeat_can_be_pressed_anew_after_its_release) {
    keys.pressed(key, 1000);
    keys.released(key, 1600);
    keys.pressed(key, 1600);
    keys.released(key, 1700);
    EXPECT_EQ(keys.pressed(key, 1800), first);
}

TEST_F(HeldKeysTest, each_key_is_held_for_itself) {
    keys.pressed(key, 1000);
    EXPECT_EQ(keys.pressed(otherKey, 1010), first);
    EXPECT_EQ(keys.pressed(key, 1020), repeat);
}

TEST_F(HeldKeysTest, a_press_later_than_any_repeat_could_come_is_a_press_of_its_own) {
    keys.pressed(key, 1000);
    EXPECT_EQ(keys.pressed(key, 1000 + 2 * times.delay), first);
}

TEST_F(HeldKeysTest, keys_that_a_program_strikes_within_a_millisecond_are_presses_of_their_own) {
    EXPECT_EQ(keys.pressed(key, 1000), first);
    keys.released(key, 1000);
    EXPECT_EQ(keys.pressed(key, 1000), first);
    keys.released(key, 1001);
    EXPECT_EQ(keys.pressed(key, 1001), first);
}

TEST_F(HeldKeysTest, a_slow_repeat_rate_is_waited_for) {
    keys.setRepeatTimes({5000, 40});
    keys.pressed(key, 1000);
    EXPECT_EQ(keys.pressed(key, 6000), repeat);
}

TEST_F(HeldKeysTest, a_key_is_held_across_the_turn_of_the_clock) {
    keys.pressed(key, 0xFFFFFFF0);
    EXPECT_EQ(keys.pressed(key, 0x10), repeat);
}

} // namespace quillon::test
