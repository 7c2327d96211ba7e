#include "desktop/support/ScreenSize.h"
#include "desktop/x11/CaptureTest.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quillon::test {

namespace {

VirtualDesktop::Options without(const std::string& extension) {
    auto options = serverAlone;
    options.withoutExtensions = {extension};
    return options;
}

/// A capture at rest, by a program that shows a picture of its own below the window.
struct OwnPictureTest : CaptureTest {
    explicit OwnPictureTest(const Canvas::Frame& place = {400, 300, 200, 100})
        : picture(desktop.display(), place) {
        program.ownPicture = {400, 300, 200, 100};
        stream = program.start(receiver);
        program.queue.advance(1);
    }

    /// Fills a part of the window, of which the program hears.
    void changeWindow(std::uint32_t color) {
        canvas.fill({0, 0, 10, 10}, color);
        program.catchUp(*receiver);
    }

    Canvas picture;
    std::shared_ptr<SCStream> stream;
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
    OwnPictureTest test;
    std::vector<std::uint32_t> shown;
    test.receiver->onFrame = [&](SCStream&) { shown.push_back(test.pixelAt(105, 55)); };

    std::vector<std::uint32_t> film;
    for (std::uint32_t frame = 1; frame <= 60; ++frame) {
        film.push_back(0xFF000000 | frame);
        test.changeWindow(frame);
        test.program.queue.advance(0.003);
        test.picture.fill({0, 0, 200, 100}, frame);
        test.program.catchUp(*test.receiver);
        // The next change comes now a little before its slot, now a little after.
        test.program.queue.advance((frame % 2 == 0 ? 0.9 : 1.1) / 60 - 0.003);
    }

    EXPECT_EQ(shown, film);
}

TEST(ScreenCapture, the_programs_own_picture_is_shown_half_a_slot_later_and_then_there_is_rest) {
    OwnPictureTest test;
    test.changeWindow(0xFF0000);
    const int before = test.receiver->frames;

    test.picture.fill({0, 0, 200, 100}, 0x00FF00);
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
    OwnPictureTest test({390, 300, 220, 100});
    test.changeWindow(0xFF0000);
    const int before = test.receiver->frames;

    test.picture.fill({0, 0, 220, 100}, 0x00FF00);
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
