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
/// pointer, costs the server one request, which carries its new place and its stacking together;
/// and its size, of which the toolkit does not think when the scale has changed.
/// Nothing of it is painted for that. The toolkit would ask the server five questions after each
/// move, while a compositor is at work to show it; it is told of such a move only where it might
/// need the place.
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

    /// Whether an event tells of a move and of nothing else that the toolkit has to follow: the
    /// window keeps its size and its screen, and has no use for its place while the pointer passes
    /// through it.
    bool isMereMove(const xcb_configure_notify_event_t& event);

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
    /// The last that the toolkit was told, in device pixels.
    QSize m_toldSize;
    bool m_isPlaced = true;
    bool m_isTurnPending = false;
};

} // namespace quillon::desktop
