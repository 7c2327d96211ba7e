#include "spotlight/ZoomTest.h"

namespace quillon::test {
namespace {

/// Which display the lens captures.
using ZoomDisplayTest = ZoomTest;

TEST_F(ZoomDisplayTest, each_display_of_the_content_is_printed_in_order) {
    capture().content.displays = {{7, 800, 600}, {1, 1920, 1080}};
    setEnabled(true);
    answerProbe();
    const Lines lines = printedBy([this] { answerLookup(); });
    EXPECT_EQ(lines.at(0), "Available displays: 2");
    EXPECT_EQ(lines.at(1), "Display: 7, width: 800, height: 600");
    EXPECT_EQ(lines.at(2), "Display: 1, width: 1920, height: 1080");
    EXPECT_EQ(capture().stream(0)->filter.display.displayID, 1U);
}

TEST_F(ZoomDisplayTest, a_display_that_is_not_in_the_content_gives_way_to_the_first_that_is) {
    capture().content.displays = {{7, 800, 600}, {8, 640, 480}};
    setEnabled(true);
    answerProbe();
    const Lines lines = printedBy([this] { answerLookup(); });
    EXPECT_EQ(lines.at(4), "Could not find display in shareable content for ID: 1");
    EXPECT_EQ(lines.at(5), "Falling back to first display: 7");
    EXPECT_EQ(lines.at(6), "Stream configuration: 1920x1080, scale: 1.0");
    EXPECT_EQ(capture().stream(0)->filter.display.displayID, 7U);
}

TEST_F(ZoomDisplayTest, content_without_any_display_ends_in_silence) {
    capture().content.displays.clear();
    setEnabled(true);
    answerProbe();
    EXPECT_EQ(printedBy([this] { answerLookup(); }),
              (Lines{"Available displays: 0", "Using display ID: 1",
                     "Could not find display in shareable content for ID: 1"}));
    EXPECT_TRUE(isAtRest());
}

TEST_F(ZoomDisplayTest, without_a_number_the_primary_screen_is_found_by_its_bounds) {
    host.screens.all.front().deviceDescription.clear();
    capture().activeDisplays.displays = {4, 1};
    capture().bounds = {{4, {1920, 0, 1920, 1080}}, {1, {0, 0, 1920, 1080}}};
    setEnabled(true);
    answerProbe();
    EXPECT_EQ(printedBy([this] { answerLookup(); }).at(2), "Using display ID: 1");
    EXPECT_EQ(capture().askedMaxDisplays, 32);
}

TEST_F(ZoomDisplayTest, without_a_usable_number_a_secondary_screen_is_not_found) {
    auto& screen = host.screens.all.front();
    // The same display, once counted from the bottom and once from the top.
    screen.frame = {1920, -200, 1280, 1024};
    screen.deviceDescription["NSScreenNumber"] = std::string("one");
    capture().bounds = {{1, {1920, 256, 1280, 1024}}};
    setEnabled(true);
    answerProbe();
    EXPECT_EQ(printedBy([this] { answerLookup(); }).back(),
              "Could not find display ID for screen: Screen");
    EXPECT_TRUE(isAtRest());
    EXPECT_FALSE(lens().image);
}

TEST_F(ZoomDisplayTest, a_list_of_displays_that_fails_prints_its_code) {
    host.screens.all.front().deviceDescription.clear();
    capture().activeDisplays = {kCGErrorCannotComplete, {1}};
    setEnabled(true);
    answerProbe();
    const Lines lines = printedBy([this] { answerLookup(); });
    EXPECT_EQ(lines.at(2), "Failed to get active display list: 1004");
    EXPECT_EQ(lines.at(3), "Could not find display ID for screen: Screen");
}

TEST_F(ZoomDisplayTest,
       without_a_main_screen_the_lens_shows_at_its_first_frame_and_nothing_starts) {
    host.screens.all.clear();
    setEnabled(true);
    EXPECT_TRUE(manager().zoomWindow()->isVisible());
    EXPECT_EQ(manager().zoomWindow()->frame(), (CGRect{0, 0, 200, 200}));
    EXPECT_EQ(capture().probes.count(), 0U);
    EXPECT_TRUE(host.eventMonitors.globalMonitors.empty());
}

} // namespace
} // namespace quillon::test
