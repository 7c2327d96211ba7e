#pragma once

#include "desktop/x11/ServerPicture.h"
#include "platform/StampedPicture.h"

#include <QRegion>

#include <memory>

namespace quillon::desktop {

/// Puts a stamped picture together in a window without painting it: its stamp lies with the server
/// and is handed over once for many places.
class StampedContent {
public:
    /// `connection` is the toolkit's, where it has one.
    explicit StampedContent(xcb_connection_t* connection)
        : m_serverPicture(connection) {}

    /// Puts what of the picture stands in `pixels`, which are those of the device, into a window of
    /// depth 32. False, with nothing done, when the server cannot do so.
    bool put(xcb_window_t window, const StampedPicture& picture, const QRegion& pixels);

private:
    bool load(xcb_window_t window, const std::shared_ptr<const Bitmap>& stamp);

    ServerPicture m_serverPicture;
    /// The stamp that lies with the server.
    std::shared_ptr<const Bitmap> m_loaded;
};

} // namespace quillon::desktop
