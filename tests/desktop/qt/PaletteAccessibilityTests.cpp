#include "desktop/qt/PaletteFixture.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QSlider>

namespace quillon::test {
namespace {

using PaletteAccessibility = PaletteTest;

QAccessible::Role roleOf(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->role();
}
QString nameOf(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

TEST_F(PaletteAccessibility, the_palette_is_a_tool_bar_of_named_buttons) {
    EXPECT_EQ(roleOf(palette), QAccessible::ToolBar);
    EXPECT_EQ(nameOf(palette), "Annotation palette");
    const QStringList names{"Pen", "Color", "4pt", "Whiteboard", "Undo", "Redo", "Clear"};
    for (const Control control : {tool, color, width, whiteboard, undo, redo, clear}) {
        EXPECT_EQ(nameOf(button(control)), names[control]);
        EXPECT_EQ(roleOf(button(control)),
                  control <= width ? QAccessible::ButtonMenu : QAccessible::Button);
    }
}

TEST_F(PaletteAccessibility, the_buttons_tell_what_they_open_what_is_on_and_what_is_dead) {
    const auto state = [this](Control control) {
        return QAccessible::queryAccessibleInterface(&button(control))->state();
    };
    EXPECT_TRUE(state(color).hasPopup);
    EXPECT_TRUE(state(undo).disabled);
    EXPECT_FALSE(state(clear).disabled);
    EXPECT_FALSE(state(whiteboard).checked);
    isWhiteboardMode = true;
    settle();
    EXPECT_TRUE(state(whiteboard).checked);
    EXPECT_FALSE(state(clear).checked);
}

TEST_F(PaletteAccessibility, a_press_by_an_assistive_tool_works_like_a_click) {
    const auto press = [this](Control control) {
        QAccessible::queryAccessibleInterface(&button(control))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
    };
    press(clear);
    // The toolkit shows the press for a moment.
    EXPECT_TRUE(QTest::qWaitFor([this] { return calls == std::vector<std::string>{"clear"}; }));
    press(color);
    EXPECT_TRUE(popup());
    type(Qt::Key_Escape);
}

TEST_F(PaletteAccessibility, a_slider_tells_its_value_and_not_its_position) {
    auto* slider = openMenu(width)->findChild<QSlider*>();
    auto* interface = QAccessible::queryAccessibleInterface(slider);
    EXPECT_EQ(interface->role(), QAccessible::Slider);
    EXPECT_EQ(interface->text(QAccessible::Name), "Line Width");
    auto* value = interface->valueInterface();
    ASSERT_TRUE(value);
    EXPECT_EQ(value->minimumValue(), 1);
    EXPECT_EQ(value->maximumValue(), 30);
    EXPECT_EQ(value->currentValue(), 4);
    value->setCurrentValue(12);
    EXPECT_EQ(lineWidth, 12);
    type(Qt::Key_Escape);
}

TEST_F(PaletteAccessibility, every_control_of_the_popover_has_a_name_and_a_role) {
    const QWidget* popover = openPopover();
    int controls = 0;
    for (QWidget* child : popover->findChildren<QWidget*>()) {
        if (child->focusPolicy() != Qt::NoFocus) {
            EXPECT_FALSE(nameOf(*child).isEmpty());
            EXPECT_NE(roleOf(*child), QAccessible::Client) << nameOf(*child).toStdString();
            ++controls;
        }
    }
    // The wheel, two sliders, four colours and the add button.
    EXPECT_EQ(controls, 8);
    type(Qt::Key_Escape);
    settle();
}

TEST_F(PaletteAccessibility, every_swatch_has_a_name_and_a_role) {
    const auto swatches = openMenu(color)->findChildren<QAbstractButton*>();
    EXPECT_EQ(swatches.size(), 19);
    for (QAbstractButton* swatch : swatches) {
        EXPECT_FALSE(nameOf(*swatch).isEmpty());
        EXPECT_NE(roleOf(*swatch), QAccessible::Client);
    }
    type(Qt::Key_Escape);
}

TEST_F(PaletteAccessibility, every_preset_has_a_name_and_a_role) {
    const auto presets = openMenu(width)->findChildren<QAbstractButton*>();
    ASSERT_EQ(presets.size(), 6);
    EXPECT_EQ(nameOf(*presets.at(3)), "8 points");
    EXPECT_EQ(roleOf(*presets.at(3)), QAccessible::Button);
    type(Qt::Key_Escape);
}

} // namespace
} // namespace quillon::test
