#include "desktop/support/Canvas.h"
#include "desktop/support/ScreenSize.h"
#include "desktop/x11/CaptureProgram.h"
#include "desktop/x11/ServerAlone.h"

#include <gtest/gtest.h>

#include <unistd.h>
#include <xcb/randr.h>

#include <fstream>
#include <sstream>

namespace quillon::test {

namespace {

VirtualDesktop::Options without(const std::string& extension) {
    auto options = serverAlone;
    options.withoutExtensions = {extension};
    return options;
}

/// A desktop with one window on it, and a program that captures.
struct CaptureTest {
    explicit CaptureTest(const VirtualDesktop::Options& options = serverAlone)
        : desktop(options) {}

    /// What the last frame shows there, 0xFFRRGGBB; in pixels from the top left corner.
    std::uint32_t pixelAt(int x, int y) const {
        const int height = static_cast<int>(receiver->lastFrame->size().height);
        const auto rows = receiver->lastFrame->read(
            {static_cast<CGFloat>(x), static_cast<CGFloat>(height - 1 - y), 1, 1});
        return rows ? rows->pixels.at(0) : 0;
    }

    /// The frames of one second in which the window changes 240 times.
    int framesOfABusySecond() {
        const int before = receiver->frames;
        for (std::uint32_t change = 1; change <= 240; ++change) {
            canvas.fill({0, 0, 10, 10}, change);
            program.catchUp(*receiver);
            program.queue.advance(1.0 / 240);
        }
        return receiver->frames - before;
    }

    VirtualDesktop desktop;
    Canvas canvas{desktop.display(), {100, 50, 200, 100}};
    CaptureProgram program{desktop.display()};
    std::shared_ptr<FrameReceiver> receiver = std::make_shared<FrameReceiver>();
};

/// A crop of a picture of the test pattern, against the pattern.
void expectPattern(const CaptureTest& test) {
    // The window's top left corner stands at 100, 50 on a screen 480 high: this part of it begins
    // at column 20 and at row 30.
    const CIImage image(test.receiver->lastFrame);
    const CGRect part{120, 480 - (50 + 30 + 25), 40, 25};
    const auto picture = CIContext().createCGImage(image.imageByCroppingToRect(part), part);

    ASSERT_TRUE(picture);
    ASSERT_EQ(picture->rows->width, 40);
    ASSERT_EQ(picture->rows->height, 25);
    for (int y = 0; y < 25; ++y) {
        for (int x = 0; x < 40; ++x) {
            ASSERT_EQ(picture->rows->pixels.at(static_cast<std::size_t>(y * 40 + x)),
                      0xFF000000 | Canvas::patternAt(20 + x, 30 + y))
                << "at " << x << ", " << y;
        }
    }
}

/// How many processes are attached to shared memory that this process has made.
int attachmentsOfOwnMemory() {
    std::ifstream table("/proc/sysvipc/shm");
    std::string line;
    std::getline(table, line);
    int attachments = 0;
    while (std::getline(table, line)) {
        std::istringstream fields(line);
        long key = 0;
        long id = 0;
        long permissions = 0;
        long size = 0;
        int creator = 0;
        int last = 0;
        int attached = 0;
        fields >> key >> id >> permissions >> size >> creator >> last >> attached;
        attachments += creator == getpid() ? attached : 0;
    }
    return attachments;
}

} // namespace

TEST(ScreenCapture, the_content_is_the_screen_with_its_size) {
    CaptureTest test;

    const auto content = std::get<SCShareableContent>(test.program.content());

    ASSERT_EQ(content.displays.size(), 1U);
    EXPECT_EQ(content.displays[0].width, 640);
    EXPECT_EQ(content.displays[0].height, 480);
    const auto list = test.program.capture.getActiveDisplayList(32);
    EXPECT_EQ(list.error, kCGErrorSuccess);
    EXPECT_EQ(list.displays, (std::vector{content.displays[0].displayID}));
    EXPECT_EQ(test.program.capture.displayBounds(list.displays[0]), (CGRect{0, 0, 640, 480}));
    EXPECT_EQ(test.program.capture.displayBounds(list.displays[0] + 1), CGRect::zero);
}

TEST(ScreenCapture, the_number_of_a_display_is_found_by_the_name_of_its_monitor) {
    CaptureTest test;
    xcb_connection_t* connection = test.desktop.connection().get();
    const auto monitors = desktop::activeMonitors(connection, test.desktop.connection().root());
    ASSERT_EQ(monitors.size(), 1U);
    desktop::MonitorNumbers numbers(connection);

    EXPECT_EQ(numbers.numberOf(monitors[0].name), test.program.firstDisplay().displayID);
    EXPECT_EQ(numbers.numberOf("no monitor has this name"), std::nullopt);
}

TEST(ScreenCapture, a_crop_shows_exactly_the_pixels_on_the_screen) {
    CaptureTest test;
    test.canvas.fillWithPattern();

    const auto stream = test.program.start(test.receiver);

    ASSERT_EQ(test.receiver->frames, 1);
    EXPECT_EQ(test.receiver->lastFrame->size(), (CGSize{640, 480}));
    expectPattern(test);
}

TEST(ScreenCapture, a_crop_larger_than_any_before_is_read_whole) {
    CaptureTest test;
    test.canvas.fillWithPattern();
    const auto stream = test.program.start(test.receiver);

    const auto rows = test.receiver->lastFrame->read({0, 0, 640, 480});

    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->pixels.size(), 640U * 480);
    EXPECT_EQ(rows->pixels[(50 + 99) * 640 + 100 + 199], 0xFF000000 | Canvas::patternAt(199, 99));
    expectPattern(test);
}

TEST(ScreenCapture, a_frame_comes_when_the_screen_changes_and_none_while_it_stands_still) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    EXPECT_EQ(test.receiver->frames, 1);

    test.program.queue.advance(60);
    test.program.catchUp(*test.receiver);
    EXPECT_EQ(test.receiver->frames, 1);
    EXPECT_TRUE(test.program.queue.isIdle());

    test.canvas.fill({0, 0, 1, 1}, 0x123456);
    test.program.catchUp(*test.receiver);
    EXPECT_EQ(test.receiver->frames, 2);
    EXPECT_EQ(test.pixelAt(100, 50), 0xFF123456);

    test.program.queue.advance(60);
    test.program.catchUp(*test.receiver);
    EXPECT_EQ(test.receiver->frames, 2);
    EXPECT_TRUE(test.program.queue.isIdle());
}

TEST(ScreenCapture, reading_pixels_makes_no_frame) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    test.program.queue.advance(1);

    test.receiver->lastFrame->read({0, 0, 640, 480});
    test.program.catchUp(*test.receiver);

    EXPECT_EQ(test.receiver->frames, 1);
    EXPECT_TRUE(test.program.queue.isIdle());
}

TEST(ScreenCapture, a_window_that_moves_makes_a_frame) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    test.program.queue.advance(1);

    test.canvas.moveTo(0, 0);
    test.program.catchUp(*test.receiver);

    EXPECT_EQ(test.receiver->frames, 2);
}

TEST(ScreenCapture, a_screen_in_motion_gives_sixty_frames_a_second_and_no_more) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    test.framesOfABusySecond();

    EXPECT_EQ(test.framesOfABusySecond(), 60);
}

TEST(ScreenCapture, a_change_before_the_next_frame_is_due_is_shown_by_that_frame) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    test.program.queue.advance(1);

    test.canvas.fill({0, 0, 10, 10}, 0x0000FF);
    test.program.catchUp(*test.receiver);
    test.canvas.fill({0, 0, 10, 10}, 0x00FF00);
    test.program.catchUp(*test.receiver);
    EXPECT_EQ(test.receiver->frames, 2);

    test.program.queue.advance(1.0 / 60);
    EXPECT_EQ(test.receiver->frames, 3);
    EXPECT_EQ(test.pixelAt(105, 55), 0xFF00FF00);
}

TEST(ScreenCapture, the_picture_that_the_program_makes_of_a_frame_takes_no_slot_of_a_film) {
    CaptureTest test;
    test.program.ownPicture = {400, 300, 200, 100};
    Canvas picture(test.desktop.display(), {400, 300, 200, 100});
    const auto stream = test.program.start(test.receiver);
    test.program.queue.advance(1);
    std::vector<std::uint32_t> shown;
    test.receiver->onFrame = [&](SCStream&) { shown.push_back(test.pixelAt(105, 55)); };

    std::vector<std::uint32_t> film;
    for (std::uint32_t frame = 1; frame <= 60; ++frame) {
        film.push_back(0xFF000000 | frame);
        test.canvas.fill({0, 0, 10, 10}, frame);
        test.program.catchUp(*test.receiver);
        test.program.queue.advance(0.003);
        picture.fill({0, 0, 200, 100}, frame);
        test.program.catchUp(*test.receiver);
        // The next change comes now a little before its slot, now a little after.
        test.program.queue.advance((frame % 2 == 0 ? 0.9 : 1.1) / 60 - 0.003);
    }

    EXPECT_EQ(shown, film);
}

TEST(ScreenCapture, the_programs_own_picture_is_shown_half_a_slot_later_and_then_there_is_rest) {
    CaptureTest test;
    test.program.ownPicture = {400, 300, 200, 100};
    Canvas picture(test.desktop.display(), {400, 300, 200, 100});
    const auto stream = test.program.start(test.receiver);
    test.program.queue.advance(1);
    test.canvas.fill({0, 0, 10, 10}, 0xFF0000);
    test.program.catchUp(*test.receiver);
    const int before = test.receiver->frames;

    picture.fill({0, 0, 200, 100}, 0x00FF00);
    test.program.catchUp(*test.receiver);
    test.program.queue.advance(1.4 / 60);
    EXPECT_EQ(test.receiver->frames, before);
    test.program.queue.advance(0.2 / 60);
    EXPECT_EQ(test.receiver->frames, before + 1);
    EXPECT_EQ(test.pixelAt(410, 310), 0xFF00FF00);

    test.program.catchUp(*test.receiver);
    test.program.queue.advance(60);
    EXPECT_EQ(test.receiver->frames, before + 1);
    EXPECT_TRUE(test.program.queue.isIdle());
}

TEST(ScreenCapture, a_change_beside_the_programs_own_picture_is_in_haste) {
    CaptureTest test;
    test.program.ownPicture = {400, 300, 200, 100};
    Canvas picture(test.desktop.display(), {390, 300, 220, 100});
    const auto stream = test.program.start(test.receiver);
    test.program.queue.advance(1);
    test.canvas.fill({0, 0, 10, 10}, 0xFF0000);
    test.program.catchUp(*test.receiver);
    const int before = test.receiver->frames;

    picture.fill({0, 0, 220, 100}, 0x00FF00);
    test.program.catchUp(*test.receiver);
    test.program.queue.advance(1.0 / 60);

    EXPECT_EQ(test.receiver->frames, before + 1);
}

TEST(ScreenCapture, a_change_that_comes_while_a_frame_is_read_is_not_missed) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    test.program.queue.advance(1);
    test.receiver->onFrame = [&](SCStream&) {
        if (test.receiver->frames == 2) {
            test.canvas.fill({0, 0, 10, 10}, 0xFF0000);
            EXPECT_EQ(test.pixelAt(105, 55), 0xFFFF0000);
        }
    };

    test.canvas.fill({0, 0, 10, 10}, 0x0000FF);
    test.program.catchUp(*test.receiver);
    EXPECT_EQ(test.receiver->frames, 2);

    // Nothing is left to be read from the server, and yet the frame comes.
    test.program.queue.advance(1.0 / 60);
    EXPECT_EQ(test.receiver->frames, 3);
}

TEST(ScreenCapture, without_shared_memory_the_pixels_are_the_same_and_the_pace_is_slower) {
    CaptureTest test(without("MIT-SHM"));
    test.canvas.fillWithPattern();

    const auto stream = test.program.start(test.receiver);

    EXPECT_EQ(attachmentsOfOwnMemory(), 0);
    expectPattern(test);
    test.program.queue.advance(60);
    EXPECT_EQ(test.receiver->frames, 1);
    test.framesOfABusySecond();
    EXPECT_EQ(test.framesOfABusySecond(), 15);
}

TEST(ScreenCapture, without_word_of_damage_frames_come_at_a_slower_pace) {
    CaptureTest test(without("DAMAGE"));
    test.canvas.fillWithPattern();

    const auto stream = test.program.start(test.receiver);

    expectPattern(test);
    test.program.queue.advance(1.01);
    EXPECT_EQ(test.receiver->frames, 1 + 15);
    test.program.outcomeOf(*stream, &SCStream::stopCapture);
    test.program.queue.advance(1.01);
    EXPECT_EQ(test.receiver->frames, 1 + 15);
    EXPECT_TRUE(test.program.queue.isIdle());
}

TEST(ScreenCapture, a_screen_of_sixteen_bits_is_shown_in_its_colours) {
    auto options = serverAlone;
    options.depth = 16;
    CaptureTest test(options);
    const auto stream = test.program.start(test.receiver);

    test.canvas.fill({0, 0, 10, 10}, 0b11111'000000'00000);
    EXPECT_EQ(test.pixelAt(105, 55), 0xFFFF0000);
    test.canvas.fill({0, 0, 10, 10}, 0b00000'111111'11111);
    EXPECT_EQ(test.pixelAt(105, 55), 0xFF00FFFF);
}

TEST(ScreenCapture, under_a_compositor_a_frame_shows_what_it_has_composed) {
    auto options = serverAlone;
    options.hasCompositor = true;
    CaptureTest test(options);
    const auto stream = test.program.start(test.receiver);
    const auto isStill = [&] {
        const int before = test.receiver->frames;
        return stays(
            [&] {
                test.program.turn();
                test.program.queue.advance(0.005);
                return test.receiver->frames == before;
            },
            std::chrono::milliseconds(200));
    };
    // The compositor shows the window that has just come.
    ASSERT_TRUE(eventually(isStill));
    const int before = test.receiver->frames;

    test.canvas.fillWithPattern();

    ASSERT_TRUE(test.program.turnUntil([&] { return test.receiver->frames > before; }));
    ASSERT_TRUE(test.program.turnUntil(
        [&] { return test.pixelAt(299, 149) == (0xFF000000 | Canvas::patternAt(199, 99)); }));
    expectPattern(test);
    EXPECT_TRUE(eventually(isStill));
}

TEST(ScreenCapture, a_compositor_that_goes_leaves_the_stream_running) {
    auto options = serverAlone;
    options.hasCompositor = true;
    CaptureTest test(options);
    const auto stream = test.program.start(test.receiver);

    test.desktop.stopCompositor();
    test.canvas.fillWithPattern();

    ASSERT_TRUE(test.program.turnUntil(
        [&] { return test.pixelAt(299, 149) == (0xFF000000 | Canvas::patternAt(199, 99)); }));
    test.program.queue.advance(1);
    test.program.catchUp(*test.receiver);
    const int before = test.receiver->frames;
    test.canvas.fill({0, 0, 10, 10}, 0xFF0000);
    test.program.catchUp(*test.receiver);
    EXPECT_EQ(test.receiver->frames, before + 1);
    EXPECT_TRUE(test.receiver->errors.empty());
}

TEST(ScreenCapture, a_stopped_stream_gives_no_frame_and_no_pixel) {
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

TEST(ScreenCapture, a_stop_from_inside_of_a_frame_is_the_end_of_it) {
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

TEST(ScreenCapture, the_shared_memory_is_free_after_the_stop) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    // This process and the server.
    EXPECT_EQ(attachmentsOfOwnMemory(), 2);

    test.program.outcomeOf(*stream, &SCStream::stopCapture);

    EXPECT_TRUE(eventually([] { return attachmentsOfOwnMemory() == 0; }));
}

TEST(ScreenCapture, a_stream_that_is_let_go_of_ends_without_a_word) {
    CaptureTest test;
    auto stream = test.program.start(test.receiver);

    stream.reset();

    EXPECT_EQ(test.program.watchCount(), 0U);
    EXPECT_TRUE(eventually([] { return attachmentsOfOwnMemory() == 0; }));
    EXPECT_TRUE(test.receiver->errors.empty());
}

TEST(ScreenCapture, a_stream_can_be_started_again_after_its_stop) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);
    EXPECT_TRUE(test.program.outcomeOf(*stream, &SCStream::startCapture));
    EXPECT_FALSE(test.program.outcomeOf(*stream, &SCStream::stopCapture));
    EXPECT_TRUE(test.program.outcomeOf(*stream, &SCStream::stopCapture));

    EXPECT_FALSE(test.program.outcomeOf(*stream, &SCStream::startCapture));
    test.program.turn();

    EXPECT_EQ(test.receiver->frames, 2);
}

TEST(ScreenCapture, a_stop_before_the_start_has_completed_makes_the_start_fail) {
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

TEST(ScreenCapture, a_stream_that_goes_before_its_start_completes_it_with_an_error) {
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

TEST(ScreenCapture, a_wish_that_cannot_be_met_fails_the_start_with_its_reason) {
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

TEST(ScreenCapture, a_display_that_is_not_there_fails_the_start) {
    CaptureTest test;
    const auto stream =
        test.program.make(test.receiver, {{4711, 640, 480}, {}}, CaptureProgram::configuration());

    const CaptureError expected{"X11DisplayErrorDomain",
                                "There is no display with the number 4711."};
    EXPECT_EQ(test.program.outcomeOf(*stream, &SCStream::startCapture), expected);
}

TEST(ScreenCapture, a_server_that_goes_ends_the_stream_with_an_error) {
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

TEST(ScreenCapture, a_display_that_is_switched_off_ends_the_stream_with_an_error) {
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

TEST(ScreenCapture, a_display_that_takes_another_size_gives_frames_of_that_size) {
    CaptureTest test;
    const auto stream = test.program.start(test.receiver);

    changeScreenSize(test.desktop.connection(), 512, 384);

    ASSERT_TRUE(test.program.turnUntil([&] {
        return test.receiver->lastFrame->size() == CGSize{512, 384};
    }));
    test.canvas.fillWithPattern();
    EXPECT_EQ(test.pixelAt(100, 50), 0xFF000000 | Canvas::patternAt(0, 0));
    EXPECT_TRUE(test.receiver->errors.empty());
}

TEST(ScreenCapture, of_two_displays_each_has_its_own_changes_and_its_own_origin) {
    CaptureTest test;
    splitScreen(test.desktop.connection(), 320);
    const auto content = std::get<SCShareableContent>(test.program.content());
    ASSERT_EQ(content.displays.size(), 2U);
    EXPECT_EQ(test.program.capture.displayBounds(content.displays[1].displayID),
              (CGRect{320, 0, 320, 480}));
    Canvas right(test.desktop.display(), {400, 100, 100, 100});
    const auto stream = test.program.start(test.receiver, content.displays[1]);
    ASSERT_EQ(test.receiver->frames, 1);
    EXPECT_EQ(test.receiver->lastFrame->size(), (CGSize{320, 480}));
    test.program.queue.advance(1);

    test.canvas.fill({0, 0, 100, 100}, 0xFF0000);
    test.program.catchUp(*test.receiver);
    EXPECT_EQ(test.receiver->frames, 1);

    right.fill({0, 0, 100, 100}, 0x0000FF);
    test.program.catchUp(*test.receiver);
    test.program.queue.advance(1);
    EXPECT_EQ(test.receiver->frames, 2);
    EXPECT_EQ(test.pixelAt(400 - 320, 100), 0xFF0000FF);
    EXPECT_EQ(test.pixelAt(400 - 320 - 1, 100), 0xFF000000);
}

} // namespace quillon::test
