#include "desktop/program/SettingsTest.h"
#include "desktop/support/DesktopScale.h"

namespace quillon::test {
namespace {

/// A desktop whose user changes its scale while the program runs.
class Scale : public ProgramTest {
protected:
    /// Whether a line of that width, in device pixels, stands there.
    bool showsLine(Pixel place, int width) {
        const int inside = width / 2 - 2;
        const int outside = width / 2 + 2;
        return showsInk(place) && showsInk({place.x, place.y - inside}) &&
               showsInk({place.x, place.y + inside}) &&
               showsBackground({place.x, place.y - outside}) &&
               showsBackground({place.x, place.y + outside});
    }

    DesktopScale scale{desktop.display(), 100};
};

TEST_F(Scale, what_is_drawn_before_and_after_a_change_has_its_size_in_points) {
    prepareTool(DrawingTool::pen);
    startAnnotating();
    input.drag({{100, 100}, {300, 100}});
    ASSERT_TRUE(showsLine({200, 100}, 8));
    scale.change(200);
    EXPECT_TRUE(showsLine({400, 200}, 16));
    EXPECT_TRUE(showsBackground({200, 100}));
    input.drag({{100, 300}, {300, 300}});
    EXPECT_TRUE(showsLine({200, 300}, 16));
    input.drag({{800, 500}, {800, 590}});
    EXPECT_TRUE(showsInk({800, 580}));
}

TEST_F(Scale, the_spotlight_has_its_radius_in_points_after_a_change) {
    prepare([](AppSettings& settings) { settings.spotlightRadius = 60; });
    start();
    input.moveTo({450, 300});
    input.chord({"Super_L", "Shift_L", "l"});
    ASSERT_TRUE(showsBackground({450 + 57, 300}));
    const Rgb dimmed = screen.pixel({10, 590});
    ASSERT_TRUE(screen.waitForColor({450 + 63, 300}, dimmed));
    scale.change(200);
    for (const int x : {450, 440, 500}) {
        input.moveTo({x, 300});
        EXPECT_TRUE(showsBackground({x + 116, 300})) << x;
        EXPECT_TRUE(screen.waitForColor({x + 124, 300}, dimmed)) << x;
        EXPECT_TRUE(screen.waitForColor({10, 590}, dimmed)) << x;
    }
}

/// The settings on a screen with room for them at twice their size.
class SettingsAtAnotherScale : public SettingsTest {
protected:
    SettingsAtAnotherScale()
        : SettingsTest({.width = 1400, .height = 1200}) {}

    DesktopScale scale{desktop.display(), 100};
};

TEST_F(SettingsAtAnotherScale, the_window_has_room_for_its_content_and_can_be_used) {
    startAndOpen();
    const int widthBefore = width;
    scale.change(200);
    ASSERT_TRUE(eventually([&] {
        return titled(kTitle).size() == 1 &&
               desktop.connection().place(titled(kTitle).front()).width == 2 * widthBefore;
    }));
    const auto place = desktop.connection().place(titled(kTitle).front());
    const Pixel content{place.x, place.y + place.height - 2 * 500};
    const Pixel tab{content.x + 2 * 150, content.y + 2 * 28};
    const Pixel ground{content.x + 2 * 108, content.y + 2 * 50};
    ASSERT_TRUE(screen.waitForPixel(ground, [](Rgb seen) { return !isSelected(seen); }));
    input.click(tab);
    EXPECT_TRUE(screen.waitForPixel(ground, isSelected));
    EXPECT_TRUE(screen.waitForPixel({content.x + 2 * 590, content.y + 2 * 490}, isPage));
}

} // namespace
} // namespace quillon::test
