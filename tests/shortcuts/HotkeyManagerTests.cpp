#include "shortcuts/HotkeyManager.h"

#include "model/NotificationNames.h"
#include "shortcuts/FourCharCode.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::test {

namespace {

constexpr std::uint32_t commandShift = cmdKey | shiftKey;

/// Six bindings to keys 1 to 6, in the order of the actions.
const HotkeyMap sixBindings{
    {HotkeyAction::toggleAnnotation, {1, commandShift, HotkeyAction::toggleAnnotation}},
    {HotkeyAction::toggleWhiteboard, {2, commandShift, HotkeyAction::toggleWhiteboard}},
    {HotkeyAction::toggleCursorHalo, {3, commandShift, HotkeyAction::toggleCursorHalo}},
    {HotkeyAction::toggleSpotlight, {4, commandShift, HotkeyAction::toggleSpotlight}},
    {HotkeyAction::toggleZoom, {5, commandShift, HotkeyAction::toggleZoom}},
    {HotkeyAction::clearAnnotations, {6, commandShift, HotkeyAction::clearAnnotations}},
};

constexpr std::array allNames{
    NotificationName::toggleAnnotation, NotificationName::toggleWhiteboard,
    NotificationName::toggleCursorHalo, NotificationName::toggleSpotlight,
    NotificationName::toggleZoom,       NotificationName::clearAnnotations,
    NotificationName::undoAnnotation,   NotificationName::redoAnnotation,
    NotificationName::toolChanged,      NotificationName::colorChanged,
    NotificationName::lineWidthChanged, NotificationName::annotationModeChanged,
};

/// A fresh host with a listener on every notification that there is.
class HotkeyManagerTest : public testing::Test {
protected:
    HotkeyManagerTest() {
        for (const auto name : allNames) {
            observations.push_back(host.notificationCenter().addObserver(
                name, [this](const Notification& notification) { heard.push_back(notification); }));
        }
    }

    HotkeyManager& manager() { return HotkeyManager::shared(); }

    std::vector<std::string> heardNames() const {
        std::vector<std::string> names;
        for (const auto& notification : heard) {
            names.push_back(notification.name);
        }
        return names;
    }

    std::vector<std::uint32_t> ids() {
        std::vector<std::uint32_t> result;
        for (const auto& [id, action] : manager().hotkeyActions()) {
            result.push_back(id);
        }
        return result;
    }

    /// An event that carries this id.
    static FakeHotKeys::Event eventOf(std::uint32_t id) {
        FakeHotKeys::Event event;
        event.id = EventHotKeyID{fourCharCodeValue("ORVL"), id};
        return event;
    }

    /// What `work` prints on standard output.
    template <typename Work>
    static std::string printedBy(Work&& work) {
        testing::internal::CaptureStdout();
        work();
        return testing::internal::GetCapturedStdout();
    }

    std::vector<Notification> heard;
    FakeHost host;
    std::vector<Cancellable> observations;
};

using Ids = std::vector<std::uint32_t>;
using Names = std::vector<std::string>;

} // namespace

TEST_F(HotkeyManagerTest, starts_with_nothing_registered_nothing_installed_and_id_1) {
    EXPECT_TRUE(manager().hotkeyRefs().empty());
    EXPECT_TRUE(manager().hotkeyActions().empty());
    EXPECT_EQ(manager().hotkeyIDCounter(), 1U);
    EXPECT_FALSE(manager().eventHandlerRef());
}

TEST_F(HotkeyManagerTest, there_is_one_instance_for_a_host) {
    EXPECT_EQ(&HotkeyManager::shared(), &HotkeyManager::shared());
}

TEST_F(HotkeyManagerTest, every_hot_key_carries_the_signature_and_its_own_id) {
    manager().registerHotkeys(sixBindings);
    std::uint32_t id = 1;
    for (const auto& [ref, entry] : host.hotKeys.registered) {
        EXPECT_EQ(entry.id, (EventHotKeyID{fourCharCodeValue("ORVL"), id}));
        EXPECT_EQ(entry.keyCode, id);
        EXPECT_EQ(entry.modifiers, commandShift);
        EXPECT_EQ(entry.options, 0U);
        ++id;
    }
    EXPECT_EQ(id, 7U);
    EXPECT_EQ(manager().hotkeyRefs().size(), 6U);
}

TEST_F(HotkeyManagerTest, the_key_of_a_pair_names_the_action_and_not_the_binding) {
    manager().registerHotkeys(
        {{HotkeyAction::undo, HotkeyConfig{9, cmdKey, HotkeyAction::toggleZoom}}});
    EXPECT_EQ(manager().hotkeyActions().at(1), HotkeyAction::undo);
}

TEST_F(HotkeyManagerTest, three_registrations_of_six_leave_ids_13_to_18_and_the_counter_at_19) {
    for (int i = 0; i < 3; ++i) {
        manager().registerHotkeys(sixBindings);
    }
    EXPECT_EQ(manager().hotkeyIDCounter(), 19U);
    EXPECT_EQ(ids(), (Ids{13, 14, 15, 16, 17, 18}));
    EXPECT_EQ(host.hotKeys.registered.size(), 6U);
    EXPECT_EQ(manager().hotkeyRefs().size(), 6U);
}

TEST_F(HotkeyManagerTest, an_empty_map_leaves_no_registration_and_the_handler_installed) {
    manager().registerHotkeys(sixBindings);
    manager().startListening();
    manager().registerHotkeys({});
    EXPECT_TRUE(host.hotKeys.registered.empty());
    EXPECT_TRUE(manager().hotkeyRefs().empty());
    EXPECT_TRUE(manager().hotkeyActions().empty());
    EXPECT_TRUE(manager().eventHandlerRef());
    EXPECT_EQ(host.hotKeys.removals, 0);
}

TEST_F(HotkeyManagerTest, unregistering_twice_in_a_row_is_harmless) {
    manager().registerHotkeys(sixBindings);
    manager().unregisterAllHotkeys();
    manager().unregisterAllHotkeys();
    EXPECT_TRUE(host.hotKeys.registered.empty());
    EXPECT_EQ(manager().hotkeyIDCounter(), 7U);
}

TEST_F(HotkeyManagerTest, modifiers_of_zero_are_passed_on_unchanged) {
    manager().registerHotkey(HotkeyAction::undo, {122, 0, HotkeyAction::undo});
    ASSERT_EQ(host.hotKeys.registered.size(), 1U);
    EXPECT_EQ(host.hotKeys.registered.begin()->second.modifiers, 0U);
}

TEST_F(HotkeyManagerTest, of_two_actions_on_one_combination_the_later_in_the_map_is_refused) {
    const auto printed = printedBy([&] {
        manager().registerHotkeys(
            {{HotkeyAction::undo, {6, commandShift, HotkeyAction::undo}},
             {HotkeyAction::clearAnnotations, {6, commandShift, HotkeyAction::clearAnnotations}}});
    });
    EXPECT_EQ(printed, "Failed to register hotkey for Undo: -9878\n");
    EXPECT_EQ(ids(), Ids{1});
    EXPECT_EQ(manager().hotkeyActions().at(1), HotkeyAction::clearAnnotations);
    EXPECT_EQ(manager().hotkeyRefs().size(), 1U);
}

TEST_F(HotkeyManagerTest, a_refused_binding_uses_an_id_up_and_leaves_the_others_alone) {
    host.hotKeys.takenByOthers = {3};
    const auto printed = printedBy([&] { manager().registerHotkeys(sixBindings); });
    EXPECT_EQ(printed, "Failed to register hotkey for Toggle Cursor Halo: -9878\n");
    EXPECT_EQ(manager().hotkeyIDCounter(), 7U);
    EXPECT_EQ(ids(), (Ids{1, 2, 4, 5, 6}));
    EXPECT_EQ(manager().hotkeyRefs().size(), 5U);
}

TEST_F(HotkeyManagerTest, a_registration_counts_only_with_both_a_good_status_and_a_reference) {
    const HotkeyConfig binding{9, cmdKey, HotkeyAction::redo};
    host.hotKeys.oddAnswer = HotKeys::Registration{noErr, std::nullopt};
    EXPECT_EQ(printedBy([&] { manager().registerHotkey(HotkeyAction::redo, binding); }),
              "Failed to register hotkey for Redo: 0\n");
    host.hotKeys.oddAnswer = HotKeys::Registration{paramErr, EventHotKeyRef{7}};
    EXPECT_EQ(printedBy([&] { manager().registerHotkey(HotkeyAction::redo, binding); }),
              "Failed to register hotkey for Redo: -50\n");
    EXPECT_TRUE(manager().hotkeyRefs().empty());
    EXPECT_TRUE(manager().hotkeyActions().empty());
    EXPECT_EQ(manager().hotkeyIDCounter(), 3U);
}

TEST_F(HotkeyManagerTest, a_refused_binding_is_tried_again_with_the_next_map) {
    host.hotKeys.takenByOthers = {3};
    printedBy([&] { manager().registerHotkeys(sixBindings); });
    host.hotKeys.takenByOthers.clear();
    EXPECT_EQ(printedBy([&] { manager().registerHotkeys(sixBindings); }), "");
    EXPECT_EQ(ids(), (Ids{7, 8, 9, 10, 11, 12}));
}

TEST_F(HotkeyManagerTest, starting_to_listen_twice_leaves_one_handler) {
    manager().startListening();
    manager().startListening();
    EXPECT_EQ(host.hotKeys.installations, 1);
    EXPECT_EQ(host.hotKeys.handledType, (EventTypeSpec{fourCharCodeValue("keyb"), 5}));
    EXPECT_EQ(host.hotKeys.userData, &manager());
}

TEST_F(HotkeyManagerTest, stopping_without_having_started_does_nothing) {
    manager().stopListening();
    EXPECT_EQ(host.hotKeys.removals, 0);
}

TEST_F(HotkeyManagerTest, stopping_removes_the_handler_once_and_leaves_the_registrations) {
    manager().registerHotkeys(sixBindings);
    manager().startListening();
    manager().stopListening();
    manager().stopListening();
    EXPECT_EQ(host.hotKeys.removals, 1);
    EXPECT_FALSE(manager().eventHandlerRef());
    EXPECT_EQ(host.hotKeys.registered.size(), 6U);
}

TEST_F(HotkeyManagerTest, it_can_listen_again_after_it_stopped) {
    manager().startListening();
    manager().stopListening();
    manager().startListening();
    EXPECT_TRUE(manager().eventHandlerRef());
    EXPECT_EQ(host.hotKeys.installations, 2);
}

TEST_F(HotkeyManagerTest, a_refused_handler_is_told_and_tried_again_by_the_next_start) {
    host.hotKeys.installationStatus = eventNotHandledErr;
    EXPECT_EQ(printedBy([&] { manager().startListening(); }),
              "Failed to install event handler: -9874\n");
    EXPECT_FALSE(manager().eventHandlerRef());

    host.hotKeys.installationStatus = noErr;
    EXPECT_EQ(printedBy([&] { manager().startListening(); }), "");
    EXPECT_TRUE(manager().eventHandlerRef());
}

TEST_F(HotkeyManagerTest, a_press_posts_its_notification_in_a_later_turn) {
    manager().registerHotkeys(sixBindings);
    manager().startListening();
    EXPECT_EQ(host.hotKeys.press(4, commandShift), noErr);
    EXPECT_TRUE(heard.empty());
    host.mainQueue.turn();
    EXPECT_EQ(heardNames(), Names{"toggleSpotlight"});
}

TEST_F(HotkeyManagerTest, presses_are_posted_in_the_order_in_which_they_came) {
    manager().registerHotkeys(sixBindings);
    manager().startListening();
    host.hotKeys.press(5, commandShift);
    host.hotKeys.press(1, commandShift);
    host.hotKeys.press(5, commandShift);
    host.mainQueue.run();
    EXPECT_EQ(heardNames(), (Names{"toggleZoom", "toggleAnnotation", "toggleZoom"}));
}

TEST_F(HotkeyManagerTest, a_press_between_registration_and_listening_finds_no_handler) {
    manager().registerHotkeys(sixBindings);
    EXPECT_FALSE(host.hotKeys.press(1, commandShift));
    manager().startListening();
    host.mainQueue.run();
    EXPECT_TRUE(heard.empty());
}

TEST_F(HotkeyManagerTest, each_action_has_its_own_notification_without_object_or_payload) {
    const std::vector<std::pair<HotkeyAction, std::string>> table{
        {HotkeyAction::toggleAnnotation, "toggleAnnotation"},
        {HotkeyAction::toggleWhiteboard, "toggleWhiteboard"},
        {HotkeyAction::toggleCursorHalo, "toggleCursorHalo"},
        {HotkeyAction::toggleSpotlight, "toggleSpotlight"},
        {HotkeyAction::toggleZoom, "toggleZoom"},
        {HotkeyAction::clearAnnotations, "clearAnnotations"},
        {HotkeyAction::undo, "undoAnnotation"},
        {HotkeyAction::redo, "redoAnnotation"},
    };
    for (const auto& [action, name] : table) {
        heard.clear();
        manager().handleHotkeyAction(action);
        ASSERT_EQ(heardNames(), Names{name});
        EXPECT_EQ(heard.front().object, nullptr);
        EXPECT_TRUE(heard.front().userInfo.empty());
    }
}

TEST_F(HotkeyManagerTest, a_missing_event_or_manager_is_not_handled) {
    const auto event = eventOf(1);
    EXPECT_EQ(HotkeyManager::handleEvent(nullptr, &manager()), eventNotHandledErr);
    EXPECT_EQ(HotkeyManager::handleEvent(&event, nullptr), eventNotHandledErr);
    EXPECT_EQ(HotkeyManager::handleEvent(nullptr, nullptr), eventNotHandledErr);
}

TEST_F(HotkeyManagerTest, an_event_without_an_id_is_swallowed) {
    manager().registerHotkeys(sixBindings);
    const FakeHotKeys::Event event;
    EXPECT_EQ(HotkeyManager::handleEvent(&event, &manager()), noErr);
    EXPECT_TRUE(host.mainQueue.isIdle());
}

TEST_F(HotkeyManagerTest, a_press_whose_id_went_with_a_re_registration_is_swallowed) {
    manager().registerHotkeys(sixBindings);
    const auto stale = eventOf(1);
    manager().registerHotkeys(sixBindings);
    EXPECT_EQ(HotkeyManager::handleEvent(&stale, &manager()), noErr);
    EXPECT_TRUE(host.mainQueue.isIdle());
}

TEST_F(HotkeyManagerTest, the_signature_of_an_event_is_not_compared) {
    manager().registerHotkeys(sixBindings);
    FakeHotKeys::Event event;
    event.id = EventHotKeyID{fourCharCodeValue("ELSE"), 2};
    EXPECT_EQ(HotkeyManager::handleEvent(&event, &manager()), noErr);
    host.mainQueue.run();
    EXPECT_EQ(heardNames(), Names{"toggleWhiteboard"});
}

TEST_F(HotkeyManagerTest,
       a_press_that_was_taken_in_is_posted_though_the_bindings_change_meanwhile) {
    manager().registerHotkeys(sixBindings);
    manager().startListening();
    host.hotKeys.press(2, commandShift);
    manager().unregisterAllHotkeys();
    manager().stopListening();
    host.mainQueue.run();
    EXPECT_EQ(heardNames(), Names{"toggleWhiteboard"});
}

TEST_F(HotkeyManagerTest, an_observer_may_replace_the_bindings) {
    manager().registerHotkeys(sixBindings);
    manager().startListening();
    observations.push_back(
        host.notificationCenter().addObserver(NotificationName::toggleZoom, [&](const auto&) {
            manager().registerHotkeys({{HotkeyAction::redo, {9, cmdKey, HotkeyAction::redo}}});
        }));
    host.hotKeys.press(5, commandShift);
    host.mainQueue.run();
    EXPECT_FALSE(host.hotKeys.press(5, commandShift));
    EXPECT_EQ(host.hotKeys.press(9, cmdKey), noErr);
    host.mainQueue.run();
    EXPECT_EQ(heardNames(), (Names{"toggleZoom", "redoAnnotation"}));
}

TEST_F(HotkeyManagerTest, registering_publishes_no_change_of_its_own) {
    int changes = 0;
    const auto subscription = manager().objectWillChange.sink([&] { ++changes; });
    manager().registerHotkeys(sixBindings);
    manager().startListening();
    EXPECT_EQ(changes, 0);
}

/// The ports of a host, and a host that a test can end before them.
class HotkeyManagerLifetime : public testing::Test, protected FakePorts {};

TEST_F(HotkeyManagerLifetime, a_press_that_outlives_the_manager_is_dropped) {
    int heard = 0;
    {
        Host host(ports());
        const auto observation = host.notificationCenter().addObserver(
            NotificationName::toggleAnnotation, [&](const Notification&) { ++heard; });
        HotkeyManager::shared().registerHotkeys(sixBindings);
        HotkeyManager::shared().startListening();
        hotKeys.press(1, commandShift);
        ASSERT_FALSE(mainQueue.isIdle());
    }
    mainQueue.run();
    EXPECT_EQ(heard, 0);
}

TEST_F(HotkeyManagerLifetime, the_end_of_the_manager_gives_back_what_it_holds) {
    {
        Host host(ports());
        HotkeyManager::shared().registerHotkeys(sixBindings);
        HotkeyManager::shared().startListening();
    }
    EXPECT_TRUE(hotKeys.registered.empty());
    EXPECT_EQ(hotKeys.removals, 1);
}

TEST_F(HotkeyManagerLifetime, a_fresh_host_counts_from_one_again) {
    {
        Host host(ports());
        HotkeyManager::shared().registerHotkeys(sixBindings);
    }
    Host host(ports());
    EXPECT_EQ(HotkeyManager::shared().hotkeyIDCounter(), 1U);
}

} // namespace quillon::test
