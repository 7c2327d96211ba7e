#pragma once

#include "desktop/x11/PixelUpload.h"
#include "raster/PixelCanvas.h"

#include <QRegion>

#include <functional>

class QBackingStore;
class QWidget;

namespace quillon::desktop {

/// Brings small parts of a widget's picture to the screen by the shortest way: they are painted
/// into the widget's backing store and go from there straight into its window, each in one request.
/// The widget system would first go through all that could lie there, and put the whole bounds of
/// several parts.
class DirectPainting {
public:
    /// Paints what stands in the rectangle, in points of the widget, over full transparency.
    using Paint = std::function<void(const PixelCanvas&, const QRect&)>;

    /// `connection` is the toolkit's; with none, nothing can be put.
    DirectPainting(const QWidget& widget, xcb_connection_t* connection, Paint paint);

    /// Paints the region, which is made of whole device pixels and holds no part of a child widget.
    /// False, with nothing on the screen, when it is large or the store is none of the kind that is
    /// known here.
    bool put(QBackingStore& store, const QRegion& region);

private:
    const QWidget& m_widget;
    PixelUpload m_upload;
    Paint m_paint;
};

} // namespace quillon::desktop
