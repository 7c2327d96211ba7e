#include "desktop/qt/ColorScheme.h"
#include "desktop/qt/SettingsLaidOut.h"

#include <QAccessible>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QTest>

namespace quillon::test {

using namespace desktop;

namespace {

/// The settings as they look, and as they are handled.
struct SettingsLooks : SettingsLaidOut {
    QLabel* label(const QString& text) {
        for (auto* candidate : widget->findChildren<QLabel*>()) {
            if (candidate->text() == text) {
                return candidate;
            }
        }
        ADD_FAILURE() << "there is no text " << text.toStdString();
        return nullptr;
    }
    QAbstractButton* recorder(const QString& action) {
        return control<QAbstractButton>("Record keyboard shortcut", action);
    }
    /// Begins a recording and types one key.
    void record(const QString& action, const KeyEvent& pressed) {
        QTest::mouseClick(recorder(action), Qt::LeftButton);
        turn();
        key = pressed;
        QTest::keyClick(recorder(action), Qt::Key_K);
        turn();
    }
    QMessageBox* alert() { return widget->findChild<QMessageBox*>(); }
    static QColor middle(QWidget* part) {
        return part->grab().toImage().pixelColor(part->width() / 2, part->height() / 2);
    }
};

/// The palette of the application for the length of a test.
struct DarkPalette {
    DarkPalette() { QGuiApplication::setPalette(ColorScheme::darkPalette(before)); }
    ~DarkPalette() { QGuiApplication::setPalette(before); }

    QPalette before = QGuiApplication::palette();
};

} // namespace

TEST_F(SettingsLooks, sliders_and_their_values_are_as_wide_as_their_rows_say) {
    show(SettingsTab::annotation);
    EXPECT_EQ(control<QSlider>("Line Width")->width(), 200);
    EXPECT_EQ(label("4pt")->width(), 40);
    show(SettingsTab::cursor);
    EXPECT_EQ(control<QSlider>("Halo Size")->width(), 150);
    EXPECT_EQ(label("40")->width(), 40);
    show(SettingsTab::spotlight);
    EXPECT_EQ(control<QSlider>("Dimming Intensity")->width(), 150);
    EXPECT_EQ(label("70%")->width(), 50);
    EXPECT_EQ(label("200pt")->width(), 60);
}

TEST_F(SettingsLooks, a_picker_opens_a_menu_at_its_chosen_entry_and_takes_another) {
    settings().autoEraseTimer = AutoEraseTimer::fiveSeconds;
    show(SettingsTab::annotation);
    auto* picker = control<QComboBox>("Auto-Erase");
    QTest::mouseClick(picker, Qt::LeftButton);
    turn();
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    ASSERT_EQ(menu->actions().size(), picker->count());
    for (int index = 0; index < picker->count(); ++index) {
        EXPECT_EQ(menu->actions().at(index)->text(), picker->itemText(index));
        EXPECT_EQ(menu->actions().at(index)->isChecked(), index == picker->currentIndex());
    }
    ASSERT_TRUE(menu->activeAction());
    EXPECT_EQ(menu->activeAction()->text(), "5 Seconds");
    const QPoint chosen = menu->mapToGlobal(menu->actionGeometry(menu->activeAction()).center());
    EXPECT_NEAR(chosen.y(), picker->mapToGlobal(picker->rect().center()).y(), 1);
    EXPECT_GE(menu->width(), picker->width());

    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    turn();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(settings().autoEraseTimer.get(), AutoEraseTimer::tenSeconds);
    EXPECT_EQ(picker->currentText(), "10 Seconds");
}

TEST_F(SettingsLooks, a_recorder_is_a_button_of_132_by_28) {
    show(SettingsTab::hotkeys);
    auto* undo = recorder("Undo");
    EXPECT_EQ(undo->size(), QSize(132, 28));
    auto* face = QAccessible::queryAccessibleInterface(undo);
    ASSERT_TRUE(face);
    EXPECT_EQ(face->role(), QAccessible::Button);
}

TEST_F(SettingsLooks, a_text_turns_light_when_the_desktop_turns_dark) {
    for (const auto& [tab, text] :
         {std::pair<SettingsTab, QString>{SettingsTab::hotkeys, "Not set"},
          {SettingsTab::hotkeys, "⌘⇧S"},
          {SettingsTab::about, "Menu Bar Utility"},
          {SettingsTab::about, "Quillon Mark"}}) {
        show(tab);
        EXPECT_LT(label(text)->palette().color(QPalette::WindowText).lightness(), 100);
        const DarkPalette dark;
        turn();
        EXPECT_GT(label(text)->palette().color(QPalette::WindowText).lightness(), 150)
            << text.toStdString();
    }
    turn();
    EXPECT_LT(label("Quillon Mark")->palette().color(QPalette::WindowText).lightness(), 100);
}

TEST_F(SettingsLooks, a_click_on_the_halo_color_does_nothing) {
    show(SettingsTab::cursor);
    auto* circle = control<QWidget>("Halo Color");
    EXPECT_EQ(circle->size(), QSize(24, 24));
    host.userDefaults.writes.clear();
    QTest::mouseClick(circle, Qt::LeftButton);
    QTest::mouseDClick(circle, Qt::LeftButton);
    turn();
    EXPECT_TRUE(host.userDefaults.writes.empty());
    EXPECT_FALSE(widget->findChild<QColorDialog*>());
    EXPECT_EQ(circle->focusPolicy(), Qt::NoFocus);
}

TEST_F(SettingsLooks, the_halo_color_is_shown_as_it_changes) {
    show(SettingsTab::cursor);
    auto* circle = control<QWidget>("Halo Color");
    settings().haloColor = Color(0, 1, 0, 1);
    turn();
    EXPECT_EQ(middle(circle), QColor(0, 255, 0));
}

TEST_F(SettingsLooks, a_color_with_opacity_can_be_chosen_in_the_swatch) {
    show(SettingsTab::annotation);
    auto* swatch = control<QAbstractButton>("Default Color");
    swatch->click();
    turn();
    auto* panel = widget->findChild<QColorDialog*>();
    ASSERT_TRUE(panel);
    EXPECT_TRUE(panel->testOption(QColorDialog::ShowAlphaChannel));
    panel->setCurrentColor(QColor(255, 0, 0, 51));
    turn();
    EXPECT_EQ(settings().selectedColor.get(), Color(1, 0, 0, 0.2));

    settings().selectedColor = Color(0, 0, 1, 1);
    turn();
    EXPECT_EQ(panel->currentColor(), QColor(0, 0, 255));
    EXPECT_EQ(middle(swatch), QColor(0, 0, 255));
}

TEST_F(SettingsLooks, a_color_of_the_panel_loses_nothing_on_its_way_into_the_store) {
    show(SettingsTab::annotation);
    control<QAbstractButton>("Default Color")->click();
    turn();
    auto* panel = widget->findChild<QColorDialog*>();
    ASSERT_TRUE(panel);
    for (int part = 0; part < 256; ++part) {
        panel->setCurrentColor(QColor(part, part, part, part));
        const Color chosen = settings().selectedColor;
        EXPECT_EQ(chosen, Color(part / 255.0, part / 255.0, part / 255.0, part / 255.0));
    }
}

TEST_F(SettingsLooks, a_recording_shows_in_its_title_and_ends_with_the_new_shortcut) {
    show(SettingsTab::hotkeys);
    record("Undo", {40, NSEventModifierFlags::control, false});
    EXPECT_EQ(settings().hotkeys->at(HotkeyAction::undo).keyCode, 40U);
    EXPECT_TRUE(label("⌃K"));
    EXPECT_FALSE(alert());
}

TEST_F(SettingsLooks, an_assistive_tool_begins_a_recording_but_no_second_one) {
    show(SettingsTab::hotkeys);
    recorder("Undo")->click();
    turn();
    recorder("Redo")->click();
    turn();
    key = KeyEvent{40, NSEventModifierFlags::control, false};
    QTest::keyClick(recorder("Redo"), Qt::Key_K);
    EXPECT_FALSE(settings().hotkeys->contains(HotkeyAction::redo));
    QTest::keyClick(recorder("Undo"), Qt::Key_K);
    EXPECT_TRUE(settings().hotkeys->contains(HotkeyAction::undo));
}

TEST_F(SettingsLooks, a_key_while_no_row_records_goes_no_further) {
    show(SettingsTab::hotkeys);
    auto* undo = recorder("Undo");
    undo->setFocus();
    key = KeyEvent{49, 0, false};
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(undo, &press);
    EXPECT_TRUE(press.isAccepted());
    turn();
    EXPECT_FALSE(alert());
    EXPECT_FALSE(settings().hotkeys->contains(HotkeyAction::undo));
}

TEST_F(SettingsLooks, space_begins_a_recording_for_who_works_the_window_by_keys) {
    show(SettingsTab::hotkeys);
    auto* undo = recorder("Undo");
    undo->setFocus();
    widget->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    key = KeyEvent{49, 0, false};
    QTest::keyClick(undo, Qt::Key_Space);
    turn();
    EXPECT_FALSE(alert());
    key = KeyEvent{49, NSEventModifierFlags::control, false};
    QTest::keyClick(undo, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(settings().hotkeys->at(HotkeyAction::undo).keyCode, 49U);
}

TEST_F(SettingsLooks, a_refusal_shows_its_title_its_message_and_one_button) {
    show(SettingsTab::hotkeys);
    record("Undo", {40, 0, false});
    ASSERT_TRUE(alert());
    EXPECT_TRUE(alert()->text().contains("Shortcut Not Set"));
    EXPECT_EQ(alert()->informativeText(),
              "Shortcuts must include at least one modifier key (⌘, ⇧, ⌥, or ⌃).");
    ASSERT_EQ(alert()->buttons().size(), 1);
    EXPECT_EQ(alert()->buttons().front()->text(), "OK");
    alert()->buttons().front()->click();
    turn();
    EXPECT_FALSE(alert() && alert()->isVisible());
}

} // namespace quillon::test
