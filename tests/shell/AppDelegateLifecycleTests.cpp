#include "cursor/CursorHighlightManager.h"
#include "model/NotificationNames.h"
#include "shell/ShellTest.h"
#include "shortcuts/HotkeyManager.h"

#include <string>

namespace quillon::test {

namespace {

using AppDelegateLifecycleTest = ShellTest;
using Journal = std::vector<std::string>;

/// Notes a line, unless the last one says the same.
void note(Journal& journal, const char* line) {
    if (journal.empty() || journal.back() != line) {
        journal.emplace_back(line);
    }
}

struct JournalApplication : FakeApplication {
    explicit JournalApplication(Journal& newJournal)
        : journal(newJournal) {}
    void setActivationPolicy(ActivationPolicy newPolicy) override {
        note(journal, "policy");
        FakeApplication::setActivationPolicy(newPolicy);
    }
    Journal& journal;
};

struct JournalDefaults : FakeDefaults {
    explicit JournalDefaults(Journal& newJournal)
        : journal(newJournal) {}
    std::optional<DefaultsValue> object(std::string_view key) const override {
        note(journal, "settings");
        return FakeDefaults::object(key);
    }
    void setBool(std::string_view key, bool value) override {
        note(journal, "settings");
        FakeDefaults::setBool(key, value);
    }
    Journal& journal;
};

struct JournalStatusBar : FakeStatusBar {
    explicit JournalStatusBar(Journal& newJournal)
        : journal(newJournal) {}
    std::unique_ptr<StatusItem> statusItemWithLength(CGFloat newLength) override {
        note(journal, "statusItem");
        return FakeStatusBar::statusItemWithLength(newLength);
    }
    Journal& journal;
};

struct JournalQueue : HandTurnedQueue {
    explicit JournalQueue(Journal& newJournal)
        : journal(newJournal) {}
    void async(Work work) override {
        note(journal, "storedMode");
        HandTurnedQueue::async(std::move(work));
    }
    Journal& journal;
};

struct JournalHotKeys : FakeHotKeys {
    explicit JournalHotKeys(Journal& newJournal)
        : journal(newJournal) {}
    Registration registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                     EventHotKeyID id, EventTarget target,
                                     std::uint32_t options) override {
        note(journal, "register");
        return FakeHotKeys::registerEventHotKey(keyCode, modifiers, id, target, options);
    }
    void unregisterEventHotKey(EventHotKeyRef ref) override {
        note(journal, "unregister");
        FakeHotKeys::unregisterEventHotKey(ref);
    }
    Installation installEventHandler(EventTarget target, EventHandler newHandler,
                                     EventTypeSpec type, void* newUserData) override {
        note(journal, "listen");
        return FakeHotKeys::installEventHandler(target, newHandler, type, newUserData);
    }
    void removeEventHandler(EventHandlerRef ref) override {
        note(journal, "deafen");
        FakeHotKeys::removeEventHandler(ref);
    }
    Journal& journal;
};

struct JournalEventMonitors : FakeEventMonitors {
    explicit JournalEventMonitors(Journal& newJournal)
        : journal(newJournal) {}
    void removeMonitor(EventMonitorToken token) override {
        note(journal, "stopTracking");
        FakeEventMonitors::removeMonitor(token);
    }
    Journal& journal;
};

/// A window with an owner that the sweep can find.
class SceneWindow : public Window {
public:
    SceneWindow(const Color& background, const char* windowTitle)
        : Window({100, 100, 400, 300}, WindowStyleMask::borderless, BackingStoreType::buffered,
                 false) {
        setBackgroundColor(background);
        setTitle(windowTitle);
    }

    bool wasSwept() const {
        return frame() == CGRect{-10000, -10000, 1, 1} && isExcludedFromWindowsMenu() &&
               !isMovable();
    }
    bool wasLeftAlone() const {
        return frame() == CGRect{100, 100, 400, 300} && !isExcludedFromWindowsMenu() && isMovable();
    }
};

HotkeyConfig binding(AppSettings& settings, HotkeyAction action) {
    return settings.hotkeys->at(action);
}

} // namespace

TEST(AppDelegateOrder, start_up_and_shut_down_take_their_steps_in_order) {
    Journal journal;
    JournalQueue mainQueue(journal);
    JournalDefaults userDefaults(journal);
    JournalApplication application(journal);
    JournalHotKeys hotKeys(journal);
    JournalStatusBar statusBar(journal);
    JournalEventMonitors eventMonitors(journal);
    FakePorts fakes;
    Host::Ports ports = fakes.ports();
    ports.mainQueue = mainQueue;
    ports.userDefaults = userDefaults;
    ports.application = application;
    ports.hotKeys = hotKeys;
    ports.statusBar = statusBar;
    ports.eventMonitors = eventMonitors;
    const Host host(ports);
    AppDelegate delegate;

    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(journal,
              (Journal{"policy", "settings", "statusItem", "storedMode", "register", "listen"}));
    CursorHighlightManager::shared().isEnabled = true;
    journal.clear();
    delegate.applicationWillTerminate();
    EXPECT_EQ(journal, (Journal{"stopTracking", "unregister", "deafen"}));
}

TEST_F(AppDelegateLifecycleTest, the_program_is_an_accessory) {
    launch();
    EXPECT_EQ(host.application.policy, ActivationPolicy::accessory);
}

TEST_F(AppDelegateLifecycleTest, a_launch_registers_the_stored_bindings_and_listens) {
    launch();
    EXPECT_EQ(host.hotKeys.registered.size(), 6U);
    EXPECT_TRUE(host.hotKeys.handler);
}

TEST_F(AppDelegateLifecycleTest, a_launch_registers_each_binding_once) {
    launch();
    EXPECT_EQ(HotkeyManager::shared().hotkeyIDCounter(), 7U);
}

TEST_F(AppDelegateLifecycleTest, no_event_monitor_is_ever_stored) {
    launch();
    delegate->toggleWhiteboard();
    host.mainQueue.run();
    EXPECT_TRUE(delegate->eventMonitors().empty());
    EXPECT_FALSE(delegate->settingsWindow());
}

TEST_F(AppDelegateLifecycleTest, a_hot_key_travels_from_the_key_to_the_overlay) {
    launch();
    const HotkeyConfig keys = binding(settings(), HotkeyAction::toggleAnnotation);
    EXPECT_EQ(host.hotKeys.press(keys.keyCode, keys.modifiers), noErr);
    EXPECT_FALSE(settings().isAnnotationEnabled);
    host.mainQueue.run();
    EXPECT_TRUE(settings().isAnnotationEnabled);
    ASSERT_TRUE(delegate->overlayWindow());
    EXPECT_FALSE(delegate->overlayWindow()->ignoresMouseEvents());
}

TEST_F(AppDelegateLifecycleTest, a_hot_key_for_undo_without_an_overlay_has_no_effect) {
    launch();
    settings().hotkeys = HotkeyMap{{HotkeyAction::undo, {6, cmdKey, HotkeyAction::undo}}};
    host.mainQueue.run();
    EXPECT_EQ(host.hotKeys.press(6, cmdKey), noErr);
    host.mainQueue.run();
    EXPECT_FALSE(delegate->overlayWindow());
    EXPECT_FALSE(settings().isAnnotationEnabled);
}

TEST_F(AppDelegateLifecycleTest, a_changed_binding_takes_effect_one_turn_later) {
    launch();
    const HotkeyConfig old = binding(settings(), HotkeyAction::toggleWhiteboard);
    HotkeyMap changed = settings().hotkeys;
    changed[HotkeyAction::toggleWhiteboard] = {99, controlKey, HotkeyAction::toggleWhiteboard};
    settings().hotkeys = changed;
    EXPECT_FALSE(host.hotKeys.press(99, controlKey));
    host.mainQueue.run();

    EXPECT_EQ(host.hotKeys.registered.size(), 6U);
    EXPECT_FALSE(host.hotKeys.press(old.keyCode, old.modifiers));
    EXPECT_EQ(host.hotKeys.press(99, controlKey), noErr);
    host.mainQueue.run();
    EXPECT_TRUE(settings().isWhiteboardMode);
}

TEST_F(AppDelegateLifecycleTest, a_cleared_binding_is_no_longer_registered) {
    launch();
    HotkeyMap changed = settings().hotkeys;
    changed.erase(HotkeyAction::toggleZoom);
    settings().hotkeys = changed;
    host.mainQueue.run();
    EXPECT_EQ(host.hotKeys.registered.size(), 5U);
}

// The sweep.

TEST_F(AppDelegateLifecycleTest, a_white_window_with_another_title_is_swept_off_the_screen) {
    SceneWindow scene(Color::white, "Some scene");
    scene.orderFrontRegardless();
    launch();
    EXPECT_TRUE(scene.wasSwept());
    EXPECT_TRUE(scene.isVisible());
}

TEST_F(AppDelegateLifecycleTest, the_settings_window_is_not_swept) {
    const SceneWindow window(Color::white, "Quillon Mark Settings");
    launch();
    EXPECT_TRUE(window.wasLeftAlone());
}

TEST_F(AppDelegateLifecycleTest, clear_and_black_windows_are_not_swept) {
    const SceneWindow clear(Color::clear, "");
    const SceneWindow black(Color::black, "");
    launch();
    EXPECT_TRUE(clear.wasLeftAlone());
    EXPECT_TRUE(black.wasLeftAlone());
}

TEST_F(AppDelegateLifecycleTest, a_nearly_black_window_is_swept) {
    const SceneWindow window(Color(0, 0, 0, 0.5), "");
    launch();
    EXPECT_TRUE(window.wasSwept());
}

TEST_F(AppDelegateLifecycleTest, a_window_made_after_the_launch_is_not_swept) {
    launch();
    const SceneWindow later(Color::white, "Later");
    host.mainQueue.run();
    EXPECT_TRUE(later.wasLeftAlone());
}

// The end.

TEST_F(AppDelegateLifecycleTest, termination_takes_every_hot_key_and_the_handler_back) {
    launch();
    delegate->applicationWillTerminate();
    EXPECT_TRUE(host.hotKeys.registered.empty());
    EXPECT_FALSE(host.hotKeys.handler);
}

TEST_F(AppDelegateLifecycleTest, termination_writes_no_setting) {
    launch();
    host.userDefaults.writes.clear();
    delegate->applicationWillTerminate();
    EXPECT_TRUE(host.userDefaults.writes.empty());
}

TEST_F(AppDelegateLifecycleTest, work_that_waits_does_nothing_once_the_delegate_is_gone) {
    launch();
    host.notificationCenter().post(NotificationName::toggleAnnotation);
    settings().hotkeys = HotkeyMap{};
    ASSERT_FALSE(host.mainQueue.isIdle());
    delegate.reset();
    host.mainQueue.run();
    EXPECT_FALSE(settings().isAnnotationEnabled);
    EXPECT_EQ(host.hotKeys.registered.size(), 6U);
}

TEST_F(AppDelegateLifecycleTest, a_delegate_that_is_gone_hears_nothing_more) {
    launch();
    delegate->toggleAnnotation();
    host.mainQueue.run();
    delegate.reset();
    for (const auto name : {NotificationName::toggleAnnotation, NotificationName::toggleWhiteboard,
                            NSApplicationDidChangeScreenParametersNotification}) {
        host.notificationCenter().post(name);
    }
    settings().isAnnotationEnabled = false;
    EXPECT_TRUE(host.mainQueue.isIdle());
}

} // namespace quillon::test
