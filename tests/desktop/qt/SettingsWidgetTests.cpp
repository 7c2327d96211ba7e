#include "desktop/qt/SettingsLaidOut.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>

namespace quillon::test {

namespace {

constexpr auto kTabs = allCases<SettingsTab>();

} // namespace

TEST_F(SettingsLaidOut, looking_at_every_tab_writes_nothing) {
    host.userDefaults.writes.clear();
    for (const SettingsTab tab : kTabs) {
        show(tab);
        EXPECT_EQ(view.selectedTab(), tab);
    }
    EXPECT_TRUE(host.userDefaults.writes.empty());
}

TEST_F(SettingsLaidOut, a_change_made_elsewhere_is_shown_by_the_same_widgets_and_written_once) {
    show(SettingsTab::annotation);
    auto* slider = control<QSlider>("Line Width");
    auto* picker = control<QComboBox>("Auto-Erase");
    auto* whiteboard = control<QCheckBox>("Enable Whiteboard Mode");
    const auto before = widget->findChildren<QWidget*>();
    host.userDefaults.writes.clear();
    settings().lineWidth = 12.0;
    settings().autoEraseTimer = AutoEraseTimer::fiveSeconds;
    settings().isWhiteboardMode = true;
    turn();
    EXPECT_EQ(slider->value(), 11);
    EXPECT_EQ(picker->currentText(), "5 Seconds");
    EXPECT_TRUE(whiteboard->isChecked());
    EXPECT_EQ(widget->findChildren<QWidget*>(), before);
    EXPECT_EQ(host.userDefaults.writes,
              (std::vector<std::string>{"lineWidth", "autoEraseTimer", "isWhiteboardMode"}));
    EXPECT_FALSE(settings().isAnnotationEnabled);
}

TEST_F(SettingsLaidOut, a_value_that_no_stop_has_is_shown_and_stays_as_it_is) {
    settings().zoomWindowOffsetX = 300.0;
    settings().zoomWindowOffsetY = 7.0;
    show(SettingsTab::spotlight);
    settings().spotlightRadius = 33.0;
    turn();
    EXPECT_EQ(control<QSlider>("Offset X (Right)")->value(), 40);
    EXPECT_EQ(settings().zoomWindowOffsetX.get(), 300);
    EXPECT_EQ(settings().zoomWindowOffsetY.get(), 7);
    EXPECT_EQ(settings().spotlightRadius.get(), 33);
    control<QSlider>("Offset X (Right)")->setValue(39);
    EXPECT_EQ(settings().zoomWindowOffsetX.get(), 195);
}

TEST_F(SettingsLaidOut, after_a_reset_every_control_on_show_has_its_default) {
    settings().showFloatingToolbar = false;
    settings().selectedTool = DrawingTool::arrow;
    turn();
    EXPECT_FALSE(control<QCheckBox>("Show Floating Toolbar")->isChecked());
    ASSERT_EQ(widget->actions().size(), 1);
    EXPECT_EQ(widget->actions().front()->toolTip(), "Reset all settings to defaults");
    widget->actions().front()->trigger();
    turn();
    EXPECT_TRUE(control<QCheckBox>("Show Floating Toolbar")->isChecked());
    EXPECT_EQ(control<QComboBox>("Default Tool")->currentText(), "Pen");
}

TEST_F(SettingsLaidOut, every_control_that_takes_the_keyboard_has_a_name) {
    for (const SettingsTab tab : kTabs) {
        show(tab);
        int count = 0;
        for (auto* child : widget->findChildren<QWidget*>()) {
            if ((child->focusPolicy() & Qt::TabFocus) == 0 || !child->isVisible()) {
                continue;
            }
            const auto* button = qobject_cast<QAbstractButton*>(child);
            EXPECT_TRUE(!child->accessibleName().isEmpty() || (button && !button->text().isEmpty()))
                << rawValue(tab) << ": " << child->metaObject()->className();
            ++count;
        }
        EXPECT_GE(count, 1) << rawValue(tab);
    }
}

TEST_F(SettingsLaidOut, every_form_fits_without_scrolling_and_no_text_is_cut_off) {
    settings().zoomWindowOffsetX = 300.0;
    settings().lineWidth = 30.0;
    for (const SettingsTab tab : kTabs) {
        show(tab);
        if (const auto* form = widget->findChild<QScrollArea*>()) {
            EXPECT_EQ(form->verticalScrollBar()->maximum(), 0) << rawValue(tab);
        }
        for (const auto* label : widget->findChildren<QLabel*>()) {
            EXPECT_GE(label->contentsRect().width(),
                      QFontMetrics(label->font()).horizontalAdvance(label->text()))
                << label->text().toStdString();
            EXPECT_GE(label->contentsRect().height(), QFontMetrics(label->font()).ascent())
                << label->text().toStdString();
        }
    }
}

TEST_F(SettingsLaidOut, a_shortcut_that_is_cleared_loses_its_button_at_once) {
    show(SettingsTab::hotkeys);
    QAbstractButton* clear = nullptr;
    for (auto* button : widget->findChildren<QAbstractButton*>()) {
        if (button->text() == "Clear" && button->accessibleDescription() == "Toggle Annotation") {
            clear = button;
        }
    }
    ASSERT_TRUE(clear);
    EXPECT_TRUE(clear->isVisible());
    clear->click();
    turn();
    EXPECT_FALSE(clear->isVisible());
    EXPECT_FALSE(settings().hotkeys->contains(HotkeyAction::toggleAnnotation));
}

TEST_F(SettingsLaidOut, what_changes_after_the_widget_is_gone_concerns_nobody) {
    settings().lineWidth = 9.0;
    widget.reset();
    settings().lineWidth = 10.0;
    turn();
    EXPECT_EQ(settings().lineWidth.get(), 10);
}

} // namespace quillon::test
