#include "desktop/x11/CompositorWatch.h"

#include "desktop/x11/Client.h"
#include "desktop/x11/ServerAlone.h"

#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {
namespace {

using desktop::CompositorWatch;

/// A program that owns a selection on behalf of the screen, as a compositor does.
class Compositor {
public:
    explicit Compositor(const VirtualDesktop& server, const char* selection = "_NET_WM_CM_S0")
        : m_connection(server.display())
        , m_window(xcb_generate_id(m_connection.get())) {
        xcb_create_window(m_connection.get(), 0, m_window, m_connection.root(), 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(m_connection.get(), m_window, m_connection.atom(selection),
                                XCB_CURRENT_TIME);
        m_connection.synchronise();
    }

private:
    XConnection m_connection;
    xcb_window_t m_window;
};

class CompositorWatchTest : public testing::Test {
protected:
    VirtualDesktop server{serverAlone};
    Client client{server.display()};
    CompositorWatch watch{client.connection()};
    int changes = 0;
    Cancellable subscription = watch.changed.sink([this] { ++changes; });

    bool eventuallyIs(bool running) {
        return client.pumpUntil([&] { return watch.isRunning() == running; },
                                [this](const auto& event) { watch.handleEvent(event); });
    }
};

} // namespace

TEST_F(CompositorWatchTest, it_follows_a_compositor_that_comes_goes_and_comes_again) {
    EXPECT_FALSE(watch.isRunning());
    auto compositor = std::make_unique<Compositor>(server);
    EXPECT_TRUE(eventuallyIs(true));
    EXPECT_EQ(changes, 1);
    compositor.reset();
    EXPECT_TRUE(eventuallyIs(false));
    EXPECT_EQ(changes, 2);
    compositor = std::make_unique<Compositor>(server);
    EXPECT_TRUE(eventuallyIs(true));
}

TEST_F(CompositorWatchTest, one_that_runs_already_is_known_at_once) {
    const Compositor compositor(server);
    EXPECT_TRUE(CompositorWatch(client.connection()).isRunning());
}

TEST_F(CompositorWatchTest, one_that_takes_over_from_another_is_no_change) {
    const Compositor first(server);
    ASSERT_TRUE(eventuallyIs(true));
    const Compositor second(server);
    client.pump([this](const auto& event) { watch.handleEvent(event); });
    EXPECT_TRUE(watch.isRunning());
    EXPECT_EQ(changes, 1);
}

TEST_F(CompositorWatchTest, another_selection_is_no_concern_of_it) {
    const Compositor other(server, "_NET_WM_CM_S1");
    client.pump([this](const auto& event) { EXPECT_FALSE(watch.handleEvent(event)); });
    EXPECT_FALSE(watch.isRunning());
}

} // namespace quillon::test
