#include "desktop/program/ProgramTest.h"

#include <optional>

namespace quillon::test {
namespace {

class TrayItem : public ProgramTest {
protected:
    /// Where something lighter than the panel stands in its middle row.
    std::optional<Pixel> findItem() {
        std::optional<Pixel> found;
        eventually([&] {
            for (int y = 8; y < 24 && !found; y += 2) {
                for (int x = 0; x < 900 && !found; ++x) {
                    if (screen.pixel({x, y}).red > 180) {
                        found = Pixel{x, y};
                    }
                }
            }
            return found.has_value();
        });
        return found;
    }
};

TEST_F(TrayItem, a_click_opens_the_menu_and_quit_ends_the_program) {
    desktop.startTray();
    start();
    const auto item = findItem();
    ASSERT_TRUE(item);
    input.click(*item);
    ASSERT_TRUE(screen.waitForPixel({item->x + 60, 60}, [](Rgb seen) { return seen.red > 200; }));
    input.chord({"Control_L", "q"});
    EXPECT_EQ(program->process().waitForExit(), 0);
}

TEST_F(TrayItem, it_appears_when_the_tray_comes_up_after_the_program) {
    start();
    desktop.startTray();
    EXPECT_TRUE(findItem());
}

} // namespace
} // namespace quillon::test
