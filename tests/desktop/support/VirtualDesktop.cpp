#include "desktop/support/VirtualDesktop.h"

#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace quillon::test {

namespace {

constexpr const char* kCompositorSettings = R"(backend = "xrender";
vsync = false;
shadow = false;
fading = false;
use-damage = true;
detect-client-opacity = true;
)";

constexpr const char* kPanelSettings = R"(rounded = 0
background_color = #20262e 100

panel_items = S
panel_size = 100% 30
panel_position = top center horizontal
panel_layer = top
panel_background_id = 1
)";

/// Reads the display number that the server writes once it is ready.
std::string readDisplayNumber(int descriptor) {
    std::string number;
    pollfd waiting{descriptor, POLLIN, 0};
    char character = 0;
    while (poll(&waiting, 1, 10000) == 1 && read(descriptor, &character, 1) == 1 &&
           character != '\n') {
        number += character;
    }
    return number;
}

/// The servers that look for a free number count from zero and do not get as far.
std::string ownDisplay() {
    constexpr int first = 1000;
    constexpr int count = 50000;
    return std::string(":").append(std::to_string(first + getpid() % count));
}

} // namespace

VirtualDesktop::VirtualDesktop(const Options& options) {
    for (const char* folder : {"/config", "/run", "/data", "/cache"}) {
        std::filesystem::create_directory(m_home.path() + folder);
    }
    std::filesystem::permissions(m_home.path() + "/run", std::filesystem::perms::owner_all);
    startServer(options);
    m_connection = std::make_unique<XConnection>(m_display);
    if (options.hasWindowManager) {
        startWindowManager();
    }
    if (options.hasCompositor) {
        startCompositor();
    }
}

ChildProcess::Environment VirtualDesktop::environment() const {
    const char* path = std::getenv("PATH");
    return {
        {"PATH", path ? path : "/usr/bin:/bin"},
        {"DISPLAY", m_display},
        {"HOME", m_home.path()},
        {"XDG_CONFIG_HOME", configFolder()},
        {"XDG_RUNTIME_DIR", m_home.path() + "/run"},
        {"XDG_DATA_HOME", m_home.path() + "/data"},
        {"XDG_CACHE_HOME", m_home.path() + "/cache"},
        {"LANG", "C.UTF-8"},
        // No bus: what stands on the machine's own session is of no concern to a test.
        {"DBUS_SESSION_BUS_ADDRESS", "disabled:"},
        {"NO_AT_BRIDGE", "1"},
    };
}

void VirtualDesktop::startTray() {
    const std::string settings = m_home.path() + "/panel.conf";
    std::ofstream(settings) << kPanelSettings;
    m_tray = &start({"tint2", "-c", settings});
    const bool isReady = eventually(
        [this] { return m_connection->selectionOwner("_NET_SYSTEM_TRAY_S0") != XCB_NONE; });
    if (!isReady) {
        throw std::runtime_error("the tray did not start");
    }
}

void VirtualDesktop::stopTray() {
    m_tray->sendSignal(SIGTERM);
    m_tray->waitForExit();
}

void VirtualDesktop::stopCompositor() {
    m_compositor->sendSignal(SIGTERM);
    m_compositor->waitForExit();
}

void VirtualDesktop::stopServer() {
    m_server->sendSignal(SIGTERM);
    m_server->waitForExit();
}

void VirtualDesktop::showWorkspace(std::uint32_t index) {
    m_connection->askWindowManager("_NET_CURRENT_DESKTOP", m_connection->root(), {index});
}

ChildProcess& VirtualDesktop::start(const std::vector<std::string>& command) {
    m_clients.push_back(std::make_unique<ChildProcess>(command, environment()));
    return *m_clients.back();
}

void VirtualDesktop::startServer(const Options& options) {
    int ends[2];
    if (pipe(ends) != 0) {
        throw std::runtime_error("no pipe could be made");
    }
    const std::string geometry = std::to_string(options.width) + "x" +
                                 std::to_string(options.height) + "x" +
                                 std::to_string(options.depth);
    std::vector<std::string> command{"Xvfb",      "-displayfd", std::to_string(ends[1]),
                                     "-screen",   "0",          geometry,
                                     "-nolisten", "tcp",        "-noreset"};
    if (options.hasOwnNumber) {
        command.insert(command.begin() + 1, ownDisplay());
    }
    if (!options.hasCursor) {
        command.emplace_back("-nocursor");
    }
    for (const std::string& extension : options.withoutExtensions) {
        command.insert(command.end(), {"-extension", extension});
    }
    m_server = std::make_unique<ChildProcess>(
        command, ChildProcess::Environment{{"PATH", std::getenv("PATH")}, {"HOME", m_home.path()}},
        ends[1], SIGTERM);
    close(ends[1]);
    const std::string number = readDisplayNumber(ends[0]);
    close(ends[0]);
    if (number.empty()) {
        throw std::runtime_error("the X server did not start: " + m_server->standardError());
    }
    m_display = ":" + number;
}

void VirtualDesktop::startCompositor() {
    const std::string settings = m_home.path() + "/picom.conf";
    std::ofstream(settings) << kCompositorSettings;
    m_compositor = &start({"picom", "--config", settings});
    if (!eventually([this] { return m_connection->selectionOwner("_NET_WM_CM_S0") != XCB_NONE; })) {
        throw std::runtime_error("the compositor did not start");
    }
}

void VirtualDesktop::startWindowManager() {
    start({"openbox"});
    // A window manager that is still starting may overlook a window, so one is offered until it
    // is taken up.
    const bool isReady = eventually([this] { return managesNewWindow(); });
    if (!isReady) {
        throw std::runtime_error("the window manager did not start");
    }
}

bool VirtualDesktop::managesNewWindow() {
    xcb_connection_t* connection = m_connection->get();
    const xcb_window_t root = m_connection->root();
    const XOwned<xcb_get_property_reply_t> announced(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, 0, root, m_connection->atom("_NET_SUPPORTING_WM_CHECK"),
                         XCB_ATOM_WINDOW, 0, 1),
        nullptr));
    if (!announced || xcb_get_property_value_length(announced.get()) == 0) {
        return false;
    }
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, root, 0, 0, 10, 10, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(connection, window);
    const auto isTakenUp = [&] {
        const XOwned<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
        return tree && tree->parent != root;
    };
    const bool managed = eventually(isTakenUp, std::chrono::milliseconds(300));
    xcb_destroy_window(connection, window);
    m_connection->synchronise();
    return managed;
}

} // namespace quillon::test
