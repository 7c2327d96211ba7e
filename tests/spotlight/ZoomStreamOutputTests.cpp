#include "spotlight/ZoomTest.h"

namespace quillon::test {
namespace {

/// An output with a clock of the test's own, beside a lens that is on.
struct ZoomStreamOutputTest : ZoomTest {
    ZoomStreamOutputTest() {
        testing::internal::CaptureStdout();
        run();
        testing::internal::GetCapturedStdout();
    }

    Lines printedForFrame(SCStreamOutputType type = SCStreamOutputType::screen) {
        return printedBy([&] {
            output.streamDidOutputSampleBuffer(*manager().screenCaptureStream(), {frame}, type);
        });
    }
    void pointAt(CGPoint place) { host.eventMonitors.sendToOthers(NSEventType::mouseMoved, place); }

    Date now{1000};
    ZoomStreamOutput output{manager().weak_from_this(), [this] { return now; }};
};

const Lines kMissing{"Stream output: missing image buffer or manager"};

// Receipt.

TEST_F(ZoomStreamOutputTest, a_frame_reaches_the_lens_in_the_call_that_brings_it) {
    pointAt({960, 540});
    EXPECT_EQ(printedForFrame(), Lines{});
    ASSERT_TRUE(manager().zoomWindow()->currentImage());
    EXPECT_EQ(lens().image, manager().zoomWindow()->currentImage());
    EXPECT_EQ(output.frameCount(), 1);
}

TEST_F(ZoomStreamOutputTest, a_frame_of_another_type_prints_that_something_is_missing) {
    EXPECT_EQ(printedForFrame(SCStreamOutputType::audio), kMissing);
    EXPECT_EQ(output.frameCount(), 0);
    EXPECT_FALSE(lens().image);
}

TEST_F(ZoomStreamOutputTest, a_delivery_without_a_picture_prints_that_something_is_missing) {
    frame = nullptr;
    EXPECT_EQ(printedForFrame(), kMissing);
    EXPECT_EQ(output.frameCount(), 0);
}

TEST_F(ZoomStreamOutputTest,
       once_the_manager_has_gone_each_frame_prints_that_something_is_missing) {
    ZoomStreamOutput orphan({}, [this] { return now; });
    const auto stream = manager().screenCaptureStream();
    EXPECT_EQ(printedBy([&] {
                  for (int count = 0; count < 3; ++count) {
                      orphan.streamDidOutputSampleBuffer(*stream, {frame},
                                                         SCStreamOutputType::screen);
                  }
              }),
              (Lines{kMissing[0], kMissing[0], kMissing[0]}));
}

// The rate.

TEST_F(ZoomStreamOutputTest,
       exactly_five_seconds_print_no_rate_and_the_first_frame_after_them_does) {
    for (int count = 0; count < 298; ++count) {
        EXPECT_EQ(printedForFrame(), Lines{});
    }
    now = {1005};
    EXPECT_EQ(printedForFrame(), Lines{});
    now = {1005.001};
    EXPECT_EQ(printedForFrame(), Lines{"ZoomStreamOutput: receiving frames at ~60 fps"});
    EXPECT_EQ(output.frameCount(), 0);
    EXPECT_EQ(output.lastLogTime(), now);
}

TEST_F(ZoomStreamOutputTest, the_rate_is_cut_and_taken_over_five_seconds_however_many_went_by) {
    for (int count = 0; count < 8; ++count) {
        printedForFrame();
    }
    now = {2000};
    EXPECT_EQ(printedForFrame(), Lines{"ZoomStreamOutput: receiving frames at ~1 fps"});
    now = {2005};
    EXPECT_EQ(printedForFrame(), Lines{}) << "the interval starts anew";
}

TEST_F(ZoomStreamOutputTest, a_new_stream_starts_to_count_anew) {
    const auto stream = capture().stream(0);
    stream->deliver({frame});
    EXPECT_EQ(manager().zoomStreamOutput()->frameCount(), 1);
    setEnabled(false);
    run();
    EXPECT_EQ(manager().zoomStreamOutput()->frameCount(), 0);
}

// The picture.

TEST_F(ZoomStreamOutputTest, the_square_under_the_pointer_is_cut_out_and_no_other_pixel_is_read) {
    pointAt({960, 540});
    printedForFrame();
    EXPECT_EQ(frame->reads, (std::vector<CGRect>{{910, 490, 100, 100}}));
    EXPECT_EQ(pictureSize(), (CGSize{200, 200}));
    const PixelRows& rows = *lens().image->image.rows;
    EXPECT_EQ(rows.pixels.front(), FakeImageBuffer::pixelAt(910, 589)) << "the top left";
    EXPECT_EQ(rows.pixels.back(), FakeImageBuffer::pixelAt(1009, 490)) << "the bottom right";
}

TEST_F(ZoomStreamOutputTest, each_factor_shows_its_share_of_the_screen_at_the_size_of_the_lens) {
    pointAt({960, 540});
    const std::pair<MagnificationFactor, CGFloat> shares[] = {{MagnificationFactor::x2, 100},
                                                              {MagnificationFactor::x4, 50},
                                                              {MagnificationFactor::x8, 25}};
    for (const auto& [magnification, share] : shares) {
        settings().magnificationFactor = magnification;
        printedForFrame();
        EXPECT_EQ(lens().image->image.part.width, share);
        EXPECT_EQ(pictureSize(), (CGSize{200, 200}));
        EXPECT_EQ(lens().magnification, factor(magnification));
    }
}

TEST_F(ZoomStreamOutputTest, a_factor_of_one_and_a_half_cuts_between_pixels) {
    pointAt({960, 540});
    settings().magnificationFactor = MagnificationFactor::x1_5;
    printedForFrame();
    EXPECT_NEAR(lens().image->image.part.width, 400.0 / 3, 1e-9);
    EXPECT_NEAR(pictureSize().width, 200, 1e-9);
}

TEST_F(ZoomStreamOutputTest, the_square_is_as_high_as_the_lens_is_wide) {
    pointAt({960, 540});
    manager().zoomWindow()->setFrame({0, 0, 200, 80}, /*display=*/true, /*animate=*/false);
    printedForFrame();
    EXPECT_EQ(pictureSize(), (CGSize{200, 200}));
}

TEST_F(ZoomStreamOutputTest, near_an_edge_the_picture_is_what_there_is_of_the_screen) {
    pointAt({10, 540});
    printedForFrame();
    EXPECT_EQ(pictureSize(), (CGSize{120, 200}));
    pointAt({10, 1075});
    printedForFrame();
    EXPECT_EQ(pictureSize(), (CGSize{120, 110}));
}

TEST_F(ZoomStreamOutputTest,
       with_the_pointer_on_another_screen_each_frame_prints_a_line_and_is_dropped) {
    pointAt({960, 540});
    printedForFrame();
    const auto before = lens();
    pointAt({3000, 500.5});
    const Lines outside{"processFrame: capture rect (2950.0, 450.5, 100.0, 100.0) is outside image "
                        "bounds (0.0, 0.0, 1920.0, 1080.0)"};
    EXPECT_EQ(printedForFrame(), outside);
    EXPECT_EQ(printedForFrame(), outside);
    EXPECT_EQ(lens(), before);
}

TEST_F(ZoomStreamOutputTest, a_square_that_only_touches_the_edge_is_outside) {
    pointAt({1970, 540});
    EXPECT_EQ(printedForFrame().size(), 1U);
    EXPECT_FALSE(lens().image);
    pointAt({1969, 540});
    EXPECT_EQ(printedForFrame().size(), 0U);
    EXPECT_EQ(pictureSize(), (CGSize{2, 200}));
}

TEST_F(ZoomStreamOutputTest, pixels_that_cannot_be_had_print_a_line_and_leave_the_last_picture) {
    pointAt({960, 540});
    printedForFrame();
    const auto before = lens();
    frame->isReadable = false;
    EXPECT_EQ(printedForFrame(), Lines{"processFrame: failed to create CGImage"});
    EXPECT_EQ(lens(), before);
}

TEST_F(ZoomStreamOutputTest, the_crosshair_setting_takes_effect_with_the_next_frame) {
    printedForFrame();
    EXPECT_TRUE(lens().showCrosshair);
    settings().showZoomCrosshair = false;
    host.mainQueue.run();
    EXPECT_TRUE(lens().showCrosshair);
    printedForFrame();
    EXPECT_FALSE(lens().showCrosshair);
}

} // namespace

TEST(ZoomStreamOutputOnScales, on_a_screen_of_scale_two_the_picture_has_twice_the_pixels) {
    FakeHost host;
    host.screens.all = {{{0, 0, 1920, 1080}, {0, 0, 1920, 1080}, 2, "Fine"}};
    SpotlightManager& manager = SpotlightManager::shared();
    host.eventMonitors.location = {960, 540};
    manager.isZoomEnabled = true;
    const auto frame = std::make_shared<FakeImageBuffer>(CGSize{3840, 2160});
    const ZoomStreamOutput output(manager.weak_from_this());
    output.processFrame(CIImage(frame), manager);
    EXPECT_EQ(frame->reads, (std::vector<CGRect>{{1820, 980, 200, 200}}));
    EXPECT_EQ(manager.zoomWindow()->currentImage()->size, (CGSize{400, 400}));
    manager.magnificationFactor = MagnificationFactor::x8;
    output.processFrame(CIImage(frame), manager);
    EXPECT_EQ(frame->reads.back(), (CGRect{1895, 1055, 50, 50}));
    EXPECT_EQ(manager.zoomWindow()->currentImage()->size, (CGSize{400, 400}));
}

TEST(ZoomStreamOutputOnScales, before_there_is_a_lens_a_frame_prints_that_it_is_missing) {
    const FakeHost host;
    SpotlightManager& manager = SpotlightManager::shared();
    const ZoomStreamOutput output(manager.weak_from_this());
    testing::internal::CaptureStdout();
    output.processFrame(CIImage(std::make_shared<FakeImageBuffer>(CGSize{10, 10})), manager);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "processFrame: missing screen or window\n");
}

TEST(ZoomStreamOutputOnScales, a_lens_without_a_screen_prints_that_it_is_missing) {
    FakeHost host;
    host.screens.all.clear();
    SpotlightManager& manager = SpotlightManager::shared();
    manager.isZoomEnabled = true;
    const ZoomStreamOutput output(manager.weak_from_this());
    testing::internal::CaptureStdout();
    output.processFrame(CIImage(std::make_shared<FakeImageBuffer>(CGSize{10, 10})), manager);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "processFrame: missing screen or window\n");
    EXPECT_FALSE(manager.zoomWindow()->currentImage());
}

} // namespace quillon::test
