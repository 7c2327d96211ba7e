#include "desktop/qt/QtMenu.h"

#include "platform/Application.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QTest>

namespace quillon::test {

using namespace desktop;

namespace {

class NotingApplication : public Application, public ApplicationDelegate {
public:
    NotingApplication() { setDelegate(this); }

    void setActivationPolicy(ActivationPolicy) override {}
    void activate(bool) override {}
    void terminate() override { sent.push_back("terminated"); }

    void applicationDidFinishLaunching() override {}
    void applicationWillTerminate() override {}
    bool perform(std::string_view selector) override {
        if (selector == "terminate:") {
            return false;
        }
        sent.emplace_back(selector);
        return true;
    }

    std::vector<std::string> sent;
};

Menu someMenu() {
    return {"Title",
            {{"Draw & paint", "draw", "", {}, false},
             MenuItem::separator(),
             {"Preferences...", "openSettings", ",", KeyEquivalentModifiers::command, false},
             {"Quit", "terminate:", "q", KeyEquivalentModifiers::command, false}}};
}

} // namespace

TEST(QtMenu, entries_stand_in_order_with_their_titles) {
    NotingApplication application;
    const QtMenu menu(someMenu(), application);
    const auto entries = menu.actions();
    ASSERT_EQ(entries.size(), 4);
    EXPECT_EQ(entries[0]->text(), "Draw && paint");
    EXPECT_TRUE(entries[1]->isSeparator());
    EXPECT_EQ(entries[2]->text(), "Preferences...");
    EXPECT_EQ(entries[3]->text(), "Quit");
}

TEST(QtMenu, no_entry_shows_a_state_mark) {
    NotingApplication application;
    const QtMenu menu(someMenu(), application);
    for (const QAction* entry : menu.actions()) {
        EXPECT_FALSE(entry->isCheckable());
    }
}

TEST(QtMenu, an_entry_sends_its_action_up_the_responder_chain) {
    NotingApplication application;
    const QtMenu menu(someMenu(), application);
    menu.actions()[0]->trigger();
    menu.actions()[3]->trigger();
    EXPECT_EQ(application.sent, (std::vector<std::string>{"draw", "terminated"}));
}

TEST(QtMenu, key_equivalents_are_shown_with_control) {
    NotingApplication application;
    const QtMenu menu(someMenu(), application);
    EXPECT_EQ(menu.actions()[2]->shortcut(), QKeySequence("Ctrl+,"));
    EXPECT_EQ(menu.actions()[3]->shortcut(), QKeySequence("Ctrl+Q"));
    EXPECT_TRUE(menu.actions()[3]->isShortcutVisibleInContextMenu());
    EXPECT_TRUE(menu.actions()[0]->shortcut().isEmpty());
}

TEST(QtMenu, a_key_equivalent_works_in_the_open_menu_with_control_and_with_super) {
    NotingApplication application;
    QtMenu menu(someMenu(), application);
    menu.popup({10, 10});
    QTest::keyClick(&menu, Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(application.sent, std::vector<std::string>{"openSettings"});
    EXPECT_FALSE(menu.isVisible());
    menu.popup({10, 10});
    QTest::keyClick(&menu, Qt::Key_Q, Qt::MetaModifier);
    EXPECT_EQ(application.sent, (std::vector<std::string>{"openSettings", "terminated"}));
}

TEST(QtMenu, a_key_equivalent_without_its_modifier_does_nothing) {
    NotingApplication application;
    QtMenu menu(someMenu(), application);
    menu.popup({10, 10});
    QTest::keyClick(&menu, Qt::Key_Comma);
    EXPECT_TRUE(application.sent.empty());
    menu.close();
}

TEST(QtMenu, a_key_equivalent_does_nothing_while_the_menu_is_closed) {
    NotingApplication application;
    QtMenu menu(someMenu(), application);
    QWidget window;
    window.show();
    QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(application.sent.empty());
}

} // namespace quillon::test
