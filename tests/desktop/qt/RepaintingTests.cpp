#include "desktop/qt/ContentWidget.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFocusEvent>

#include <memory>

namespace quillon::test {

using namespace desktop;

namespace {

class CountingView : public ContentView {
public:
    void layout(CGSize, CGFloat) override {}
    void paint(GraphicsContext&, const CGRect&) override { ++paints; }

    int paints = 0;
};

} // namespace

// A menu of the palette takes the keyboard when it opens, and gives it back when it closes. For a
// screen full of strokes to be painted, both would wait.
TEST(Repainting, the_keyboard_comes_and_goes_without_a_new_picture) {
    ContentWidget widget{nullptr, [] {}};
    auto owned = std::make_unique<CountingView>();
    const CountingView& view = *owned;
    widget.resize(100, 100);
    widget.setContentView(std::make_shared<HostingView>(std::move(owned)));
    widget.show();
    QCoreApplication::processEvents();
    const int paintsToAppear = view.paints;
    ASSERT_GT(paintsToAppear, 0);

    for (const auto type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent event(type, Qt::PopupFocusReason);
        QCoreApplication::sendEvent(&widget, &event);
    }
    for (const auto type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
        QEvent event(type);
        QCoreApplication::sendEvent(&widget, &event);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(view.paints, paintsToAppear);
}

} // namespace quillon::test
