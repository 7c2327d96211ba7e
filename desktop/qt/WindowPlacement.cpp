#include "desktop/qt/WindowPlacement.h"

#include "desktop/qt/GlobalCoordinates.h"
#include "desktop/x11/WindowOrder.h"

#include <QGuiApplication>
#include <QMetaObject>
#include <QScreen>
#include <QtMath>

#include <array>
#include <cstdint>
#include <utility>

namespace quillon::desktop {

namespace {

/// The screen on which the middle of a frame lies, or the first one.
const QScreen* screenOf(const QRectF& frame) {
    const QScreen* holder = QGuiApplication::screenAt(frame.center().toPoint());
    return holder ? holder : QGuiApplication::primaryScreen();
}

} // namespace

WindowPlacement::WindowPlacement(QWidget& widget, xcb_connection_t* connection)
    : m_widget(widget)
    , m_connection(connection) {}

void WindowPlacement::setFrame(const CGRect& frame) {
    const QScreen* primary = QGuiApplication::primaryScreen();
    m_frame = desktopFromGlobal(frame, primary ? QRectF(primary->geometry()) : QRectF());
    m_isPlaced = false;
    if (m_widget.isVisible()) {
        placeLater();
    } else {
        resize();
    }
}

void WindowPlacement::bringToFront(std::optional<xcb_window_t> ceiling) {
    if (!m_widget.isVisible()) {
        resize();
        m_widget.show();
    }
    place(ceiling ? Stacking::kept : Stacking::onTop);
    if (ceiling) {
        stackBelow(m_connection, static_cast<xcb_window_t>(m_widget.winId()), *ceiling);
    }
}

bool WindowPlacement::isMereMove(const xcb_configure_notify_event_t& event) {
    const QSize size(event.width, event.height);
    return std::exchange(m_toldSize, size) == size && onlyMoves();
}

void WindowPlacement::placeLater() {
    if (std::exchange(m_isTurnPending, true)) {
        return;
    }
    QMetaObject::invokeMethod(
        &m_widget,
        [this] {
            m_isTurnPending = false;
            if (!m_isPlaced && m_widget.isVisible()) {
                place(Stacking::kept);
            }
        },
        Qt::QueuedConnection);
}

QSize WindowPlacement::size() const {
    // A whole frame keeps its size wherever it stands, also between two points.
    return {qCeil(m_frame.width()), qCeil(m_frame.height())};
}

QRect WindowPlacement::pixels() const {
    const QScreen* screen = screenOf(m_frame);
    if (!screen) {
        return {m_frame.topLeft().toPoint(), size()};
    }
    const qreal scale = screen->devicePixelRatio();
    const QPointF corner =
        devicePixelsFromDesktop(m_frame.topLeft(), screen->geometry().topLeft(), scale);
    return {corner.toPoint(), (QSizeF(size()) * scale).toSize()};
}

bool WindowPlacement::onlyMoves() const {
    return m_widget.size() == size() && m_widget.screen() == screenOf(m_frame);
}

void WindowPlacement::resize() {
    m_widget.setGeometry(QRect(m_frame.topLeft().toPoint(), size()));
}

void WindowPlacement::place(Stacking stacking) {
    if (!onlyMoves()) {
        resize();
    }
    m_isPlaced = true;
    const QRect frame = pixels();
    const std::array values{
        static_cast<std::uint32_t>(frame.x()), static_cast<std::uint32_t>(frame.y()),
        static_cast<std::uint32_t>(frame.width()), static_cast<std::uint32_t>(frame.height()),
        std::uint32_t{XCB_STACK_MODE_ABOVE}};
    const int stackingBit = stacking == Stacking::onTop ? XCB_CONFIG_WINDOW_STACK_MODE : 0;
    xcb_configure_window(m_connection, static_cast<xcb_window_t>(m_widget.winId()),
                         static_cast<std::uint16_t>(XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y |
                                                    XCB_CONFIG_WINDOW_WIDTH |
                                                    XCB_CONFIG_WINDOW_HEIGHT | stackingBit),
                         values.data());
    xcb_flush(m_connection);
}

} // namespace quillon::desktop
