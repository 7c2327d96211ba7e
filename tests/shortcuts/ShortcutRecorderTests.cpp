#include "platform/HotKeys.h"
#include "shortcuts/ShortcutRecorderView.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quillon::test {

namespace {

constexpr std::uint16_t kA = 0;
constexpr std::uint16_t kReturn = 36;
constexpr std::uint16_t kEscape = 53;

using Calls = std::vector<std::string>;

/// A recorder whose callbacks are noted, and whose owner changes nothing by itself.
struct ShortcutRecorder : testing::Test {
    ShortcutRecorderView view(bool isRecording) {
        return {
            "Change",
            isRecording,
            [this] { calls.emplace_back("begin"); },
            [this] { calls.emplace_back("cancel"); },
            [this](std::uint32_t keyCode, std::uint32_t modifiers) {
                calls.push_back("capture " + std::to_string(keyCode) + " " +
                                std::to_string(modifiers));
            },
            [this] { calls.emplace_back("require modifier"); },
        };
    }
    void record() { view(true).updateControl(*control); }
    void press(std::uint16_t keyCode, std::uint64_t flags = 0) {
        control->keyDown({keyCode, flags, false});
    }

    Calls calls;
    std::unique_ptr<ShortcutRecorderControl> control = view(false).makeControl();
};

} // namespace

TEST_F(ShortcutRecorder, a_new_control_is_empty_and_does_not_record) {
    const ShortcutRecorderControl fresh;
    EXPECT_EQ(fresh.title(), "");
    EXPECT_EQ(fresh.titleField().stringValue, "");
    EXPECT_FALSE(fresh.isRecording());
    EXPECT_FALSE(fresh.onBegin || fresh.onCancel || fresh.onCapture || fresh.onRequireModifier);
    EXPECT_TRUE(ShortcutRecorderControl::acceptsFirstResponder);
    EXPECT_EQ(ShortcutRecorderControl::accessibilityLabel, "Record keyboard shortcut");
}

TEST_F(ShortcutRecorder, the_view_pushes_all_its_members_into_the_control) {
    EXPECT_EQ(control->title(), "Change");
    EXPECT_FALSE(control->isRecording());
    control->onBegin();
    control->onCancel();
    control->onCapture(1, 2);
    control->onRequireModifier();
    EXPECT_EQ(calls, (Calls{"begin", "cancel", "capture 1 2", "require modifier"}));

    ShortcutRecorderView{"Press shortcut…", true, {}, {}, {}, {}}.updateControl(*control);
    EXPECT_EQ(control->title(), "Press shortcut…");
    EXPECT_TRUE(control->isRecording());
    EXPECT_FALSE(control->onBegin || control->onCancel || control->onCapture ||
                 control->onRequireModifier);
}

TEST_F(ShortcutRecorder, it_is_a_rounded_rectangle_with_a_small_label) {
    EXPECT_EQ(ShortcutRecorderControl::cornerRadius, 6);
    EXPECT_EQ(ShortcutRecorderControl::TitleField::fontSize, 12);
}

TEST_F(ShortcutRecorder, the_title_is_what_the_label_shows) {
    control->setTitle("Press shortcut…");
    EXPECT_EQ(control->titleField().stringValue, "Press shortcut…");
}

TEST_F(ShortcutRecorder, the_look_depends_on_recording_alone) {
    EXPECT_EQ(control->fill(), SystemColor::controlBackgroundColor);
    EXPECT_EQ(control->titleField().textColor, SystemColor::labelColor);
    record();
    EXPECT_EQ(control->fill(), SystemColor::controlAccentColor);
    EXPECT_EQ(control->titleField().textColor, SystemColor::whiteColor);
    view(false).updateControl(*control);
    EXPECT_EQ(control->fill(), SystemColor::controlBackgroundColor);
    EXPECT_EQ(control->titleField().textColor, SystemColor::labelColor);
}

TEST_F(ShortcutRecorder, a_change_of_title_or_of_recording_asks_for_a_new_picture) {
    int pictures = 0;
    control->setNeedsDisplay = [&] { ++pictures; };
    control->setTitle("Other");
    EXPECT_EQ(pictures, 1);
    control->setRecording(true);
    EXPECT_EQ(pictures, 2);
}

TEST_F(ShortcutRecorder, a_click_takes_the_keyboard_and_then_begins) {
    control->makeFirstResponder = [this] { calls.emplace_back("first responder"); };
    control->mouseDown();
    EXPECT_EQ(calls, (Calls{"first responder", "begin"}));
}

TEST_F(ShortcutRecorder, a_click_does_not_by_itself_start_the_recording) {
    control->mouseDown();
    EXPECT_EQ(calls, Calls{"begin"});
    EXPECT_FALSE(control->isRecording());
}

TEST_F(ShortcutRecorder, a_click_while_recording_begins_again) {
    record();
    control->mouseDown();
    EXPECT_EQ(calls, Calls{"begin"});
    EXPECT_TRUE(control->isRecording());
}

TEST_F(ShortcutRecorder, a_key_while_idle_does_nothing) {
    press(kA, NSEventModifierFlags::command);
    press(kA);
    press(kEscape);
    EXPECT_EQ(calls, Calls{});
}

TEST_F(ShortcutRecorder, a_key_with_a_modifier_is_captured) {
    record();
    press(kA, NSEventModifierFlags::command | NSEventModifierFlags::control);
    EXPECT_EQ(calls, Calls{"capture 0 " + std::to_string(cmdKey | controlKey)});
    EXPECT_TRUE(control->isRecording());
}

TEST_F(ShortcutRecorder, shift_alone_is_modifier_enough) {
    record();
    press(kA, NSEventModifierFlags::shift);
    EXPECT_EQ(calls, Calls{"capture 0 " + std::to_string(shiftKey)});
}

TEST_F(ShortcutRecorder, a_held_key_reports_once) {
    record();
    press(kA, NSEventModifierFlags::command);
    for (int repeats = 0; repeats < 3; ++repeats) {
        control->keyDown({kA, NSEventModifierFlags::command, true});
    }
    EXPECT_EQ(calls.size(), 1U);
}

TEST_F(ShortcutRecorder, the_repeats_of_escape_are_dropped_too) {
    record();
    control->keyDown({kEscape, 0, true});
    EXPECT_EQ(calls, Calls{});
}

TEST_F(ShortcutRecorder, escape_cancels_whatever_modifiers_are_held) {
    record();
    press(kEscape);
    press(kEscape, NSEventModifierFlags::command);
    EXPECT_EQ(calls, (Calls{"cancel", "cancel"}));
}

TEST_F(ShortcutRecorder, return_without_a_modifier_asks_for_one) {
    record();
    press(kReturn);
    EXPECT_EQ(calls, Calls{"require modifier"});
    EXPECT_TRUE(control->isRecording());
}

TEST_F(ShortcutRecorder, caps_lock_counts_as_no_modifier) {
    record();
    press(kA, NSEventModifierFlags::capsLock);
    EXPECT_EQ(calls, Calls{"require modifier"});
}

TEST_F(ShortcutRecorder, a_control_without_callbacks_takes_clicks_and_keys_all_the_same) {
    ShortcutRecorderControl bare;
    bare.setRecording(true);
    bare.mouseDown();
    bare.keyDown({kEscape, 0, false});
    bare.keyDown({kA, 0, false});
    bare.keyDown({kA, NSEventModifierFlags::command, false});
    EXPECT_TRUE(bare.isRecording());
}

TEST_F(ShortcutRecorder, the_owner_may_replace_the_callbacks_while_one_runs) {
    record();
    control->onCapture = [this](std::uint32_t, std::uint32_t) {
        view(false).updateControl(*control);
        calls.emplace_back("captured");
    };
    press(kA, NSEventModifierFlags::shift);
    press(kA, NSEventModifierFlags::shift);
    EXPECT_EQ(calls, Calls{"captured"});
}

} // namespace quillon::test
