#include "desktop/qt/ContentWidget.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>

#include <memory>
#include <string>

namespace quillon::test {

using namespace desktop;

namespace {

/// A view that is nothing but a field, and remembers what stood in it when it was pressed.
class FieldView : public ContentView {
public:
    void layout(CGSize, CGFloat) override { setNeedsUpdate(); }
    void mouseDown(CGPoint) override { textAtPress = text; }
    void mouseDragged(CGPoint) override {}
    void mouseUp(CGPoint) override {}
    Damage takeDamage() override { return {}; }
    void paint(GraphicsContext&, const CGRect&) override {}
    std::optional<TextField> textField() override {
        return TextField{.identity = 1,
                         .center = {150, 50},
                         .width = 200,
                         .fontSize = 24,
                         .text = Binding<std::string>::to(text),
                         .isFocused = Binding<bool>::to(isFocused),
                         .onAppear = [] {},
                         .onSubmit = [] {},
                         .onExitCommand = [] {}};
    }

    std::string text;
    bool isFocused = true;
    std::string textAtPress = "not pressed";
};

class TextFieldTest : public testing::Test {
protected:
    TextFieldTest() {
        auto view = std::make_unique<FieldView>();
        m_view = view.get();
        m_widget.resize(300, 200);
        m_widget.setContentView(std::make_shared<HostingView>(std::move(view)));
        m_widget.show();
        QCoreApplication::sendPostedEvents();
    }

    /// What an input method does while a word is being composed: part of it is certain already.
    void compose(const QString& certain, const QString& composed) {
        QInputMethodEvent event(composed, {});
        event.setCommitString(certain);
        QCoreApplication::sendEvent(m_widget.findChild<QLineEdit*>(), &event);
    }
    void pressOutside() { QTest::mousePress(&m_widget, Qt::LeftButton, {}, {280, 180}); }
    const FieldView& view() const { return *m_view; }

private:
    FieldView* m_view = nullptr;
    ContentWidget m_widget{nullptr, [] {}};
};

} // namespace

TEST_F(TextFieldTest, what_is_still_being_composed_is_text_by_the_time_of_a_press_outside) {
    compose("ka", "nji");
    EXPECT_EQ(view().text, "ka");
    pressOutside();
    EXPECT_EQ(view().textAtPress, "kanji");
}

TEST_F(TextFieldTest, what_was_given_up_in_composing_is_not_taken) {
    compose("ka", "nji");
    compose("", "");
    pressOutside();
    EXPECT_EQ(view().textAtPress, "ka");
}

TEST_F(TextFieldTest, two_presses_take_what_was_composed_once) {
    compose("", "kanji");
    pressOutside();
    pressOutside();
    EXPECT_EQ(view().textAtPress, "kanji");
}

} // namespace quillon::test
