#include "desktop/qt/ContentWidget.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <memory>

namespace quillon::test {

using namespace desktop;

namespace {

/// A square in the upper left corner.
class SquareView : public ContentView {
public:
    void layout(CGSize, CGFloat) override {}
    void paint(GraphicsContext& context, const CGRect&) override {
        Path path;
        path.addRect({0, 0, 20, 20});
        context.fill(path, Color::red);
    }
};

} // namespace

TEST(Outline, a_picture_that_the_toolkit_asked_for_shapes_a_window_that_cannot_be_translucent) {
    ContentWidget widget{nullptr, [] {}};
    QRegion outline;
    widget.onOutlined = [&](const QRegion& region) { outline = region; };
    widget.setComposited(false);
    widget.resize(100, 100);
    widget.setContentView(std::make_shared<HostingView>(std::make_unique<SquareView>()));
    EXPECT_EQ(outline, QRegion());
    // The view itself has nothing to say: what is painted is what the screen wants to be shown.
    widget.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(outline, QRegion(0, 0, 20, 20));
}

} // namespace quillon::test
