#include "annotation/CanvasTest.h"
#include "annotation/TestStrokes.h"

#include <string>

namespace quillon::test {

namespace {

class CanvasText : public Canvas {
protected:
    CanvasText() { canvas.selectedTool = DrawingTool::text; }

    /// Opens the field and types into it as the host's field would.
    void typeAt(CGPoint place, const std::string& content) {
        canvas.mouseDown(place);
        canvas.mouseUp(place);
        const auto field = canvas.textField();
        ASSERT_TRUE(field);
        field->onAppear();
        host.mainQueue.run();
        field->text.set(content);
    }
};

} // namespace

TEST_F(CanvasText, a_press_opens_a_field_of_200_points_in_24_with_its_centre_there) {
    canvas.selectedColor = Color::green;
    canvas.mouseDown({70, 80});
    const auto field = canvas.textField();
    ASSERT_TRUE(field);
    EXPECT_EQ(field->center, (CGPoint{70, 80}));
    EXPECT_EQ(field->width, 200);
    EXPECT_EQ(field->fontSize, 24);
    EXPECT_EQ(field->textColor, Color::green);
    EXPECT_EQ(field->text.get(), "");
    EXPECT_FALSE(field->isFocused.get());
    EXPECT_TRUE(canvas.isEditingText());
}

TEST_F(CanvasText, the_field_that_appeared_brings_the_overlay_forward_and_takes_the_keyboard) {
    Window other({0, 0, 1, 1}, WindowStyleMask::borderless, BackingStoreType::buffered, false);
    Window overlay({0, 0, 1, 1}, WindowStyleMask::borderless, BackingStoreType::buffered, false);
    Window second({0, 0, 1, 1}, WindowStyleMask::borderless, BackingStoreType::buffered, false);
    overlay.setIdentifier(std::string(overlayWindowIdentifier));
    second.setIdentifier(std::string(overlayWindowIdentifier));
    canvas.mouseDown({70, 80});
    canvas.textField()->onAppear();
    EXPECT_EQ(host.application.activations, 0);
    host.mainQueue.run();
    EXPECT_EQ(host.application.activations, 1);
    EXPECT_TRUE(host.application.ignoredOtherApps);
    EXPECT_EQ(host.windows.calls.back(), "makeKeyAndOrderFront");
    EXPECT_TRUE(overlay.isVisible());
    EXPECT_FALSE(other.isVisible());
    EXPECT_FALSE(second.isVisible()) << "the first overlay window is the one";
    EXPECT_TRUE(canvas.isTextFieldFocused());
}

TEST_F(CanvasText, a_field_that_is_to_take_the_keyboard_asks_to_be_brought_up_to_date) {
    canvas.mouseDown({70, 80});
    canvas.textField()->onAppear();
    const int before = textFieldChanges;
    host.mainQueue.run();
    EXPECT_GT(textFieldChanges, before);
}

TEST_F(CanvasText, a_committed_text_takes_colour_and_width_of_the_moment) {
    typeAt({70, 80}, "Hello");
    canvas.selectedColor = Color(0.1, 0.2, 0.3, 0.4);
    canvas.lineWidth = 7;
    canvas.textField()->onSubmit();
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_EQ(completed[0].color, CodableColor(Color(0.1, 0.2, 0.3, 0.4)));
    EXPECT_EQ(completed[0].lineWidth, 7);
    EXPECT_FALSE(completed[0].shapeRect || completed[0].shapeStartPoint ||
                 completed[0].shapeEndPoint);
}

TEST_F(CanvasText, with_its_field_the_keyboard_goes_too) {
    typeAt({70, 80}, "Hello");
    ASSERT_TRUE(canvas.isTextFieldFocused());
    canvas.textField()->onSubmit();
    EXPECT_FALSE(canvas.isTextFieldFocused());
}

TEST_F(CanvasText, return_commits_what_was_typed_where_the_press_began) {
    typeAt({70, 80}, "Hello");
    canvas.textField()->onSubmit();
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_EQ(completed[0].tool, DrawingTool::text);
    EXPECT_EQ(completed[0].textContent, "Hello");
    EXPECT_EQ(completed[0].fontSize, 24);
    EXPECT_FALSE(completed[0].isShape);
    EXPECT_FALSE(completed[0].shapeType);
    EXPECT_EQ(completed[0].cgPoints(), (std::vector<CGPoint>{{70, 80}}));
    EXPECT_FALSE(canvas.textField());
    EXPECT_FALSE(canvas.textPosition());
    EXPECT_EQ(canvas.textContent(), "");
}

TEST_F(CanvasText, escape_keeps_what_was_typed) {
    typeAt({70, 80}, "Hello");
    canvas.textField()->onExitCommand();
    EXPECT_EQ(completed.size(), 1U);
}

TEST_F(CanvasText, the_loss_of_the_keyboard_commits_once) {
    typeAt({70, 80}, "Hello");
    canvas.textField()->isFocused.set(false);
    EXPECT_EQ(completed.size(), 1U);
    canvas.setTextFieldFocused(false);
    EXPECT_EQ(completed.size(), 1U);
}

TEST_F(CanvasText, the_focus_can_be_changed_in_place_too) {
    typeAt({70, 80}, "Hello");
    canvas.textField()->isFocused.modify([](bool& isFocused) { isFocused = !isFocused; });
    EXPECT_EQ(completed.size(), 1U);
}

TEST_F(CanvasText, an_empty_field_goes_without_a_stroke) {
    typeAt({70, 80}, "");
    canvas.textField()->onSubmit();
    EXPECT_TRUE(completed.empty());
    EXPECT_FALSE(canvas.isEditingText());
}

TEST_F(CanvasText, blanks_alone_are_committed_as_they_stand) {
    typeAt({70, 80}, "  ");
    canvas.textField()->onSubmit();
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_EQ(completed[0].textContent, "  ");
}

TEST_F(CanvasText, another_reset_number_drops_the_text_and_the_later_loss_commits_nothing) {
    typeAt({70, 80}, "Hello");
    canvas.setTextEditorResetID(1);
    EXPECT_FALSE(canvas.isEditingText());
    canvas.setTextFieldFocused(false);
    EXPECT_TRUE(completed.empty());
}

TEST_F(CanvasText, the_same_reset_number_changes_nothing) {
    typeAt({70, 80}, "Hello");
    canvas.setTextEditorResetID(0);
    EXPECT_TRUE(canvas.isEditingText());
}

TEST_F(CanvasText, one_reset_number_drops_one_text) {
    canvas.setTextEditorResetID(1);
    typeAt({70, 80}, "Hello");
    canvas.setTextEditorResetID(1);
    EXPECT_TRUE(canvas.isEditingText());
}

TEST_F(CanvasText, the_owner_hears_of_the_field_as_it_comes_and_goes) {
    canvas.mouseDown({70, 80});
    EXPECT_EQ(textFieldChanges, 1);
    canvas.textField()->onSubmit();
    EXPECT_EQ(textFieldChanges, 2);
}

TEST_F(CanvasText, a_click_elsewhere_commits_and_starts_nothing) {
    typeAt({70, 80}, "Hello");
    canvas.mouseDown({300, 300});
    canvas.mouseDragged({310, 310});
    canvas.mouseUp({310, 310});
    ASSERT_EQ(completed.size(), 1U);
    EXPECT_EQ(completed[0].cgPoints(), (std::vector<CGPoint>{{70, 80}}));
    EXPECT_FALSE(canvas.isEditingText());
    EXPECT_FALSE(current());
}

TEST_F(CanvasText, back_at_its_start_a_drag_opens_the_field_anew) {
    canvas.mouseDown({70, 80});
    const int first = canvas.textField()->identity;
    canvas.mouseDragged({90, 90});
    EXPECT_EQ(canvas.textField()->identity, first);
    canvas.textField()->text.set("Hello");
    canvas.mouseDragged({70, 80});
    EXPECT_NE(canvas.textField()->identity, first);
    EXPECT_EQ(canvas.textField()->text.get(), "");
}

TEST_F(CanvasText, the_whiteboard_flag_changes_nothing) {
    canvas.isWhiteboardMode = true;
    typeAt({70, 80}, "Hello");
    canvas.textField()->onSubmit();
    EXPECT_EQ(completed.size(), 1U);
}

} // namespace quillon::test
