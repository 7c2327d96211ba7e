#include "desktop/qt/DirectDrag.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QWidget>

#include <utility>

namespace quillon::desktop {

namespace {

/// The toolkit turns the pointer of other devices into events of their own kind.
bool isOfPlainPointer(const QMouseEvent& event) {
    return event.deviceType() == QInputDevice::DeviceType::Mouse ||
           event.deviceType() == QInputDevice::DeviceType::TouchPad;
}

} // namespace

DirectDrag::DirectDrag(const QWidget& widget, std::uint8_t inputExtension, Move move)
    : m_widget(widget)
    , m_inputExtension(inputExtension)
    , m_move(std::move(move)) {}

DirectDrag::~DirectDrag() {
    end();
}

void DirectDrag::delivered(const QMouseEvent& event) {
    if (!std::exchange(m_isInstalled, true)) {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }
    m_isOpen = isOfPlainPointer(event);
    m_lastPlace.reset();
}

void DirectDrag::end() {
    if (std::exchange(m_isInstalled, false)) {
        QCoreApplication::instance()->removeNativeEventFilter(this);
    }
    m_isOpen = false;
    m_lastPlace.reset();
}

bool DirectDrag::isMadeUp(const QMouseEvent& motion) const {
    return m_lastPlace == motion.position();
}

bool DirectDrag::nativeEventFilter(const QByteArray& /*eventType*/, void* message,
                                   qintptr* /*result*/) {
    if (!m_isOpen) {
        return false;
    }
    const auto motion =
        pointerMotion(*static_cast<const xcb_generic_event_t*>(message), m_inputExtension);
    m_isOpen = motion && isOfDrag(*motion);
    if (!m_isOpen) {
        return false;
    }
    if (motion->isOfDeviceAlone) {
        return true;
    }
    m_lastPlace = QPointF(motion->x, motion->y) / m_widget.devicePixelRatio();
    m_move(*m_lastPlace);
    return true;
}

bool DirectDrag::isOfDrag(const PointerMotion& motion) const {
    return motion.window == static_cast<xcb_window_t>(m_widget.internalWinId()) &&
           motion.isPrimaryHeld;
}

} // namespace quillon::desktop
