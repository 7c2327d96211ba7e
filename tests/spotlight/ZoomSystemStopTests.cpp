#include "spotlight/StreamDelegate.h"
#include "spotlight/ZoomTest.h"

#include <thread>

namespace quillon::test {
namespace {

/// What becomes of a stream that nobody asked to stop.
using ZoomSystemStopTest = ZoomTest;

TEST_F(ZoomSystemStopTest, a_stream_that_the_system_stops_is_restarted_within_its_generation) {
    run();
    const auto dead = capture().stream(0);
    EXPECT_EQ(printedBy([&] { dead->die(kMishap); }),
              (Lines{"SCStream stopped with error: Something broke",
                     "Attempting to restart screen capture...",
                     "Setting up screen capture for screen: Screen"}));
    EXPECT_FALSE(manager().screenCaptureStream());
    EXPECT_FALSE(manager().zoomStreamOutput());
    EXPECT_FALSE(manager().isScreenCapturePermissionGranted());
    EXPECT_EQ(capture().probes.count(), 0U) << "the permission is not asked for again";
    answerLookup();
    answerStart();
    EXPECT_EQ(manager().screenCaptureStream(), capture().stream(1));
    EXPECT_EQ(manager().zoomGeneration(), 1);
}

TEST_F(ZoomSystemStopTest, a_stream_that_keeps_dying_is_restarted_each_time) {
    run();
    for (std::size_t life = 0; life < 5; ++life) {
        capture().stream(life)->die(kMishap);
        host.mainQueue.run();
        answerLookup();
        answerStart();
        EXPECT_EQ(manager().screenCaptureStream(), capture().stream(life + 1));
    }
}

TEST_F(ZoomSystemStopTest, a_stream_of_an_older_generation_dies_with_its_line_alone) {
    run();
    const auto old = capture().stream(0);
    setEnabled(false);
    answerStop();
    run();
    EXPECT_EQ(printedBy([&] { old->die(kMishap); }),
              Lines{"SCStream stopped with error: Something broke"});
    EXPECT_EQ(manager().screenCaptureStream(), capture().stream(1));
    EXPECT_TRUE(manager().zoomStreamOutput());
}

TEST_F(ZoomSystemStopTest, a_stream_that_dies_while_the_lens_is_off_is_not_restarted) {
    run();
    const auto stream = capture().stream(0);
    setEnabled(false);
    answerStop();
    stream->die(kMishap);
    host.mainQueue.run();
    EXPECT_TRUE(isAtRest());
}

TEST_F(ZoomSystemStopTest,
       switched_off_in_the_turn_before_the_word_of_its_end_arrives_nothing_restarts) {
    run();
    capture().stream(0)->die(kMishap);
    manager().isZoomEnabled = false;
    host.mainQueue.run();
    EXPECT_EQ(capture().lookups.count(), 0U);
}

TEST_F(ZoomSystemStopTest, the_end_of_a_stream_may_be_told_on_another_thread) {
    run();
    const auto dead = capture().stream(0);
    std::thread service([&] { dead->die(kMishap); });
    service.join();
    EXPECT_TRUE(manager().screenCaptureStream()) << "the word is carried to the main thread";
    host.mainQueue.run();
    EXPECT_FALSE(manager().screenCaptureStream());
    EXPECT_EQ(capture().lookups.count(), 1U);
}

TEST_F(ZoomSystemStopTest, a_delegate_without_a_manager_prints_and_does_nothing) {
    StreamDelegate delegate(nullptr, 0);
    run();
    const auto stream = capture().stream(0);
    EXPECT_EQ(printedBy([&] { delegate.streamDidStopWithError(*stream, kMishap); }),
              Lines{"SCStream stopped with error: Something broke"});
    EXPECT_TRUE(manager().screenCaptureStream());
}

} // namespace

// The end of the program, whatever is under way.

TEST(ZoomAtTheEnd, a_running_stream_is_let_go_of_with_the_host) {
    FakePorts ports;
    ports.screens.all.front().deviceDescription["NSScreenNumber"] = std::int64_t{1};
    {
        const Host host(ports.ports());
        SpotlightManager::shared().isZoomEnabled = true;
        ports.mainQueue.run();
        ports.screenCapture.probes.complete(SCShareableContent{});
        ports.mainQueue.run();
        ports.screenCapture.lookups.complete(ports.screenCapture.content);
        ports.screenCapture.starts.complete(std::nullopt);
        ASSERT_TRUE(ports.screenCapture.stream(0));
    }
    EXPECT_FALSE(ports.screenCapture.stream(0));
}

TEST(ZoomAtTheEnd, a_step_that_waits_may_outlive_the_host) {
    FakePorts ports;
    ports.screens.all.front().deviceDescription["NSScreenNumber"] = std::int64_t{1};
    {
        const Host host(ports.ports());
        SpotlightManager::shared().isSpotlightEnabled = true;
        SpotlightManager::shared().isZoomEnabled = true;
        ports.mainQueue.run();
        ports.screenCapture.probes.complete(SCShareableContent{});
        ports.mainQueue.run();
        ports.screenCapture.lookups.complete(ports.screenCapture.content);
    }
    EXPECT_EQ(ports.screenCapture.starts.count(), 1U);
    EXPECT_TRUE(ports.application.windows().empty());
}

} // namespace quillon::test
