#include "settings/SettingsView.h"
#include "shell/ShellTest.h"

#include <string>

namespace quillon::test {

namespace {

struct SettingsWindow : ShellTest {
    /// What `work` prints.
    template <typename Work>
    static std::string printed(Work work) {
        testing::internal::CaptureStdout();
        work();
        return testing::internal::GetCapturedStdout();
    }

    Window& open() {
        printed([this] { delegate->openSettings(); });
        return *delegate->settingsWindow();
    }
    void close() {
        printed([this] { delegate->settingsWindow()->close(); });
    }
    SettingsView& view() {
        return dynamic_cast<SettingsView&>(
            *delegate->settingsWindow()->contentViewController()->rootView);
    }
    int titledWindowCount() {
        int count = 0;
        for (const Window* window : host.application.windows()) {
            count += window->title() == "Quillon Mark Settings" ? 1 : 0;
        }
        return count;
    }
};

} // namespace

TEST_F(SettingsWindow, there_is_none_before_it_is_asked_for) {
    launch();
    EXPECT_FALSE(delegate->settingsWindow());
}

TEST_F(SettingsWindow, the_first_opening_makes_it_and_tells_so) {
    launch();
    EXPECT_EQ(printed([this] { delegate->openSettings(); }),
              "AppDelegate: openSettings called\n"
              "AppDelegate: creating new settings window\n"
              "AppDelegate: showing settings window\n");
    ASSERT_TRUE(delegate->settingsWindow());
    EXPECT_TRUE(delegate->settingsWindow()->isVisible());
    EXPECT_EQ(host.windows.calls.back(), "makeKeyAndOrderFront");
}

TEST_F(SettingsWindow, it_is_titled_closable_and_miniaturizable_but_not_resizable) {
    launch();
    const Window& window = open();
    EXPECT_EQ(window.title(), "Quillon Mark Settings");
    EXPECT_EQ(window.styleMask(), WindowStyleMask::titled | WindowStyleMask::closable |
                                      WindowStyleMask::miniaturizable);
    EXPECT_EQ(window.frame().size(), (CGSize{600, 500}));
    EXPECT_EQ(window.backingType(), BackingStoreType::buffered);
    EXPECT_FALSE(window.defersCreation());
    EXPECT_FALSE(window.isReleasedWhenClosed());
    EXPECT_EQ(window.level(), 3);
    EXPECT_TRUE(window.canBecomeKeyWindow());
    EXPECT_EQ(window.collectionBehavior(), 0U);
}

TEST_F(SettingsWindow, it_stands_in_the_middle_of_the_main_screen) {
    launch();
    EXPECT_EQ(open().frame().midX(), host.screens.all.front().visibleFrame.midX());
}

TEST_F(SettingsWindow, every_opening_brings_the_program_to_the_front) {
    launch();
    open();
    EXPECT_EQ(host.application.activations, 1);
    open();
    EXPECT_EQ(host.application.activations, 2);
    EXPECT_TRUE(host.application.ignoredOtherApps);
}

TEST_F(SettingsWindow, a_second_opening_brings_the_same_window_to_the_front) {
    launch();
    const Window* const first = &open();
    host.windows.calls.clear();
    EXPECT_EQ(printed([this] { delegate->openSettings(); }),
              "AppDelegate: openSettings called\n"
              "AppDelegate: settings window exists, bringing to front\n");
    EXPECT_EQ(delegate->settingsWindow(), first);
    EXPECT_EQ(titledWindowCount(), 1);
    EXPECT_EQ(host.windows.calls, std::vector<std::string>{"makeKeyAndOrderFront"});
}

TEST_F(SettingsWindow, a_closed_window_is_gone_and_tells_so) {
    launch();
    open();
    EXPECT_EQ(printed([this] { delegate->settingsWindow()->close(); }),
              "AppDelegate: settings window closed\n");
    EXPECT_FALSE(delegate->settingsWindow());
    EXPECT_EQ(titledWindowCount(), 0);
}

TEST_F(SettingsWindow, an_opening_after_a_close_makes_a_new_window_on_the_first_tab) {
    launch();
    open();
    view().select(SettingsTab::about);
    close();
    EXPECT_NE(printed([this] { delegate->openSettings(); }).find("creating new"),
              std::string::npos);
    EXPECT_EQ(view().selectedTab(), SettingsTab::general);
}

TEST_F(SettingsWindow, every_close_is_told_once_however_often_it_was_opened) {
    launch();
    for (int count = 0; count < 3; ++count) {
        open();
        EXPECT_EQ(printed([this] { delegate->settingsWindow()->close(); }),
                  "AppDelegate: settings window closed\n");
    }
}

TEST_F(SettingsWindow, the_close_of_another_window_changes_nothing) {
    launch();
    open();
    Window other({0, 0, 10, 10}, WindowStyleMask::titled, BackingStoreType::buffered, false);
    EXPECT_EQ(printed([&] { other.close(); }), "");
    EXPECT_TRUE(delegate->settingsWindow());
}

TEST_F(SettingsWindow, a_close_in_the_middle_of_a_recording_puts_the_shortcuts_back) {
    launch();
    open();
    view().select(SettingsTab::hotkeys);
    const auto form = std::get<Form>(view().content());
    std::get<ShortcutRow>(form.sections[0].rows[0]).state().recorder.onBegin();
    EXPECT_TRUE(host.hotKeys.registered.empty());
    close();
    EXPECT_EQ(host.hotKeys.registered.size(), 6U);
}

TEST_F(SettingsWindow, a_shortcut_recorded_there_takes_effect_without_a_restart) {
    launch();
    open();
    view().select(SettingsTab::hotkeys);
    const auto form = std::get<Form>(view().content());
    const auto row = std::get<ShortcutRow>(form.sections[0].rows[0]);
    row.state().recorder.onBegin();
    row.state().recorder.onCapture(122, controlKey);
    host.mainQueue.run();
    EXPECT_EQ(host.hotKeys.press(122, controlKey), noErr);
    host.mainQueue.run();
    EXPECT_TRUE(settings().isAnnotationEnabled);
}

TEST_F(SettingsWindow, the_delegate_may_go_while_the_window_is_open) {
    launch();
    open();
    delegate.reset();
    EXPECT_EQ(titledWindowCount(), 0);
}

} // namespace quillon::test
