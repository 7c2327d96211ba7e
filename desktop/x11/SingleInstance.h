#pragma once

#include "desktop/x11/XcbHandles.h"

#include <cstdint>
#include <functional>
#include <string>

namespace quillon::desktop {

/// Lets one instance of the program run for a user on a display.
///
/// 1. `acquire` looks, with the server grabbed, for the owner of a selection that is named after
///    the program and the user, and becomes the owner when there is none.
/// 2. A later instance finds that owner, sends it a message, and learns that it is to leave.
/// 3. The first one gets the message through `handleEvent` and calls `onActivated`.
///
/// The selection goes with the small window that owns it, and that goes with this object or with
/// the connection, so an instance that died leaves nothing behind.
class SingleInstance {
public:
    enum class Outcome {
        /// This is the only instance, from now on.
        first,
        /// There is one already, and it was told.
        handedOver,
        /// The server refuses or answers no more.
        failed,
    };

    /// The name of the selection of a user.
    static std::string selectionName(std::uint32_t userID);

    /// The connection must outlive this.
    SingleInstance(xcb_connection_t* connection, xcb_window_t root, std::string selectionName);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    Outcome acquire();

    /// To be given every event of the connection. True when the event was meant for this.
    bool handleEvent(const xcb_generic_event_t& event);

    /// Called for each later start of the program.
    std::function<void()> onActivated;

private:
    /// Who owns the selection, after this took it if it was free; none when the claim failed.
    xcb_window_t ownerAfterClaim();
    /// False when the owner is no more.
    bool activate(xcb_window_t owner);
    /// Answers somebody who asks for the selection's contents, of which there are none.
    void refuse(const xcb_selection_request_event_t& request);

    xcb_connection_t* m_connection;
    xcb_window_t m_root;
    std::string m_selectionName;
    xcb_atom_t m_selection = noAtom;
    xcb_atom_t m_activate = noAtom;
    xcb_window_t m_window = noWindow;
};

} // namespace quillon::desktop
