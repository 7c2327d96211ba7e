#include "desktop/qt/QtApplication.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

namespace quillon::test {

using namespace desktop;

TEST(QtApplication, terminate_ends_the_loop_with_zero) {
    QtApplication application;
    QTimer::singleShot(0, qApp, [&] { application.terminate(); });
    EXPECT_EQ(QApplication::exec(), 0);
}

TEST(QtApplication, terminate_asks_no_window_for_leave) {
    class Stubborn : public QWidget {
    public:
        bool wasAsked = false;

    protected:
        bool event(QEvent* event) override {
            wasAsked = wasAsked || event->type() == QEvent::Close;
            return QWidget::event(event);
        }
    };
    Stubborn window;
    window.show();
    QtApplication application;
    QTimer::singleShot(0, qApp, [&] { application.terminate(); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(window.wasAsked);
}

TEST(QtApplication, activate_leaves_hidden_windows_hidden) {
    QWidget hidden;
    hidden.winId();
    QtApplication application;
    application.activate(true);
    EXPECT_FALSE(hidden.isVisible());
}

} // namespace quillon::test
