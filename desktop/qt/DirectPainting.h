#pragma once

#include "desktop/x11/PixelUpload.h"

#include <QImage>
#include <QPainter>
#include <QRegion>

#include <functional>

class QBackingStore;
class QWidget;

namespace quillon::desktop {

/// The image in which a store keeps its picture, if it does so in the window's own format; else
/// null.
QImage* premultipliedImage(QBackingStore& store);

/// Brings small parts of a widget's picture to the screen by the shortest way: they are painted
/// into the widget's backing store and go from there straight into its window, each in one request.
/// The widget system would first go through all that could lie there, and put the whole bounds of
/// several parts.
class DirectPainting {
public:
    /// Paints what stands in the rectangle, in points of the widget, over full transparency. Leaves
    /// the painter's transform as it was.
    using Paint = std::function<void(QPainter&, const QRect&)>;

    /// `connection` is the toolkit's; with none, nothing can be put.
    DirectPainting(const QWidget& widget, xcb_connection_t* connection, Paint paint);

    /// Paints the region, which is made of whole device pixels and holds no part of a child widget.
    /// False, with nothing on the screen, when it is large or the store is none of the kind that is
    /// known here.
    bool put(QBackingStore& store, const QRegion& region);

private:
    void follow(QImage& picture);
    void paint(const QRect& rect);
    void clear(const QRect& pixels);

    const QWidget& m_widget;
    PixelUpload m_upload;
    Paint m_paint;
    /// The store's own pixels, and a painter that stays open on them: to open one costs as much as
    /// to paint a segment.
    QImage m_pixels;
    QPainter m_painter;
};

} // namespace quillon::desktop
