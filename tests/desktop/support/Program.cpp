#include "desktop/support/Program.h"

#include "desktop/support/InputDriver.h"

#include <signal.h>

#include <cstdlib>

namespace quillon::test {

Program::Program(VirtualDesktop& desktop)
    : m_desktop(desktop)
    , m_process(
          std::make_unique<ChildProcess>(std::vector<std::string>{path()}, desktop.environment())) {
    eventually([this] { return isReady() || !m_process->isRunning(); });
}

std::string Program::path() {
    const char* other = std::getenv("QUILLON_MARK_PROGRAM");
    return other ? other : QUILLON_MARK_PATH;
}

bool Program::isReady() const {
    // Shortcuts are grabbed in the order of their actions, and the one that clears is the last to
    // have a key by itself. The server refuses a grab that somebody else holds; nobody sees this
    // one come and go.
    auto& connection = m_desktop.connection();
    const xcb_keycode_t key = InputDriver(connection).keyCode("c");
    const std::uint16_t modifiers = XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT;
    xcb_grab_server(connection.get());
    const auto request = xcb_grab_key_checked(connection.get(), 0, connection.root(), modifiers,
                                              key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const XOwned<xcb_generic_error_t> error(xcb_request_check(connection.get(), request));
    if (!error) {
        xcb_ungrab_key(connection.get(), key, connection.root(), modifiers);
    }
    xcb_ungrab_server(connection.get());
    connection.synchronise();
    return error != nullptr;
}

std::optional<int> Program::terminate() {
    m_process->sendSignal(SIGTERM);
    return m_process->waitForExit();
}

void Program::kill() {
    m_process->sendSignal(SIGKILL);
    m_process->waitForExit();
}

} // namespace quillon::test
