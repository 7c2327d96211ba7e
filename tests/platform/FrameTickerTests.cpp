#include "platform/FrameTicker.h"

#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <optional>

namespace quillon::test {

namespace {

struct FrameTickerTest : testing::Test {
    void request() {
        ticker->request([this] { ++frames; });
    }

    FakeHost host;
    std::optional<FrameTicker> ticker{std::in_place};
    int frames = 0;
};

} // namespace

TEST_F(FrameTickerTest, a_frame_comes_once_after_the_time_of_a_picture) {
    request();
    host.mainQueue.advance(0.9 / 60);
    EXPECT_EQ(frames, 0);
    host.mainQueue.advance(0.2 / 60);
    EXPECT_EQ(frames, 1);
    host.mainQueue.advance(1);
    EXPECT_EQ(frames, 1);
    EXPECT_TRUE(host.mainQueue.isIdle());
}

TEST_F(FrameTickerTest, requests_before_the_frame_are_one) {
    request();
    request();
    host.mainQueue.advance(1);
    EXPECT_EQ(frames, 1);
}

TEST_F(FrameTickerTest, a_frame_may_ask_for_the_next) {
    ticker->request([this] {
        ++frames;
        request();
    });
    host.mainQueue.advance(1);
    EXPECT_EQ(frames, 2);
}

TEST_F(FrameTickerTest, the_quickest_display_sets_the_pace) {
    host.screens.all.push_back({{1920, 0, 1920, 1080}, {1920, 0, 1920, 1080}, 1, "Quick"});
    host.screens.all.back().maximumFramesPerSecond = 144;
    request();
    host.mainQueue.advance(1.1 / 144);
    EXPECT_EQ(frames, 1);
}

TEST_F(FrameTickerTest, without_a_display_the_pace_is_the_usual_one) {
    host.screens.all.clear();
    request();
    host.mainQueue.advance(1.1 / 60);
    EXPECT_EQ(frames, 1);
}

TEST_F(FrameTickerTest, a_frame_that_is_due_after_the_end_of_its_owner_does_not_come) {
    request();
    ticker.reset();
    host.mainQueue.advance(1);
    EXPECT_EQ(frames, 0);
}

} // namespace quillon::test
