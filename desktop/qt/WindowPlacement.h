#pragma once

#include "foundation/Geometry.h"

#include <QRectF>
#include <QWidget>

#include <xcb/xcb.h>

#include <optional>

namespace quillon::desktop {

/// Where a window stands on the desktop, and above what.
///
/// A window on the screen that moves without changing its size, such as one that follows the
/// pointer, costs the server one request, which carries its new place and its stacking together.
/// Nothing of it is painted for that. The toolkit hears of the place from the server.
class WindowPlacement {
public:
    WindowPlacement(QWidget& widget, xcb_connection_t* connection);

    /// In global coordinates. A window on the screen follows with the next `bringToFront`, or by
    /// itself in the next turn of the loop.
    void setFrame(const CGRect& frame);
    /// Shows the window if it is hidden. It then stands on top of all others, or directly below
    /// `ceiling`.
    void bringToFront(std::optional<xcb_window_t> ceiling);
    /// Where the window stands in the root window, in device pixels, once it has followed.
    QRect pixels() const;

private:
    enum class Stacking { kept, onTop };

    /// True when the server alone can move the window to its frame.
    bool onlyMoves() const;
    void resize();
    void place(Stacking stacking);
    void placeLater();
    QSize size() const;

    QWidget& m_widget;
    xcb_connection_t* m_connection;
    /// In the desktop's own coordinates.
    QRectF m_frame;
    bool m_isPlaced = true;
    bool m_isTurnPending = false;
};

} // namespace quillon::desktop
