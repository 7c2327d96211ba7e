#include "desktop/qt/PaletteFixture.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QMenu>

#include <algorithm>

namespace quillon::test {
namespace {

class Popover : public PaletteTest {
protected:
    Popover() {
        selectedColor = Color(1, 0, 0);
        m_popover = openPopover();
    }

    QWidget& wheel() {
        const auto children = m_popover->findChildren<QWidget*>();
        return **std::find_if(children.begin(), children.end(), [](const QWidget* child) {
            return child->accessibleName() == "Hue and saturation";
        });
    }
    /// The square of the wheel lies in the middle of its widget.
    QPoint inWheel(int x, int y) { return {(wheel().width() - 150) / 2 + x, y}; }

    QMenu* openContextMenu(QWidget& at) {
        const QPoint center = at.rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, center, at.mapToGlobal(center));
        QCoreApplication::sendEvent(&at, &event);
        return qobject_cast<QMenu*>(popup());
    }
    QList<QAbstractButton*> quickButtons() { return m_popover->findChildren<QAbstractButton*>(); }
    void pick(QMenu* menu, int entry) {
        QAction* action = menu->actions().at(entry);
        menu->close();
        action->trigger();
        settle();
    }

    QWidget* m_popover = nullptr;
};

TEST_F(Popover, the_wheel_is_150_points_wide_and_what_lies_beside_it_chooses_nothing) {
    EXPECT_EQ(wheel().height(), 150);
    QTest::mouseClick(&wheel(), Qt::LeftButton, Qt::NoModifier, inWheel(-10, 75));
    QTest::mouseClick(&wheel(), Qt::LeftButton, Qt::NoModifier, inWheel(160, 75));
    EXPECT_EQ(selectedColor, Color(1, 0, 0));
    QTest::mouseClick(&wheel(), Qt::LeftButton, Qt::NoModifier, inWheel(75, 149));
    EXPECT_NEAR(selectedColor.nsColor().getHueSaturationBrightnessAlpha().hue, 0.5, 0.01);
}

TEST_F(Popover, a_drag_that_began_in_the_wheel_goes_on_outside) {
    QTest::mousePress(&wheel(), Qt::LeftButton, Qt::NoModifier, inWheel(75, 75));
    QTest::mouseMove(&wheel(), inWheel(75, 400));
    EXPECT_NEAR(selectedColor.nsColor().getHueSaturationBrightnessAlpha().hue, 0.5, 0.01);
    QTest::mouseRelease(&wheel(), Qt::LeftButton, Qt::NoModifier, inWheel(75, 400));
    const Color released = selectedColor;
    QTest::mouseMove(&wheel(), inWheel(20, 20));
    EXPECT_EQ(selectedColor, released);
}

TEST_F(Popover, the_painted_hues_start_at_the_right_a_quarter_turn_from_the_chosen_ones) {
    const QImage picture = wheel().grab().toImage();
    const auto hueAt = [&](int x, int y) { return picture.pixelColor(inWheel(x, y)).hue(); };
    EXPECT_NEAR((hueAt(145, 75) + 10) % 360, 10, 6);
    EXPECT_NEAR(hueAt(75, 145), 90, 6);
    EXPECT_NEAR(hueAt(5, 75), 180, 6);
    // Hue 0 is chosen, and its marker stands at the top.
    EXPECT_NEAR(hueAt(75, 20), 270, 6);
}

TEST_F(Popover, a_quick_colour_is_removed_or_made_current_by_its_context_menu) {
    QMenu* menu = openContextMenu(*quickButtons().at(1));
    ASSERT_TRUE(menu);
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_EQ(menu->actions().at(0)->text(), "Remove");
    EXPECT_EQ(menu->actions().at(1)->text(), "Set as Current");
    pick(menu, 1);
    EXPECT_EQ(selectedColor, Color::yellow);
    pick(openContextMenu(*quickButtons().at(0)), 0);
    EXPECT_EQ(quickColors,
              (std::vector<Color>{Color::yellow, Color::green, Color::cyan, Color::purple}));
}

TEST_F(Popover, only_the_entry_that_removes_is_red) {
    QMenu* menu = openContextMenu(*quickButtons().at(0));
    ASSERT_TRUE(menu);
    const QImage picture = menu->grab().toImage();
    const auto hasRed = [&](int entry) {
        const QRect place = menu->actionGeometry(menu->actions().at(entry));
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                const QColor seen = picture.pixelColor(x, y);
                if (seen.red() - seen.green() > 100) {
                    return true;
                }
            }
        }
        return false;
    };
    EXPECT_TRUE(hasRed(0));
    EXPECT_FALSE(hasRed(1));
    type(Qt::Key_Escape);
}

TEST_F(Popover, the_last_colour_has_its_context_menu_through_the_add_button) {
    QMenu* menu = openContextMenu(*quickButtons().last());
    ASSERT_TRUE(menu);
    pick(menu, 0);
    EXPECT_EQ(quickColors.size(), 4U);
}

TEST_F(Popover, the_palette_may_go_with_the_popover_and_its_context_menu_open) {
    ASSERT_TRUE(openContextMenu(*quickButtons().at(0)));
    view->setShowColorPicker(false);
    settle();
    EXPECT_EQ(popup(), nullptr);
}

} // namespace
} // namespace quillon::test
