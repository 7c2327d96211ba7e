#include "shell/OrvalisCloneApp.h"

#include "model/NotificationNames.h"
#include "shell/StatusMenu.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <optional>

namespace quillon::test {

TEST(OrvalisCloneApp, its_delegate_is_the_applications_delegate_while_it_lives) {
    FakeHost host;
    {
        OrvalisCloneApp app;
        EXPECT_EQ(host.application.delegate(), &app.appDelegate());
    }
    EXPECT_EQ(host.application.delegate(), nullptr);
}

TEST(OrvalisCloneApp, it_uses_the_shared_settings) {
    const FakeHost host;
    OrvalisCloneApp app;
    EXPECT_EQ(&app.appSettings(), &AppSettings::shared());
}

TEST(OrvalisCloneApp, its_drawing_state_is_not_the_one_that_is_drawn_in) {
    FakeHost host;
    OrvalisCloneApp app;
    app.appDelegate().applicationDidFinishLaunching();
    app.appDelegate().toggleAnnotation();
    auto& root = *app.appDelegate().overlayWindow()->hostingView()->rootView;
    EXPECT_NE(&app.drawingState(), &dynamic_cast<OverlayContainerView&>(root).drawingState());
}

TEST(OrvalisCloneApp, every_entry_of_its_menus_is_taken_by_somebody) {
    FakeHost host;
    OrvalisCloneApp app;
    app.appDelegate().applicationDidFinishLaunching();
    for (const Menu& menu : {statusMenu(), app.commandMenu()}) {
        for (const MenuItem& item : menu.items) {
            EXPECT_TRUE(item.isSeparator || host.application.sendAction(item.action)) << item.title;
        }
    }
    EXPECT_EQ(host.application.terminations, 1);
}

TEST(OrvalisCloneApp, its_command_menu_is_that_of_the_windows_with_a_menu_bar) {
    FakeHost host;
    const OrvalisCloneApp app;
    EXPECT_EQ(host.application.mainMenu(), annotationCommandMenu());
}

TEST(OrvalisCloneApp, its_command_menu_toggles_annotation_and_asks_for_clearing) {
    FakeHost host;
    OrvalisCloneApp app;
    app.appDelegate().applicationDidFinishLaunching();
    std::optional<Notification> heard;
    const auto observation = host.notificationCenter().addObserver(
        NotificationName::clearAnnotations,
        [&](const Notification& notification) { heard = notification; });

    const Menu menu = app.commandMenu();
    host.application.sendAction(menu.items.front().action);
    EXPECT_TRUE(app.appSettings().isAnnotationEnabled);
    EXPECT_FALSE(heard);
    host.application.sendAction(menu.items.back().action);
    ASSERT_TRUE(heard);
    EXPECT_EQ(heard->object, nullptr);
    EXPECT_TRUE(heard->userInfo.empty());
}

} // namespace quillon::test
