#include "spotlight/StreamDelegate.h"
#include "spotlight/ZoomTest.h"

namespace quillon::test {
namespace {

using ZoomCaptureTest = ZoomTest;

const std::string kPrivacySettings =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_ScreenCapture";

const Lines kSetup{
    "Setting up screen capture for screen: Screen", "Available displays: 1",
    "Display: 1, width: 1920, height: 1080",        "Using display ID: 1",
    "Stream configuration: 1920x1080, scale: 1.0",
};

Lines operator+(Lines lines, const Lines& more) {
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

// The way to a running stream.

TEST_F(ZoomCaptureTest, from_the_switch_to_a_running_stream_the_steps_print_their_lines_in_order) {
    EXPECT_EQ(printedBy([this] { run(); }), kSetup + Lines{"Screen capture started successfully"});
    EXPECT_TRUE(manager().isScreenCapturePermissionGranted());
    EXPECT_EQ(manager().screenCaptureStream(), capture().stream(0));
    EXPECT_EQ(manager().zoomStreamOutput(), capture().stream(0)->outputs.at(0).output);
    EXPECT_EQ(manager().zoomGeneration(), 1);
}

TEST_F(ZoomCaptureTest, every_step_waits_for_the_one_before) {
    manager().isZoomEnabled = true;
    EXPECT_EQ(capture().probes.count(), 0U) << "the probe is sent in a later turn";
    host.mainQueue.run();
    EXPECT_EQ(capture().probes.count(), 1U);
    EXPECT_EQ(capture().lookups.count(), 0U);
    answerProbe();
    EXPECT_EQ(capture().lookups.count(), 1U);
    EXPECT_TRUE(capture().streams.empty());
    answerLookup();
    EXPECT_EQ(capture().starts.count(), 1U);
    EXPECT_TRUE(manager().zoomStreamOutput());
    EXPECT_FALSE(manager().screenCaptureStream());
    answerStart();
    EXPECT_TRUE(manager().screenCaptureStream());
}

TEST_F(ZoomCaptureTest, the_probe_asks_for_all_that_is_on_the_screen) {
    setEnabled(true);
    EXPECT_FALSE(capture().probedWindows.excludingDesktopWindows);
    EXPECT_TRUE(capture().probedWindows.onScreenWindowsOnly);
}

TEST_F(ZoomCaptureTest, the_stream_shows_the_whole_display_at_its_own_resolution) {
    host.screens.all.front().backingScaleFactor = 1.25;
    run();
    const auto stream = capture().stream(0);
    EXPECT_EQ(stream->filter.display, (SCDisplay{1, 1920, 1080}));
    EXPECT_TRUE(stream->filter.excludedWindows.empty());
    EXPECT_EQ(stream->configuration.width(), 2400);
    EXPECT_EQ(stream->configuration.height(), 1350);
    EXPECT_EQ(stream->configuration.minimumFrameInterval(), (CMTime{1, 60}));
    EXPECT_FALSE(stream->configuration.showsCursor());
    EXPECT_EQ(stream->configuration.queueDepth(), 5);
    EXPECT_EQ(stream->configuration.pixelFormat(), 0x42475241U);
    EXPECT_FALSE(stream->configuration.scalesToFit());
    ASSERT_EQ(stream->outputs.size(), 1U);
    EXPECT_EQ(stream->outputs[0].type, SCStreamOutputType::screen);
    EXPECT_EQ(stream->outputs[0].queue, &host.mainQueue);
}

TEST_F(ZoomCaptureTest, the_size_of_the_stream_is_cut_to_whole_pixels) {
    host.screens.all.front().frame = {0, 0, 1366, 768.5};
    host.screens.all.front().backingScaleFactor = 1.25;
    const Lines lines = printedBy([this] { run(); });
    EXPECT_EQ(lines.at(4), "Stream configuration: 1707x960, scale: 1.25");
}

TEST_F(ZoomCaptureTest, the_delegate_carries_its_generation_and_holds_the_manager) {
    run();
    const auto delegate = std::dynamic_pointer_cast<StreamDelegate>(capture().stream(0)->delegate);
    ASSERT_TRUE(delegate);
    EXPECT_EQ(delegate->generation(), 1);
    EXPECT_EQ(delegate->manager.get(), &manager());
}

// The generation.

TEST_F(ZoomCaptureTest, every_assignment_of_the_switch_takes_a_new_generation) {
    for (const bool enabled : {true, true, false, false, true}) {
        manager().isZoomEnabled = enabled;
        EXPECT_EQ(manager().isZoomEnabledNonisolated(), enabled);
    }
    EXPECT_EQ(manager().zoomGeneration(), 5);
}

TEST_F(ZoomCaptureTest, another_factor_takes_no_new_generation_and_leaves_the_stream_alone) {
    run();
    const auto stream = manager().screenCaptureStream();
    settings().magnificationFactor = MagnificationFactor::x8;
    host.mainQueue.run();
    EXPECT_EQ(manager().magnificationFactor, MagnificationFactor::x8);
    EXPECT_EQ(manager().magnificationFactorNonisolated(), MagnificationFactor::x8);
    EXPECT_EQ(manager().zoomWindow()->magnification(), 8);
    EXPECT_EQ(manager().zoomGeneration(), 1);
    EXPECT_EQ(manager().screenCaptureStream(), stream);
}

// Switching while a step waits.

TEST_F(ZoomCaptureTest, switched_off_while_the_probe_is_pending_nothing_follows) {
    for (const bool isAllowed : {true, false}) {
        setEnabled(true);
        setEnabled(false);
        if (isAllowed) {
            answerProbe();
        } else {
            answerProbe(kRefusal);
        }
    }
    EXPECT_TRUE(isAtRest());
    EXPECT_TRUE(capture().streams.empty());
    EXPECT_TRUE(host.workspace.openedURLs.empty());
    EXPECT_TRUE(capture().picker.activations.empty());
}

TEST_F(ZoomCaptureTest, switched_off_while_the_content_is_looked_up_no_stream_is_made) {
    setEnabled(true);
    answerProbe();
    setEnabled(false);
    EXPECT_EQ(printedBy([this] { answerLookup(); }), Lines{});
    EXPECT_TRUE(capture().streams.empty());
    EXPECT_TRUE(isAtRest());
}

TEST_F(ZoomCaptureTest, a_probe_that_answers_too_late_is_noted_all_the_same) {
    setEnabled(true);
    setEnabled(false);
    answerProbe();
    EXPECT_TRUE(manager().isScreenCapturePermissionGranted());
    setEnabled(true);
    setEnabled(false);
    EXPECT_EQ(printedBy([this] { answerProbe(kRefusal); }),
              Lines{"Screen recording permission check failed: The user declined"});
    EXPECT_FALSE(manager().isScreenCapturePermissionGranted());
}

TEST_F(ZoomCaptureTest, off_and_on_while_the_content_is_looked_up_the_older_answer_prints_nothing) {
    setEnabled(true);
    answerProbe();
    setEnabled(false);
    setEnabled(true);
    EXPECT_EQ(printedBy([this] { answerLookup(); }), Lines{});
    EXPECT_TRUE(capture().streams.empty());
    EXPECT_EQ(printedBy([this] { answerProbe(); }), Lines{kSetup.at(0)});
    EXPECT_EQ(printedBy([this] { answerLookup(); }), Lines(kSetup.begin() + 1, kSetup.end()));
}

TEST_F(ZoomCaptureTest, switched_off_right_after_the_permission_the_lookup_is_asked_for_in_vain) {
    setEnabled(true);
    capture().probes.complete(SCShareableContent{});
    EXPECT_EQ(printedBy([this] { manager().isZoomEnabled = false; }), Lines{kSetup.at(0)});
    EXPECT_EQ(printedBy([this] { answerLookup(); }), Lines{});
    EXPECT_TRUE(isAtRest());
}

TEST_F(ZoomCaptureTest, a_lookup_that_fails_too_late_prints_its_line_and_asks_for_nothing) {
    setEnabled(true);
    answerProbe();
    setEnabled(false);
    EXPECT_EQ(printedBy([this] { answerLookup(kRefusal); }),
              Lines{"Failed to start screen capture: The user declined"});
    EXPECT_TRUE(host.workspace.openedURLs.empty());
}

TEST_F(ZoomCaptureTest, switched_off_while_the_stream_starts_the_late_stream_is_stopped) {
    setEnabled(true);
    answerProbe();
    answerLookup();
    setEnabled(false);
    EXPECT_EQ(capture().stops.count(), 0U) << "there is nothing yet to stop";
    EXPECT_EQ(printedBy([this] {
                  answerStart();
                  answerStop();
              }),
              Lines{});
    EXPECT_FALSE(manager().screenCaptureStream());
    EXPECT_TRUE(isAtRest());
    EXPECT_FALSE(capture().stream(0)) << "nobody holds it any more";
}

TEST_F(ZoomCaptureTest,
       off_and_on_while_the_stream_starts_the_second_chain_alone_ends_in_a_stream) {
    setEnabled(true);
    answerProbe();
    answerLookup();
    setEnabled(false);
    setEnabled(true);
    EXPECT_EQ(manager().zoomGeneration(), 3);
    answerStart();
    EXPECT_FALSE(manager().screenCaptureStream());
    answerStop();
    answerProbe();
    answerLookup();
    answerStart();
    EXPECT_EQ(manager().screenCaptureStream(), capture().stream(1));
    EXPECT_EQ(capture().runningStreams(), 1);
}

TEST_F(ZoomCaptureTest, a_stale_failure_leaves_the_output_of_the_newer_start_alone) {
    setEnabled(true);
    answerProbe();
    answerLookup();
    setEnabled(false);
    setEnabled(true);
    answerProbe();
    answerLookup();
    const auto output = manager().zoomStreamOutput();
    EXPECT_EQ(printedBy([this] { answerStart(kRefusal); }),
              Lines{"Failed to add stream output or start capture: The user declined"});
    EXPECT_TRUE(output);
    EXPECT_EQ(manager().zoomStreamOutput(), output);
    EXPECT_TRUE(host.workspace.openedURLs.empty());
}

TEST_F(ZoomCaptureTest, a_stale_stop_that_fails_prints_its_line) {
    setEnabled(true);
    answerProbe();
    answerLookup();
    setEnabled(false);
    answerStart();
    EXPECT_EQ(printedBy([this] { answerStop(kMishap); }),
              Lines{"Failed to add stream output or start capture: Something broke"});
}

TEST_F(ZoomCaptureTest, switched_on_once_more_while_running_a_new_stream_replaces_the_old_one) {
    run();
    host.windows.calls.clear();
    setEnabled(true);
    EXPECT_EQ(host.windows.calls.at(0), "orderFront");
    EXPECT_EQ(manager().zoomGeneration(), 2);
    EXPECT_EQ(manager().screenCaptureStream(), capture().stream(0)) << "it runs on until then";
    answerProbe();
    answerLookup();
    answerStart();
    EXPECT_EQ(manager().screenCaptureStream(), capture().stream(1));
    EXPECT_EQ(capture().stops.count(), 0U);
    EXPECT_FALSE(capture().stream(0)) << "the old one is let go of";
}

// Stopping.

TEST_F(ZoomCaptureTest, switched_off_both_fields_are_cleared_at_once_and_the_stop_follows) {
    run();
    manager().isZoomEnabled = false;
    EXPECT_FALSE(manager().screenCaptureStream());
    EXPECT_FALSE(manager().zoomStreamOutput());
    EXPECT_EQ(capture().stops.count(), 0U);
    host.mainQueue.run();
    EXPECT_EQ(capture().stops.count(), 1U);
    EXPECT_TRUE(capture().stream(0)) << "it lives until the stop is over";
    EXPECT_EQ(printedBy([this] { answerStop(); }), Lines{"Screen capture stopped"});
    EXPECT_FALSE(capture().stream(0));
}

TEST_F(ZoomCaptureTest, a_stop_that_fails_prints_its_line) {
    run();
    setEnabled(false);
    EXPECT_EQ(printedBy([this] { answerStop(kMishap); }),
              Lines{"Error stopping screen capture: Something broke"});
}

TEST_F(ZoomCaptureTest, the_next_start_does_not_wait_for_the_stop) {
    run();
    setEnabled(false);
    setEnabled(true);
    answerProbe();
    answerLookup();
    answerStart();
    EXPECT_EQ(manager().screenCaptureStream(), capture().stream(1));
    EXPECT_EQ(printedBy([this] { answerStop(); }), Lines{"Screen capture stopped"});
    EXPECT_EQ(capture().runningStreams(), 1);
}

TEST_F(ZoomCaptureTest, switching_off_what_is_off_stops_nothing) {
    setEnabled(false);
    EXPECT_TRUE(isAtRest());
    EXPECT_FALSE(manager().zoomWindow());
}

// Permission.

TEST_F(ZoomCaptureTest, a_refused_permission_sends_the_user_to_the_settings_once) {
    setEnabled(true);
    EXPECT_EQ(printedBy([this] { answerProbe(kRefusal); }),
              (Lines{"Screen recording permission check failed: The user declined",
                     "Screen recording permission not granted"}));
    EXPECT_FALSE(manager().isScreenCapturePermissionGranted());
    EXPECT_EQ(capture().picker.activations, std::vector<bool>{true});
    EXPECT_EQ(host.workspace.openedURLs, std::vector<std::string>{kPrivacySettings});
    EXPECT_TRUE(manager().isZoomEnabled);
    EXPECT_TRUE(manager().zoomWindow()->isVisible());
    EXPECT_FALSE(lens().image) << "the placeholder stays";
    EXPECT_EQ(capture().probes.count() + capture().lookups.count(), 0U) << "no retry follows";
}

TEST_F(ZoomCaptureTest, an_error_of_any_domain_refuses_the_probe) {
    setEnabled(true);
    answerProbe(kMishap);
    EXPECT_EQ(host.workspace.openedURLs.size(), 1U);
}

TEST_F(ZoomCaptureTest, a_permission_given_later_takes_effect_when_switched_off_and_on) {
    setEnabled(true);
    answerProbe(kRefusal);
    setEnabled(false);
    run();
    EXPECT_TRUE(manager().screenCaptureStream());
    EXPECT_TRUE(manager().isScreenCapturePermissionGranted());
}

TEST_F(ZoomCaptureTest, errors_of_the_capture_service_while_starting_count_as_a_lost_permission) {
    for (const char* domain : {"SCStreamErrorDomain", "com.example.ScreenCaptureThing"}) {
        setEnabled(false);
        host.workspace.openedURLs.clear();
        setEnabled(true);
        answerProbe();
        answerLookup();
        EXPECT_EQ(printedBy([&] {
                      answerStart(CaptureError{domain, "No"});
                  }),
                  (Lines{"Failed to add stream output or start capture: No",
                         "Screen capture error (likely permission): No"}))
            << domain;
        EXPECT_FALSE(manager().isScreenCapturePermissionGranted());
        EXPECT_EQ(host.workspace.openedURLs.size(), 1U);
        EXPECT_FALSE(manager().zoomStreamOutput());
        EXPECT_TRUE(manager().isZoomEnabled);
    }
}

TEST_F(ZoomCaptureTest, an_error_of_another_domain_while_starting_prints_its_line_alone) {
    for (const char* domain : {"SomeOtherDomain", "SCStreamErrorDomain2", "screencapture", ""}) {
        setEnabled(false);
        setEnabled(true);
        answerProbe();
        answerLookup();
        EXPECT_EQ(printedBy([&] {
                      answerStart(CaptureError{domain, "No"});
                  }),
                  Lines{"Failed to add stream output or start capture: No"})
            << domain;
    }
    EXPECT_TRUE(host.workspace.openedURLs.empty());
    EXPECT_TRUE(manager().isScreenCapturePermissionGranted());
}

TEST_F(ZoomCaptureTest, an_output_that_is_not_taken_ends_the_chain_before_the_start) {
    capture().errorOfAddition = kRefusal;
    setEnabled(true);
    answerProbe();
    const Lines lines = printedBy([this] { answerLookup(); });
    EXPECT_EQ(lines.at(lines.size() - 2),
              "Failed to add stream output or start capture: The user declined");
    EXPECT_EQ(lines.back(), "Screen capture error (likely permission): The user declined");
    EXPECT_FALSE(manager().zoomStreamOutput());
    EXPECT_TRUE(isAtRest());
}

TEST_F(ZoomCaptureTest, a_lookup_that_fails_may_be_a_lost_permission_too) {
    setEnabled(true);
    answerProbe();
    EXPECT_EQ(printedBy([this] { answerLookup(kRefusal); }),
              (Lines{"Failed to start screen capture: The user declined",
                     "Screen capture error (likely permission): The user declined"}));
    EXPECT_EQ(host.workspace.openedURLs.size(), 1U);
    EXPECT_TRUE(manager().isZoomEnabled);
    EXPECT_EQ(manager().zoomGeneration(), 1);
}

} // namespace
} // namespace quillon::test
