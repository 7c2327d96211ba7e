#include "desktop/qt/PaletteFixture.h"

#include <QCursor>
#include <QEnterEvent>

namespace quillon::test {

using desktop::ToolbarButtonWidget;

namespace {

using Palette = PaletteTest;

void enter(QWidget& widget) {
    QCursor::setPos(widget.mapToGlobal(widget.rect().center()));
    QEnterEvent event(widget.rect().center(), widget.rect().center(), QCursor::pos());
    QCoreApplication::sendEvent(&widget, &event);
}

void leave(QWidget& widget) {
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(&widget, &event);
}

TEST_F(Palette, the_row_stands_as_it_is_described) {
    const QPoint corner = palette.body().topLeft().toPoint();
    int x = corner.x() + 12;
    // What lies between two controls: a space, a divider and a space, and nothing in a group.
    const int gap = 8 + 1 + 8;
    for (const Control control : {tool, color, width, whiteboard, undo, redo, clear}) {
        EXPECT_EQ(button(control).geometry(), QRect(x, corner.y() + 8, 50, 44)) << control;
        x += 50 + (control == undo ? 0 : gap);
    }
    EXPECT_EQ(palette.body().size(), QSizeF(x - gap + 12 - corner.x(), 8 + 44 + 8));
}

TEST_F(Palette, undo_and_redo_without_history_ignore_clicks_and_their_keys) {
    QTest::mouseClick(&button(undo), Qt::LeftButton);
    QTest::mouseClick(&button(redo), Qt::LeftButton);
    QTest::keyClick(&palette, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&palette, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(calls.empty());

    view->setHistory(true, true);
    settle();
    QTest::mouseClick(&button(undo), Qt::LeftButton);
    QTest::mouseClick(&button(redo), Qt::LeftButton);
    EXPECT_EQ(calls, (std::vector<std::string>{"undo", "redo"}));
}

TEST_F(Palette, a_key_is_heard_that_comes_before_the_update_for_its_button) {
    view->setHistory(true, true);
    QTest::keyClick(&palette, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&palette, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(calls, (std::vector<std::string>{"undo", "redo"}));
}

TEST_F(Palette, a_tool_picked_under_the_pointer_takes_the_hover_away_until_it_comes_again) {
    enter(button(tool));
    settle();
    QWidget* menu = openMenu(tool);
    ASSERT_TRUE(menu);
    // The toolkit takes the pointer away for the menu and brings it back.
    leave(button(tool));
    EXPECT_EQ(view->hoverItem(), FloatingToolbarView::ToolbarItem::tool(DrawingTool::pen));
    type(Qt::Key_Down);
    type(Qt::Key_Down);
    type(Qt::Key_Return);
    enter(button(tool));
    settle();
    EXPECT_EQ(selectedTool, DrawingTool::highlighter);
    EXPECT_FALSE(std::get<PaletteControl>(view->row().children[0]).button.isHovered);
    leave(button(tool));
    enter(button(tool));
    EXPECT_TRUE(std::get<PaletteControl>(view->row().children[0]).button.isHovered);
}

TEST_F(Palette, a_menu_that_closes_with_the_pointer_elsewhere_leaves_nothing_hovered) {
    enter(button(width));
    ASSERT_TRUE(openMenu(width));
    leave(button(width));
    QCursor::setPos(1500, 800);
    type(Qt::Key_Escape);
    EXPECT_EQ(popup(), nullptr);
    EXPECT_EQ(view->hoverItem(), std::nullopt);
}

TEST_F(Palette, menus_open_below_and_above_where_there_is_no_room) {
    const QWidget* below = openMenu(tool);
    ASSERT_TRUE(below);
    EXPECT_GE(below->y(), button(tool).mapToGlobal(QPoint(0, 44)).y());
    type(Qt::Key_Escape);
    placeAt({800, 860});
    const QWidget* above = openMenu(tool);
    ASSERT_TRUE(above);
    EXPECT_LE(above->geometry().bottom(), button(tool).mapToGlobal(QPoint(0, 0)).y());
    EXPECT_GE(above->y(), 0);
    type(Qt::Key_Escape);
}

TEST_F(Palette, the_popover_is_on_the_screen_as_a_whole_wherever_the_palette_stands) {
    for (const QPointF place : {QPointF(800, 50), QPointF(800, 450), QPointF(800, 880),
                                QPointF(0, 450), QPointF(10, 890), QPointF(1590, 890)}) {
        placeAt(place);
        const QWidget* popover = openPopover();
        ASSERT_TRUE(popover);
        EXPECT_TRUE(QRect(0, 0, 1600, 900).contains(popover->geometry()))
            << place.x() << " " << place.y();
        type(Qt::Key_Escape);
        settle();
    }
}

TEST_F(Palette, the_popover_hangs_below_the_palette_and_above_it_at_the_lower_edge) {
    const auto body = [this] {
        return palette.body().translated(palette.mapToGlobal(QPointF(0, 0)));
    };
    EXPECT_EQ(openPopover()->y(), qRound(body().bottom()));
    EXPECT_EQ(popup()->geometry().center().x(), qRound(body().center().x()) - 1);
    EXPECT_GE(popup()->width(), 280);
    EXPECT_GE(popup()->height(), 350);
    type(Qt::Key_Escape);
    settle();
    EXPECT_FALSE(view->showColorPicker());
    placeAt({800, 860});
    EXPECT_EQ(openPopover()->geometry().bottom() + 1, qRound(body().top()));
    type(Qt::Key_Escape);
    settle();
}

TEST_F(Palette, the_focus_shows_again_after_a_menu_that_was_opened_by_key) {
    settle();
    const QImage without = button(width).grab().toImage();
    button(width).setFocus(Qt::TabFocusReason);
    settle();
    const QImage before = button(width).grab().toImage();
    ASSERT_NE(before, without);
    QTest::keyClick(&button(width), Qt::Key_Space);
    settle();
    ASSERT_TRUE(popup());
    type(Qt::Key_Escape);
    settle();
    EXPECT_TRUE(button(width).hasFocus());
    EXPECT_EQ(button(width).grab().toImage(), before);
}

} // namespace
} // namespace quillon::test
