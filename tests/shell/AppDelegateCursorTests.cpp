#include "cursor/CursorHighlightManager.h"
#include "model/NotificationNames.h"
#include "shell/ShellTest.h"

#include <memory>
#include <stdexcept>

namespace quillon::test {

namespace {

struct AppDelegateCursorTest : ShellTest {
    CursorHighlightManager& manager() { return CursorHighlightManager::shared(); }
};

} // namespace

TEST_F(AppDelegateCursorTest, a_launch_shows_no_halo_whatever_is_stored) {
    settings().isCursorHaloEnabled = true;
    launch();
    EXPECT_FALSE(manager().isEnabled);
    EXPECT_TRUE(settings().isCursorHaloEnabled);
    EXPECT_TRUE(host.windows.calls.empty());
}

TEST_F(AppDelegateCursorTest, the_manager_is_there_from_the_launch_on) {
    launch();
    const auto makeAnother = []() -> std::shared_ptr<CursorHighlightManager> {
        throw std::logic_error("the launch made none");
    };
    EXPECT_NO_THROW(host.host.shared<CursorHighlightManager>(makeAnother));
}

TEST_F(AppDelegateCursorTest, the_switch_turns_the_stored_value_and_the_manager_on_together) {
    launch();
    post(NotificationName::toggleCursorHalo);
    EXPECT_TRUE(settings().isCursorHaloEnabled);
    EXPECT_TRUE(manager().isEnabled);
    post(NotificationName::toggleCursorHalo);
    EXPECT_FALSE(settings().isCursorHaloEnabled);
    EXPECT_FALSE(manager().isEnabled);
}

TEST_F(AppDelegateCursorTest, the_value_is_stored_before_the_manager_takes_it) {
    launch();
    bool wasStored = false;
    const auto observer = manager().isEnabled.sinkDroppingFirst(
        [&](bool) { wasStored = settings().isCursorHaloEnabled; });
    delegate->toggleCursorHalo();
    EXPECT_TRUE(wasStored);
}

TEST_F(AppDelegateCursorTest, with_the_halo_stored_on_the_first_use_of_the_switch_turns_both_off) {
    settings().isCursorHaloEnabled = true;
    launch();
    EXPECT_TRUE(delegate->perform("toggleCursorHalo"));
    EXPECT_FALSE(settings().isCursorHaloEnabled);
    EXPECT_FALSE(manager().isEnabled);
}

TEST_F(AppDelegateCursorTest, the_end_stops_the_tracking_and_leaves_the_stored_switch) {
    launch();
    delegate->toggleCursorHalo();
    ASSERT_EQ(host.eventMonitors.globalMonitors.size(), 1U);
    delegate->applicationWillTerminate();
    EXPECT_TRUE(host.eventMonitors.globalMonitors.empty());
    EXPECT_TRUE(host.eventMonitors.localMonitors.empty());
    EXPECT_TRUE(settings().isCursorHaloEnabled);
}

} // namespace quillon::test
