#include "desktop/program/ProgramTest.h"

#include <signal.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace quillon::test {
namespace {

using Life = ProgramTest;

TEST_F(Life, every_setting_is_found_again_after_a_restart) {
    HotkeyMap hotkeys = HotkeyConfig::defaults();
    hotkeys[HotkeyAction::undo] = {6, 0x300, HotkeyAction::undo};
    hotkeys.erase(HotkeyAction::toggleZoom);
    prepare([&](AppSettings& settings) {
        settings.isAnnotationEnabled = true;
        settings.isWhiteboardMode = true;
        settings.isCursorHaloEnabled = true;
        settings.isSpotlightEnabled = true;
        settings.isZoomEnabled = true;
        settings.selectedTool = DrawingTool::arrow;
        settings.selectedColor = Color(0.1, 0.2, 0.3, 0.4);
        settings.lineWidth = 7.25;
        settings.quickColors = std::vector<Color>{Color(0.5, 0.5, 0.5)};
        settings.haloShape = HaloShape::rhombus;
        settings.haloColor = Color(0.9, 0.8, 0.7, 0.6);
        settings.haloSize = 61.0;
        settings.clickAnimationType = ClickAnimationType::ripple;
        settings.spotlightIntensity = 0.35;
        settings.spotlightRadius = 222.0;
        settings.magnificationFactor = MagnificationFactor::x8;
        settings.zoomWindowSize = 321.0;
        settings.zoomWindowOffsetX = 11.0;
        settings.zoomWindowOffsetY = 12.0;
        settings.showZoomCrosshair = false;
        settings.autoEraseTimer = AutoEraseTimer::tenSeconds;
        settings.showFloatingToolbar = false;
        settings.toolbarPosition = ToolbarPosition{44, 55};
        settings.hotkeys = hotkeys;
        settings.launchAtLogin = true;
    });
    start();
    stop();
    prepare([&](AppSettings& settings) {
        EXPECT_TRUE(settings.isAnnotationEnabled);
        EXPECT_TRUE(settings.isWhiteboardMode);
        EXPECT_TRUE(settings.isCursorHaloEnabled);
        EXPECT_TRUE(settings.isSpotlightEnabled);
        EXPECT_TRUE(settings.isZoomEnabled);
        EXPECT_EQ(settings.selectedTool.get(), DrawingTool::arrow);
        EXPECT_EQ(settings.selectedColor.get(), Color(0.1, 0.2, 0.3, 0.4));
        EXPECT_EQ(settings.lineWidth.get(), 7.25);
        EXPECT_EQ(settings.quickColors.get(), std::vector<Color>{Color(0.5, 0.5, 0.5)});
        EXPECT_EQ(settings.haloShape.get(), HaloShape::rhombus);
        EXPECT_EQ(settings.haloColor.get(), Color(0.9, 0.8, 0.7, 0.6));
        EXPECT_EQ(settings.haloSize.get(), 61.0);
        EXPECT_EQ(settings.clickAnimationType.get(), ClickAnimationType::ripple);
        EXPECT_EQ(settings.spotlightIntensity.get(), 0.35);
        EXPECT_EQ(settings.spotlightRadius.get(), 222.0);
        EXPECT_EQ(settings.magnificationFactor.get(), MagnificationFactor::x8);
        EXPECT_EQ(settings.zoomWindowSize.get(), 321.0);
        EXPECT_EQ(settings.zoomWindowOffsetX.get(), 11.0);
        EXPECT_EQ(settings.zoomWindowOffsetY.get(), 12.0);
        EXPECT_FALSE(settings.showZoomCrosshair);
        EXPECT_EQ(settings.autoEraseTimer.get(), AutoEraseTimer::tenSeconds);
        EXPECT_FALSE(settings.showFloatingToolbar);
        EXPECT_EQ(settings.toolbarPosition.get(), (ToolbarPosition{44, 55}));
        EXPECT_EQ(settings.hotkeys.get(), hotkeys);
        EXPECT_TRUE(settings.launchAtLogin);
    });
}

TEST_F(Life, a_start_comes_up_in_the_mode_in_which_the_program_was_left) {
    const auto isSheet = [](Rgb seen) { return seen.red > 225; };
    prepareTool(DrawingTool::pen);
    start();
    toggleWhiteboard();
    ASSERT_TRUE(screen.waitForPixel({450, 300}, isSheet));
    stop();
    ASSERT_TRUE(showsBackground({450, 300}));

    start();
    ASSERT_TRUE(screen.waitForPixel({450, 300}, isSheet));
    drawLineAt(100);
    toggleAnnotation();
    ASSERT_TRUE(showsBackground({450, 300}));
    stop();

    start();
    EXPECT_FALSE(takesPointer());
    toggleAnnotation();
    EXPECT_TRUE(screen.waitForPixel({450, 300}, isSheet));
}

TEST_F(Life, a_change_survives_a_kill_right_after_it_and_the_pointer_is_free) {
    startAnnotating();
    program->kill();
    EXPECT_TRUE(eventually([this] { return !takesPointer(); }));
    input.click({200, 200});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 1; }));
    EXPECT_TRUE(
        stored<bool>([](AppSettings& settings) { return settings.isAnnotationEnabled.get(); }));
}

TEST_F(Life, a_kill_in_the_middle_of_a_stroke_leaves_pointer_and_keyboard_to_the_others) {
    prepareTool(DrawingTool::pen);
    startAnnotating();
    input.moveTo({100, 100});
    input.press();
    input.moveTo({200, 200});
    ASSERT_TRUE(showsInk({150, 150}));
    program->kill();
    EXPECT_TRUE(showsBackground({150, 150}));
    input.release();
    input.click({200, 200});
    EXPECT_TRUE(eventually([this] { return below.pressCount() == 1; }));
    const int before = below.keyCount();
    input.tap("a");
    EXPECT_TRUE(eventually([&] { return below.keyCount() == before + 1; }));
}

TEST_F(Life, a_damaged_database_is_set_aside_and_the_program_starts_with_defaults) {
    const std::filesystem::path folder = desktop.configFolder() + "/quillon-mark";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "settings.sqlite") << "This is no database, whatever it is.";
    start();
    stop();
    std::ifstream aside(folder / "settings.sqlite.damaged-1");
    std::string line;
    std::getline(aside, line);
    EXPECT_EQ(line, "This is no database, whatever it is.");
    EXPECT_EQ(stored<double>([](AppSettings& settings) { return settings.lineWidth.get(); }), 4);
}

TEST_F(Life, a_folder_that_cannot_be_written_costs_one_line_and_nothing_else) {
    std::ofstream(desktop.configFolder() + "/quillon-mark") << "a file where the folder should be";
    startAnnotating();
    input.drag({{100, 100}, {200, 100}});
    stop();
    const std::string told = program->process().standardError();
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
    EXPECT_NE(told.find("this session only"), std::string::npos) << told;
}

TEST_F(Life, a_second_start_hands_over_and_ends_with_0) {
    startAnnotating();
    ChildProcess second({Program::path()}, desktop.environment());
    EXPECT_EQ(second.waitForExit(), 0);
    EXPECT_TRUE(program->process().isRunning());
    EXPECT_TRUE(takesPointer());
}

TEST_F(Life, of_several_starts_at_once_one_stays) {
    std::vector<std::unique_ptr<ChildProcess>> starts;
    for (int count = 0; count < 4; ++count) {
        starts.push_back(std::make_unique<ChildProcess>(std::vector<std::string>{Program::path()},
                                                        desktop.environment()));
    }
    const auto runningCount = [&] {
        return std::count_if(starts.begin(), starts.end(),
                             [](const auto& child) { return child->isRunning(); });
    };
    EXPECT_TRUE(eventually([&] { return runningCount() == 1; }));
    int left = 0;
    for (const auto& child : starts) {
        if (!child->isRunning()) {
            EXPECT_EQ(child->waitForExit(), 0) << child->standardError();
            ++left;
        }
    }
    EXPECT_EQ(left, 3);
    const auto last = std::find_if(starts.begin(), starts.end(),
                                   [](const auto& child) { return child->isRunning(); });
    ASSERT_NE(last, starts.end());
    (*last)->sendSignal(SIGTERM);
    EXPECT_EQ((*last)->waitForExit(), 0);
}

class LifeEndedBy : public ProgramTest, public testing::WithParamInterface<int> {};

TEST_P(LifeEndedBy, a_signal_ends_the_program_with_0_and_frees_its_shortcuts) {
    start();
    program->process().sendSignal(GetParam());
    EXPECT_EQ(program->process().waitForExit(), 0);
    EXPECT_FALSE(program->isReady());
}

INSTANTIATE_TEST_SUITE_P(EachSignal, LifeEndedBy, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST(LifeWithoutADisplay, one_line_is_told_and_the_status_is_1) {
    ChildProcess program({Program::path()}, {{"HOME", "/nonexistent"}, {"PATH", "/usr/bin"}});
    EXPECT_EQ(program.waitForExit(), 1);
    const std::string told = program.standardError();
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
    EXPECT_EQ(program.standardOutput(), "");
}

TEST_F(Life, a_shortcut_that_another_program_holds_is_reported_and_leaves_the_others_working) {
    auto& connection = desktop.connection();
    const auto modifiers = XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT;
    xcb_grab_key(connection.get(), 0, connection.root(), modifiers, input.keyCode("w"),
                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    connection.synchronise();
    startAnnotating();
    EXPECT_EQ(program->process().standardOutput(),
              "Failed to register hotkey for Toggle Whiteboard: -9878\n");
}

} // namespace
} // namespace quillon::test
