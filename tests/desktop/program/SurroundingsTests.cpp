#include "desktop/program/ProgramTest.h"
#include "desktop/support/ScreenSize.h"

#include <algorithm>
#include <vector>

namespace quillon::test {
namespace {

/// The desktop round the overlay: other windows, workspaces, the compositor, the server.
class Surroundings : public ProgramTest {
protected:
    void drawLine() {
        prepareTool(DrawingTool::pen);
        startAnnotating();
        input.drag({{100, 100}, {300, 100}});
        ASSERT_TRUE(showsInk({200, 100}));
    }
};

TEST_F(Surroundings, the_drawing_stands_above_a_window_that_fills_the_screen) {
    drawLine();
    ProbeWindow film(desktop.display(), {100, 100, 300, 200}, {20, 120, 20});
    film.fillScreen();
    ASSERT_TRUE(screen.waitForColor({890, 10}, {20, 120, 20}));
    EXPECT_TRUE(showsInk({200, 100}));
    drawLineAt(200);
    EXPECT_EQ(film.pressCount(), 0);
}

TEST_F(Surroundings, the_drawing_is_on_every_workspace) {
    drawLine();
    desktop.showWorkspace(1);
    ASSERT_TRUE(
        screen.waitForPixel({450, 300}, [](Rgb seen) { return !isNear(seen, kBackground); }));
    EXPECT_TRUE(showsInk({200, 100}));
    drawLineAt(200);
    desktop.showWorkspace(0);
    ASSERT_TRUE(showsBackground({450, 300}));
    EXPECT_TRUE(showsInk({200, 200}));
}

TEST_F(Surroundings, no_list_of_windows_holds_the_overlay) {
    drawLine();
    const auto& connection = desktop.connection();
    EXPECT_EQ(connection.property(connection.root(), "_NET_CLIENT_LIST"),
              std::vector<std::uint32_t>{below.id()});
}

TEST_F(Surroundings, the_overlay_follows_the_size_of_the_screen_and_the_drawing_stays) {
    changeScreenSize(desktop.connection(), 640, 480);
    drawLine();
    changeScreenSize(desktop.connection(), 900, 600);
    EXPECT_TRUE(showsInk({200, 100}));
    input.moveTo({720, 550});
    ASSERT_TRUE(eventually([this] { return takesPointer(); }));
    input.drag({{720, 550}, {890, 550}});
    EXPECT_TRUE(showsInk({850, 550}));
    EXPECT_TRUE(showsInk({200, 100}));
    EXPECT_EQ(below.pressCount(), 0);
}

TEST_F(Surroundings, the_end_of_the_display_is_the_end_of_the_program) {
    drawLine();
    desktop.stopServer();
    EXPECT_TRUE(program->process().waitForExit());
}

} // namespace
} // namespace quillon::test
