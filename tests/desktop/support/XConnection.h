#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace quillon::test {

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T>
using XOwned = std::unique_ptr<T, FreeMemory>;

/// A test's own client of an X server.
class XConnection {
public:
    /// Throws when the display does not answer.
    explicit XConnection(const std::string& display);
    ~XConnection();
    XConnection(const XConnection&) = delete;
    XConnection& operator=(const XConnection&) = delete;

    xcb_connection_t* get() const { return m_connection; }
    const xcb_screen_t& screen() const { return *m_screen; }
    xcb_window_t root() const { return m_screen->root; }

    xcb_atom_t atom(const std::string& name) const;
    /// Who owns a selection; `XCB_NONE` when nobody does.
    xcb_window_t selectionOwner(const std::string& name) const;
    xcb_window_t focusedWindow() const;
    /// The 32-bit values of a property of a window, at most 64 of them; empty when there is none.
    std::vector<std::uint32_t> property(xcb_window_t window, const std::string& name) const;
    /// A property that is a text, at most 256 bytes of it; empty when there is none.
    std::string text(xcb_window_t window, const std::string& name) const;
    /// The windows of that title among those of the window manager.
    std::vector<xcb_window_t> windowsTitled(const std::string& title) const;
    /// What is on the screen, from the lowest to the uppermost; windows of programs are in frames.
    std::vector<xcb_window_t> shownWindows() const;
    /// Where a window stands on the root window, without its frame.
    xcb_rectangle_t place(xcb_window_t window) const;
    /// Sends a message about a window to the window manager, as a pager or task bar does.
    void askWindowManager(const std::string& message, xcb_window_t window,
                          const std::vector<std::uint32_t>& values) const;
    /// Returns once the server has carried out everything that was asked so far.
    void synchronise() const;

private:
    xcb_connection_t* m_connection;
    const xcb_screen_t* m_screen;
};

} // namespace quillon::test
