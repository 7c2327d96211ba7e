#include "cursor/CursorHighlightManagerTest.h"

#include <memory>

namespace quillon::test {

TEST_F(CursorHighlightManagerTest,
       first_enabled_it_shows_the_built_in_look_in_a_window_of_the_chosen_size) {
    settings().haloShape = HaloShape::rhombus;
    settings().haloColor = Color::red;
    settings().haloSize = 80;
    enable();
    movePointer(kPlace);
    EXPECT_EQ(halo().shape(), HaloShape::ring);
    EXPECT_EQ(halo().color(), Color::cyan);
    EXPECT_EQ(halo().size(), 40);
    EXPECT_EQ(manager().haloWindow()->frame().width, 80);
}

TEST_F(CursorHighlightManagerTest, any_look_that_changes_while_enabled_brings_all_of_them) {
    settings().haloColor = Color::red;
    settings().haloSize = 80;
    enable();
    settings().haloShape = HaloShape::squircle;
    EXPECT_EQ(halo().shape(), HaloShape::ring) << "the look follows in a later turn";
    host.mainQueue.run();
    EXPECT_EQ(halo().shape(), HaloShape::squircle);
    EXPECT_EQ(halo().color(), Color::red);
    EXPECT_EQ(halo().size(), 80);
}

TEST_F(CursorHighlightManagerTest,
       a_new_size_reaches_the_view_at_once_and_the_window_with_the_next_event) {
    enable();
    movePointer(kPlace);
    settings().haloSize = 100;
    host.mainQueue.run();
    EXPECT_EQ(halo().size(), 100);
    EXPECT_EQ(manager().haloWindow()->frame(), (CGRect{480, 280, 40, 40}));
    movePointer(kPlace);
    EXPECT_EQ(manager().haloWindow()->frame(), (CGRect{450, 250, 100, 100}));
}

TEST_F(CursorHighlightManagerTest,
       a_look_that_changed_while_off_waits_for_the_next_change_while_on) {
    enable();
    disable();
    settings().haloColor = Color::red;
    host.mainQueue.run();
    enable();
    movePointer(kPlace);
    EXPECT_EQ(halo().color(), Color::cyan);
    settings().haloShape = HaloShape::ring;
    host.mainQueue.run();
    EXPECT_EQ(halo().color(), Color::red);
}

TEST_F(CursorHighlightManagerTest, a_change_that_is_overtaken_by_the_switch_off_is_not_applied) {
    enable();
    settings().haloColor = Color::red;
    disable();
    EXPECT_EQ(halo().color(), Color::cyan);
}

TEST_F(CursorHighlightManagerTest, a_content_of_another_kind_is_left_alone) {
    struct PlainView : ContentView {
        void layout(CGSize, CGFloat) override {}
        Damage takeDamage() override { return {}; }
        void paint(GraphicsContext&, const CGRect&) override {}
    };
    enable();
    auto& content = *manager().haloWindow()->contentView();
    content.setRootView(std::make_unique<PlainView>());
    const ContentView* plain = content.rootView.get();
    settings().haloColor = Color::red;
    host.mainQueue.run();
    EXPECT_EQ(content.rootView.get(), plain);
}

TEST_F(CursorHighlightManagerTest, another_click_animation_leaves_the_halo_as_it_is) {
    enable();
    const HaloView* before = &halo();
    settings().clickAnimationType = ClickAnimationType::ripple;
    host.mainQueue.run();
    EXPECT_EQ(&halo(), before);
}

TEST_F(CursorHighlightManagerTest, movement_leaves_the_view_as_it_is) {
    enable();
    const HaloView* before = &halo();
    movePointer({1, 1});
    movePointer({2, 2});
    EXPECT_EQ(&halo(), before);
}

} // namespace quillon::test
