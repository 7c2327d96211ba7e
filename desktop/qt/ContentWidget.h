#pragma once

#include "desktop/qt/DirectDrag.h"
#include "desktop/qt/DirectPainting.h"
#include "desktop/qt/InkMask.h"
#include "desktop/qt/PlacedChildren.h"
#include "desktop/qt/StampedContent.h"
#include "platform/HostingView.h"

#include <QColor>
#include <QElapsedTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace quillon::desktop {

/// Shows a content view: hands it the pointer, paints its damage, and lets its text field and its
/// controls stand.
///
/// One update, some time after the view asked for it and after all input that has arrived by then:
/// 1. the view says where its picture has changed;
/// 2. the text field and the controls come, go or change as the view says;
/// 3. the part that has changed is painted and put on the screen at once.
class ContentWidget : public QWidget {
public:
    /// `connection` is the toolkit's, where it has one.
    ContentWidget(xcb_connection_t* connection, std::function<void()> onPress);
    ~ContentWidget() override;

    void setContentView(const std::shared_ptr<HostingView>& view);

    /// What lies behind the picture; nothing unless it is set.
    void setBackgroundColor(const QColor& color) { m_backgroundColor = color; }
    bool hasBackground() const { return m_backgroundColor.isValid(); }

    /// Without a compositor the outline of the picture is kept, so that the window can take it and
    /// the rest of the screen stays to be seen.
    void setComposited(bool composited);
    bool isComposited() const { return !m_inkMask; }
    /// Called with the outline, in device pixels, when it may have changed.
    std::function<void(const QRegion&)> onOutlined;

    /// Asked of each place that the server tells: whether the toolkit can do without it.
    std::function<bool(const xcb_configure_notify_event_t&)> isMereMove;

    /// Puts the whole picture on the screen once more.
    void display();

    PlacedChildren& placed() { return m_placed; }

    /// The toolkit has put the window on top of all others and is about to show it.
    std::function<void()> onAboutToShow;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// The picture does not depend on the keyboard, for which the toolkit would paint all of it
    /// anew.
    void focusInEvent(QFocusEvent* /*event*/) override {}
    void focusOutEvent(QFocusEvent* /*event*/) override {}
    bool nativeEvent(const QByteArray& kind, void* message, qintptr* result) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void adoptRootView();
    /// Takes the drags beside the controls to the view.
    ControlsWidget::BodyDrag bodyDrag();
    void dragTo(QPointF place);
    void requestUpdate();
    void updateIfNeeded();
    /// Spares a motion that stands alone the way through the event queue, while in a burst the
    /// update still waits behind all input that has arrived.
    void updateAtOnceIfQuiet();
    void updateContent();
    void layoutContent();
    void followScale();
    QRegion regionOf(const Damage& damage) const;
    /// Paints the region and puts it on the screen at once.
    void putOnScreen(const QRegion& region);
    /// Puts a picture that need not be painted on the screen; false when that cannot be done.
    bool putStamped(QBackingStore& store, const QRegion& region);
    void paintRegion(QPainter& painter, const QRegion& region);
    void paintContent(const PixelCanvas& canvas, const QRect& rect);
    /// A picture of the content in its own device pixels.
    QImage painted(const QRect& rect);
    void tellOutline();

    xcb_connection_t* m_connection;
    DirectDrag m_directDrag;
    DirectPainting m_directPainting;
    StampedContent m_stamped;
    std::function<void()> m_onPress;
    std::shared_ptr<HostingView> m_content;
    QColor m_backgroundColor;
    PlacedChildren m_placed;
    std::optional<InkMask> m_inkMask;
    /// For which the content was laid out, and the store has its pixels.
    CGFloat m_scale = 1;
    bool m_isUpdatePending = false;
    QElapsedTimer m_sinceLastUpdate;
    /// The size in which the widget system last painted; empty when it has yet to prepare the
    /// store.
    QSize m_paintedSize;
};

} // namespace quillon::desktop
