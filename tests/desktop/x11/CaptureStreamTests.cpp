#include "desktop/support/ScreenSize.h"
#include "desktop/x11/CaptureTest.h"

#include <gtest/gtest.h>

#include <optional>
#include <variant>
#include <vector>

namespace quillon::test {

TEST(CaptureStream, a_stopped_stream_gives_no_frame_and_no_pixel) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    test.program.queue.advance(1);
    test.canvas.fill({0, 0, 10, 10}, 0xFF0000);

    EXPECT_EQ(test.program.outcomeOf(*stream, &SCStream::stopCapture), std::nullopt);
    test.program.turn();

    EXPECT_EQ(test.receiver->frames, 1);
    EXPECT_EQ(test.receiver->lastFrame->read({0, 0, 1, 1}), nullptr);
    EXPECT_EQ(test.program.watchCount(), 0U);
    EXPECT_TRUE(test.receiver->errors.empty());
}

TEST(CaptureStream, a_stop_from_inside_of_a_frame_is_the_end_of_it) {
    CaptureTest test;
    auto stream = test.program.start(test.receiver);
    test.program.queue.advance(1);
    test.receiver->onFrame = [&](SCStream& running) {
        running.stopCapture([](const CaptureOutcome&) {});
        stream.reset();
    };

    test.canvas.fill({0, 0, 10, 10}, 0xFF0000);
    test.program.catchUp(*test.receiver);

    EXPECT_EQ(test.receiver->frames, 2);
    EXPECT_EQ(test.program.watchCount(), 0U);
}

TEST(CaptureStream, the_shared_memory_is_free_after_the_stop) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    // This process and the server.
    EXPECT_EQ(attachmentsOfOwnMemory(), 2);

    test.program.outcomeOf(*stream, &SCStream::stopCapture);

    EXPECT_TRUE(eventually([] { return attachmentsOfOwnMemory() == 0; }));
}

TEST(CaptureStream, a_stream_that_is_let_go_of_ends_without_a_word) {
    CaptureTest test;
    auto stream = test.program.start(test.receiver);

    stream.reset();

    EXPECT_EQ(test.program.watchCount(), 0U);
    EXPECT_TRUE(eventually([] { return attachmentsOfOwnMemory() == 0; }));
    EXPECT_TRUE(test.receiver->errors.empty());
}

TEST(CaptureStream, a_stream_can_be_started_again_after_its_stop) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    EXPECT_TRUE(test.program.outcomeOf(*stream, &SCStream::startCapture));
    EXPECT_FALSE(test.program.outcomeOf(*stream, &SCStream::stopCapture));
    EXPECT_TRUE(test.program.outcomeOf(*stream, &SCStream::stopCapture));

    EXPECT_FALSE(test.program.outcomeOf(*stream, &SCStream::startCapture));
    test.program.turn();

    EXPECT_EQ(test.receiver->frames, 2);
}

TEST(CaptureStream, a_stop_before_the_start_has_completed_makes_the_start_fail) {
    CaptureTest test;
    const auto stream = test.program.make(test.receiver, {test.program.firstDisplay(), {}},
                                          CaptureProgram::configuration());
    std::optional<CaptureOutcome> started;
    std::optional<CaptureOutcome> stopped;

    stream->startCapture([&](const CaptureOutcome& outcome) { started = outcome; });
    stream->stopCapture([&](const CaptureOutcome& outcome) { stopped = outcome; });
    EXPECT_FALSE(started || stopped);
    test.program.turn();

    ASSERT_TRUE(started && stopped);
    EXPECT_TRUE(*started);
    EXPECT_FALSE(*stopped);
    EXPECT_EQ(test.receiver->frames, 0);
}

TEST(CaptureStream, a_stream_that_goes_before_its_start_completes_it_with_an_error) {
    CaptureTest test;
    auto stream = test.program.make(test.receiver, {test.program.firstDisplay(), {}},
                                    CaptureProgram::configuration());
    std::optional<CaptureOutcome> started;
    stream->startCapture([&](const CaptureOutcome& outcome) { started = outcome; });

    stream.reset();
    test.program.turn();

    ASSERT_TRUE(started);
    EXPECT_TRUE(*started);
}

TEST(CaptureStream, a_wish_that_cannot_be_met_fails_the_start_with_its_reason) {
    CaptureTest test;
    const SCContentFilter filter{test.program.firstDisplay(), {}};
    auto withCursor = CaptureProgram::configuration();
    withCursor.setShowsCursor(true);

    const auto stream = test.program.make(test.receiver, filter, withCursor);

    const CaptureError expected{"X11DisplayErrorDomain",
                                "On X11 the pointer is not part of a capture."};
    EXPECT_EQ(test.program.outcomeOf(*stream, &SCStream::startCapture), expected);
    EXPECT_TRUE(
        stream->addStreamOutput(test.receiver, SCStreamOutputType::audio, test.program.queue));
}

TEST(CaptureStream, a_display_that_is_not_there_fails_the_start) {
    CaptureTest test;
    const auto stream =
        test.program.make(test.receiver, {{4711, 640, 480}, {}}, CaptureProgram::configuration());

    const CaptureError expected{"X11DisplayErrorDomain",
                                "There is no display with the number 4711."};
    EXPECT_EQ(test.program.outcomeOf(*stream, &SCStream::startCapture), expected);
}

TEST(CaptureStream, a_server_that_goes_ends_the_stream_with_an_error) {
    auto options = serverAlone;
    options.hasOwnNumber = true;
    CaptureTest test(options);
    const auto stream = test.program.start(test.receiver);

    test.desktop.stopServer();

    ASSERT_TRUE(test.program.turnUntil([&] { return !test.receiver->errors.empty(); }));
    test.program.turn();
    EXPECT_EQ(test.receiver->errors,
              (std::vector<CaptureError>{
                  {"X11DisplayErrorDomain",
                   "The X server " + test.desktop.display() + " does not answer."}}));
    EXPECT_EQ(test.program.watchCount(), 0U);
    EXPECT_TRUE(std::holds_alternative<CaptureError>(test.program.content()));
    EXPECT_EQ(test.program.capture.getActiveDisplayList(32).error, kCGErrorCannotComplete);
    EXPECT_TRUE(test.program.outcomeOf(*stream, &SCStream::startCapture));
}

TEST(CaptureStream, a_display_that_is_switched_off_ends_the_stream_with_an_error) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    const auto monitors =
        desktop::activeMonitors(test.desktop.connection().get(), test.desktop.connection().root());

    switchScreenOff(test.desktop.connection());

    ASSERT_TRUE(test.program.turnUntil([&] { return !test.receiver->errors.empty(); }));
    EXPECT_EQ(test.receiver->errors.at(0).domain, "X11DisplayErrorDomain");
    EXPECT_EQ(test.receiver->errors.at(0).text,
              "The display " + monitors.at(0).name + " is not connected any more.");
}

} // namespace quillon::test
