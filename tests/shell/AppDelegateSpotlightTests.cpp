#include "model/NotificationNames.h"
#include "shell/ShellTest.h"
#include "spotlight/SpotlightManager.h"

#include <memory>
#include <stdexcept>

namespace quillon::test {

namespace {

using AppDelegateSpotlightTest = ShellTest;

} // namespace

TEST_F(AppDelegateSpotlightTest, a_launch_leaves_the_spotlight_off_whatever_is_stored) {
    settings().isSpotlightEnabled = true;
    launch();
    EXPECT_FALSE(SpotlightManager::shared().isSpotlightEnabled);
    EXPECT_TRUE(settings().isSpotlightEnabled);
    EXPECT_TRUE(host.windows.calls.empty());
}

TEST_F(AppDelegateSpotlightTest, the_manager_is_there_from_the_launch_on) {
    launch();
    const auto makeAnother = []() -> std::shared_ptr<SpotlightManager> {
        throw std::logic_error("the launch made none");
    };
    EXPECT_NO_THROW(host.host.shared<SpotlightManager>(makeAnother));
}

TEST_F(AppDelegateSpotlightTest, the_shortcut_switches_the_manager_and_stores_what_it_reports) {
    // The stored switch and the manager's start out apart; the manager leads.
    settings().isSpotlightEnabled = true;
    launch();
    post(NotificationName::toggleSpotlight);
    EXPECT_TRUE(SpotlightManager::shared().isSpotlightEnabled);
    EXPECT_TRUE(settings().isSpotlightEnabled);
    post(NotificationName::toggleSpotlight);
    EXPECT_FALSE(SpotlightManager::shared().isSpotlightEnabled);
    EXPECT_FALSE(settings().isSpotlightEnabled);
}

TEST_F(AppDelegateSpotlightTest, the_menu_switches_it_at_once) {
    launch();
    EXPECT_TRUE(delegate->perform("toggleSpotlight"));
    EXPECT_TRUE(SpotlightManager::shared().isSpotlightEnabled);
    EXPECT_TRUE(settings().isSpotlightEnabled);
}

TEST_F(AppDelegateSpotlightTest, the_end_leaves_the_spotlight_as_it_is) {
    launch();
    delegate->toggleSpotlight();
    delegate->applicationWillTerminate();
    EXPECT_TRUE(SpotlightManager::shared().isSpotlightEnabled);
}

// The lens.

TEST_F(AppDelegateSpotlightTest, a_launch_leaves_the_lens_off_whatever_is_stored) {
    settings().isZoomEnabled = true;
    launch();
    EXPECT_FALSE(SpotlightManager::shared().isZoomEnabled);
    EXPECT_TRUE(settings().isZoomEnabled);
    EXPECT_EQ(host.screenCapture.probes.count(), 0U);
}

TEST_F(AppDelegateSpotlightTest, the_shortcut_of_the_lens_stores_what_the_manager_reports) {
    settings().isZoomEnabled = true;
    launch();
    post(NotificationName::toggleZoom);
    EXPECT_TRUE(SpotlightManager::shared().isZoomEnabled);
    EXPECT_TRUE(settings().isZoomEnabled);
    EXPECT_EQ(host.screenCapture.probes.count(), 1U);
    post(NotificationName::toggleZoom);
    EXPECT_FALSE(SpotlightManager::shared().isZoomEnabled);
    EXPECT_FALSE(settings().isZoomEnabled);
}

TEST_F(AppDelegateSpotlightTest, the_menu_switches_the_lens_at_once) {
    launch();
    EXPECT_TRUE(delegate->perform("toggleZoom"));
    EXPECT_TRUE(SpotlightManager::shared().isZoomEnabled);
    EXPECT_TRUE(settings().isZoomEnabled);
}

} // namespace quillon::test
