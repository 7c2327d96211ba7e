#include "desktop/qt/PaletteFixture.h"

#include <QAbstractButton>
#include <QMenu>

namespace quillon::test {
namespace {

/// The palette's menus and its popover, worked by keys alone.
class PaletteKeyboard : public PaletteTest {
protected:
    void open(Control control) {
        button(control).setFocus(Qt::TabFocusReason);
        QTest::keyClick(&button(control), Qt::Key_Space);
        settle();
        ASSERT_TRUE(popup());
    }
    static QString focused() {
        const QWidget* focus = popup()->focusWidget();
        return focus ? focus->accessibleName() : QString();
    }
    static QString activeEntry() {
        const QAction* active = qobject_cast<QMenu*>(popup())->activeAction();
        return active ? active->text() : QString();
    }
    static QString nameOf(const Color& color) { return QString::fromStdString(colorHex(color)); }
};

TEST_F(PaletteKeyboard, the_tool_menu_starts_at_the_current_tool) {
    selectedTool = DrawingTool::eraser;
    settle();
    open(tool);
    EXPECT_EQ(activeEntry(), "Eraser");
    type(Qt::Key_Down);
    type(Qt::Key_Return);
    EXPECT_EQ(selectedTool, DrawingTool::text);
    EXPECT_EQ(popup(), nullptr);
}

TEST_F(PaletteKeyboard, the_colour_menu_starts_at_the_current_colour_and_the_arrows_go_round) {
    open(color);
    EXPECT_EQ(focused(), nameOf(Color::cyan));
    type(Qt::Key_Right);
    EXPECT_EQ(focused(), nameOf(Color::purple));
    type(Qt::Key_Right);
    EXPECT_EQ(focused(), nameOf(Color::purple));
    type(Qt::Key_Left);
    type(Qt::Key_Left);
    EXPECT_EQ(focused(), nameOf(Color::green));
    type(Qt::Key_Down);
    EXPECT_EQ(focused(), nameOf(Color::yellow));
    type(Qt::Key_Down);
    EXPECT_EQ(focused(), nameOf(Color::purple));
    type(Qt::Key_Return);
    EXPECT_EQ(popup(), nullptr);
    EXPECT_EQ(selectedColor, Color::purple);
}

TEST_F(PaletteKeyboard, the_last_entry_of_the_colour_menu_is_reached_and_left_both_ways) {
    open(color);
    type(Qt::Key_Down);
    type(Qt::Key_Down);
    type(Qt::Key_Down);
    EXPECT_EQ(activeEntry(), "Custom Color...");
    type(Qt::Key_Up);
    EXPECT_EQ(activeEntry(), QString());
    EXPECT_EQ(focused(), nameOf(Color::blue));
    type(Qt::Key_Down);
    type(Qt::Key_Down);
    EXPECT_EQ(focused(), nameOf(Color::red));
    type(Qt::Key_Up);
    EXPECT_EQ(activeEntry(), "Custom Color...");
    type(Qt::Key_Return);
    EXPECT_TRUE(view->showColorPicker());
    type(Qt::Key_Escape);
}

TEST_F(PaletteKeyboard, tab_goes_through_every_swatch_and_back) {
    open(color);
    type(Qt::Key_Tab);
    type(Qt::Key_Tab);
    EXPECT_EQ(focused(), nameOf(Color::red));
    type(Qt::Key_Backtab);
    EXPECT_EQ(focused(), nameOf(Color::purple));
    for (int step = 0; step < 15; ++step) {
        type(Qt::Key_Tab);
    }
    EXPECT_EQ(activeEntry(), "Custom Color...");
    type(Qt::Key_Backtab);
    EXPECT_EQ(focused(), nameOf(Color::black));
    type(Qt::Key_Escape);
}

TEST_F(PaletteKeyboard, the_width_menu_starts_at_the_slider_and_leads_to_the_presets) {
    open(width);
    EXPECT_EQ(focused(), "Line Width");
    type(Qt::Key_Right);
    EXPECT_EQ(lineWidth, 5);
    type(Qt::Key_Down);
    type(Qt::Key_Right);
    type(Qt::Key_Space);
    EXPECT_EQ(popup(), nullptr);
    EXPECT_GT(lineWidth, 5);
}

TEST_F(PaletteKeyboard, a_menu_opened_by_the_pointer_takes_keys_too) {
    ASSERT_TRUE(openMenu(color));
    EXPECT_EQ(focused(), QString());
    type(Qt::Key_Down);
    EXPECT_EQ(focused(), nameOf(Color::red));
    type(Qt::Key_Escape);
    EXPECT_EQ(popup(), nullptr);
}

TEST_F(PaletteKeyboard, the_popover_is_worked_from_the_wheel_to_the_add_button) {
    selectedColor = Color(1, 0, 0);
    ASSERT_TRUE(openPopover());
    type(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Hue and saturation");
    type(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Brightness");
    type(Qt::Key_Left);
    EXPECT_EQ(selectedColor, Color(0.99, 0, 0));
    type(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Opacity");
    for (const Color& quick : {Color::red, Color::yellow, Color::green, Color::cyan}) {
        type(Qt::Key_Tab);
        EXPECT_EQ(focused(), nameOf(quick));
    }
    type(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Add the current colour");
    type(Qt::Key_Space);
    ASSERT_EQ(quickColors.size(), 6U);
    // The keyboard stays at the add button, which has moved on.
    EXPECT_EQ(focused(), "Add the current colour");
    type(Qt::Key_Space);
    EXPECT_EQ(quickColors.size(), 7U);
    type(Qt::Key_Escape);
    EXPECT_EQ(popup(), nullptr);
}

} // namespace
} // namespace quillon::test
