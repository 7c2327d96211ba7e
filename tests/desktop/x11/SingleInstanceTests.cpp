#include "desktop/x11/SingleInstance.h"

#include "desktop/x11/Client.h"
#include "desktop/x11/ServerAlone.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace quillon::test {

namespace {

using desktop::eventAs;
using desktop::eventType;
using desktop::SingleInstance;
using enum SingleInstance::Outcome;

constexpr std::uint32_t userID = 1000;

/// A start of the program, with its own connection.
struct Start {
    explicit Start(const VirtualDesktop& server, std::uint32_t user = userID)
        : client(server.display())
        , instance(std::in_place, client.connection(), client.root(),
                   SingleInstance::selectionName(user)) {
        instance->onActivated = [this] { ++activations; };
    }

    void pump() {
        client.pump([this](const xcb_generic_event_t& event) {
            EXPECT_NE(event.response_type, 0) << "an error reached the event loop";
            instance->handleEvent(event);
        });
    }

    Client client;
    std::optional<SingleInstance> instance;
    int activations = 0;
};

class SingleInstanceTest : public testing::Test {
protected:
    VirtualDesktop server{serverAlone};
};

} // namespace

TEST_F(SingleInstanceTest, the_first_start_is_the_only_one) {
    Start start(server);
    EXPECT_EQ(start.instance->acquire(), first);
    start.pump();
    EXPECT_EQ(start.activations, 0);
}

TEST_F(SingleInstanceTest, a_second_start_activates_the_first) {
    Start running(server);
    running.instance->acquire();
    Start second(server);
    EXPECT_EQ(second.instance->acquire(), handedOver);
    running.pump();
    EXPECT_EQ(running.activations, 1);
    EXPECT_EQ(second.activations, 0);
}

TEST_F(SingleInstanceTest, the_message_arrives_though_the_second_start_is_gone_at_once) {
    Start running(server);
    running.instance->acquire();
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Start(server).instance->acquire(), handedOver);
    }
    running.pump();
    EXPECT_EQ(running.activations, 3);
}

TEST_F(SingleInstanceTest, to_acquire_again_is_harmless) {
    Start start(server);
    EXPECT_EQ(start.instance->acquire(), first);
    EXPECT_EQ(start.instance->acquire(), first);
    start.pump();
    EXPECT_EQ(start.activations, 0);
}

TEST_F(SingleInstanceTest, an_instance_that_ended_makes_room) {
    Start running(server);
    running.instance->acquire();
    running.instance.reset();
    EXPECT_EQ(Start(server).instance->acquire(), first);
}

TEST_F(SingleInstanceTest, an_instance_that_was_killed_leaves_nothing_behind) {
    Start running(server);
    running.instance->acquire();
    // The server ends the connection that made the window, as it does when a program dies.
    const auto window = xcb_generate_id(running.client.connection());
    xcb_create_window(running.client.connection(), XCB_COPY_FROM_PARENT, window,
                      running.client.root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    running.client.sync();
    Client killer(server.display());
    xcb_kill_client(killer.connection(), window);
    killer.sync();

    EXPECT_EQ(Start(server).instance->acquire(), first);
}

TEST_F(SingleInstanceTest, each_user_has_an_instance_of_the_same_display) {
    Start mine(server, 1000);
    Start hers(server, 1001);
    EXPECT_EQ(mine.instance->acquire(), first);
    EXPECT_EQ(hers.instance->acquire(), first);
}

TEST_F(SingleInstanceTest, of_many_starts_at_once_exactly_one_wins) {
    constexpr std::size_t count = 8;
    std::vector<std::unique_ptr<Start>> starts;
    for (std::size_t i = 0; i < count; ++i) {
        starts.push_back(std::make_unique<Start>(server));
    }
    std::vector<SingleInstance::Outcome> outcomes(count, failed);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < count; ++i) {
        threads.emplace_back([&, i] { outcomes[i] = starts[i]->instance->acquire(); });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(std::ranges::count(outcomes, first), 1);
    EXPECT_EQ(std::ranges::count(outcomes, handedOver), static_cast<std::ptrdiff_t>(count - 1));

    const auto winner = std::ranges::find(outcomes, first) - outcomes.begin();
    auto& running = *starts[static_cast<std::size_t>(winner)];
    running.pump();
    EXPECT_EQ(running.activations, static_cast<int>(count - 1));
}

TEST_F(SingleInstanceTest,
       who_asks_for_the_contents_of_the_selection_is_refused_and_not_kept_waiting) {
    Start running(server);
    running.instance->acquire();

    Client curious(server.display());
    const auto name = SingleInstance::selectionName(userID);
    const desktop::XcbOwned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        curious.connection(),
        xcb_intern_atom(curious.connection(), 1, static_cast<std::uint16_t>(name.size()),
                        name.c_str()),
        nullptr));
    const auto window = xcb_generate_id(curious.connection());
    xcb_create_window(curious.connection(), XCB_COPY_FROM_PARENT, window, curious.root(), 0, 0, 1,
                      1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_convert_selection(curious.connection(), window, atom->atom, XCB_ATOM_STRING,
                          XCB_ATOM_STRING, XCB_CURRENT_TIME);
    curious.sync();
    running.pump();

    int answers = 0;
    curious.pump([&](const xcb_generic_event_t& event) {
        ASSERT_EQ(eventType(event), XCB_SELECTION_NOTIFY);
        EXPECT_EQ(eventAs<xcb_selection_notify_event_t>(event).property, XCB_ATOM_NONE);
        ++answers;
    });
    EXPECT_EQ(answers, 1);
}

TEST_F(SingleInstanceTest, messages_to_other_windows_are_left_alone) {
    Start running(server);
    running.instance->acquire();
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = running.client.root();
    EXPECT_FALSE(
        running.instance->handleEvent(reinterpret_cast<const xcb_generic_event_t&>(message)));
}

TEST_F(SingleInstanceTest, a_server_that_is_gone_is_a_failure) {
    auto doomed = std::make_unique<VirtualDesktop>(serverAlone);
    Start start(*doomed);
    doomed.reset();
    EXPECT_EQ(start.instance->acquire(), failed);
}

} // namespace quillon::test
