#include "annotation/OverlayTest.h"
#include "model/NotificationNames.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

/// The palette on the overlay, and where it stands.
class OverlayToolbar : public OverlayTest {
protected:
    PaletteControl control(std::size_t index) {
        return std::get<PaletteControl>(overlay.toolbar()->row().children.at(index));
    }
    PaletteControl history(std::size_t index) {
        return std::get<PaletteGroup>(overlay.toolbar()->row().children.at(8)).controls.at(index);
    }
    PaletteControl undoControl() { return history(0); }
    PaletteControl redoControl() { return history(1); }
};

TEST_F(OverlayToolbar, its_undo_and_redo_follow_the_history) {
    annotate();
    EXPECT_TRUE(undoControl().isDisabled);
    drag({10, 10}, {50, 50});
    EXPECT_FALSE(undoControl().isDisabled);
    EXPECT_TRUE(redoControl().isDisabled);
    undoControl().button.action();
    update();
    EXPECT_TRUE(state().strokes->empty());
    EXPECT_TRUE(undoControl().isDisabled);
    EXPECT_FALSE(redoControl().isDisabled);
    redoControl().button.action();
    update();
    EXPECT_EQ(state().strokes->size(), 1U);
}

TEST_F(OverlayToolbar, it_knows_of_a_change_of_the_history_before_the_next_update) {
    annotate();
    overlay.mouseDown({10, 10});
    overlay.mouseDragged({50, 50});
    overlay.mouseUp({50, 50});
    EXPECT_FALSE(undoControl().isDisabled);
    undoControl().button.action();
    EXPECT_TRUE(undoControl().isDisabled);
    EXPECT_FALSE(redoControl().isDisabled);
    redoControl().button.action();
    EXPECT_TRUE(redoControl().isDisabled);
    control(10).button.action();
    undoControl().button.action();
    EXPECT_FALSE(redoControl().isDisabled);
}

TEST_F(OverlayToolbar, it_knows_of_an_undo_from_elsewhere_before_the_next_update) {
    annotate();
    drag({10, 10}, {50, 50});
    post(NotificationName::undoAnnotation);
    EXPECT_TRUE(undoControl().isDisabled);
    EXPECT_FALSE(redoControl().isDisabled);
    post(NotificationName::redoAnnotation);
    EXPECT_FALSE(undoControl().isDisabled);
    EXPECT_TRUE(redoControl().isDisabled);
}

TEST_F(OverlayToolbar, one_that_comes_later_knows_the_history_at_once) {
    annotate();
    drag({10, 10}, {50, 50});
    drag({10, 10}, {50, 50});
    state().undo();
    settings().showFloatingToolbar = false;
    update();
    settings().showFloatingToolbar = true;
    update();
    EXPECT_FALSE(undoControl().isDisabled);
    EXPECT_FALSE(redoControl().isDisabled);
}

TEST_F(OverlayToolbar, its_clear_drops_the_text_being_typed_and_empties_the_canvas) {
    annotate();
    drag({10, 10}, {50, 50});
    settings().selectedTool = DrawingTool::text;
    overlay.mouseDown({100, 100});
    overlay.textField()->text.set("lost");
    control(10).button.action();
    EXPECT_TRUE(state().strokes->empty());
    EXPECT_FALSE(overlay.textField());
}

TEST_F(OverlayToolbar, what_it_changes_are_the_settings) {
    annotate();
    std::get<ToolMenu>(*control(0).menu).entries[2].action();
    EXPECT_EQ(settings().selectedTool.get(), DrawingTool::eraser);
    settings().quickColors = std::vector{Color::red, Color::mint};
    const auto quick = std::get<ColorMenu>(*control(2).menu).sections[0];
    ASSERT_EQ(quick.swatches.size(), 2U);
    quick.swatches[1].action();
    EXPECT_EQ(settings().selectedColor.get(), Color::mint);
    std::get<LineWidthMenu>(*control(4).menu).slider.value.set(11);
    EXPECT_EQ(settings().lineWidth.get(), 11);
    control(6).button.action();
    EXPECT_TRUE(settings().isWhiteboardMode);
}

TEST_F(OverlayToolbar, it_is_told_when_a_setting_changes) {
    annotate();
    int changes = 0;
    const auto subscription = overlay.toolbar()->objectWillChange.sink([&] { ++changes; });
    settings().lineWidth = 9.0;
    EXPECT_GT(changes, 0);
}

TEST_F(OverlayToolbar, a_toolbar_never_placed_stands_150_from_the_right_and_50_from_the_top) {
    annotate();
    EXPECT_TRUE(overlay.toolbar() != nullptr);
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{850, 50}));
    EXPECT_EQ(settings().toolbarPosition.get(), ToolbarPosition::defaultPosition);
}

TEST_F(OverlayToolbar, a_saved_place_is_used_as_it_stands_also_off_the_screen) {
    settings().toolbarPosition = ToolbarPosition{3000, -20};
    annotate();
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{3000, -20}));
}

TEST_F(OverlayToolbar, it_is_hidden_with_annotation_or_by_the_setting_and_placed_anew_each_time) {
    EXPECT_FALSE(overlay.toolbar() != nullptr);
    annotate();
    settings().showFloatingToolbar = false;
    update();
    EXPECT_FALSE(overlay.toolbar() != nullptr);
    settings().toolbarPosition = ToolbarPosition{300, 200};
    settings().showFloatingToolbar = true;
    update();
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{300, 200}));
}

TEST_F(OverlayToolbar, a_drag_begins_after_10_points_and_brings_the_centre_to_the_pointer) {
    annotate();
    overlay.controlsMouseDown({840, 40});
    overlay.controlsMouseDragged({846, 47});
    EXPECT_FALSE(overlay.isDraggingToolbar());
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{850, 50}));
    const int before = updateRequests;
    overlay.controlsMouseDragged({846, 48});
    EXPECT_GT(updateRequests, before);
    EXPECT_TRUE(overlay.isDraggingToolbar());
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{846, 48}));
    overlay.controlsMouseDragged({841, 41});
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{841, 41}));
}

TEST_F(OverlayToolbar, the_place_is_written_once_at_the_end_of_the_drag) {
    annotate();
    host.userDefaults.writes.clear();
    overlay.controlsMouseDown({840, 40});
    overlay.controlsMouseDragged({500, 300});
    overlay.controlsMouseDragged({510, 310});
    EXPECT_TRUE(host.userDefaults.writes.empty());
    overlay.controlsMouseUp({510, 310});
    EXPECT_FALSE(overlay.isDraggingToolbar());
    EXPECT_EQ(host.userDefaults.writes, (std::vector<std::string>{"toolbarPosition"}));
    EXPECT_EQ(settings().toolbarPosition.get(), (ToolbarPosition{510, 310}));
}

TEST_F(OverlayToolbar, a_click_on_it_writes_nothing) {
    annotate();
    host.userDefaults.writes.clear();
    overlay.controlsMouseDown({840, 40});
    overlay.controlsMouseUp({842, 41});
    EXPECT_TRUE(host.userDefaults.writes.empty());
}

TEST_F(OverlayToolbar, dragged_to_the_very_corner_it_counts_as_never_placed) {
    annotate();
    overlay.controlsMouseDown({840, 40});
    overlay.controlsMouseDragged({0, 0});
    overlay.controlsMouseUp({0, 0});
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{0, 0}));
    settings().isAnnotationEnabled = false;
    update();
    annotate();
    EXPECT_EQ(overlay.toolbarPosition(), (CGPoint{850, 50}));
}

} // namespace
} // namespace quillon::test
