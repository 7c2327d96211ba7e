#include "desktop/qt/QtWindow.h"

#include "desktop/qt/GlobalCoordinates.h"
#include "desktop/x11/InputRegion.h"

#include <QGuiApplication>
#include <QScreen>

namespace quillon::desktop {

QtWindow::QtWindow(Window& window, xcb_connection_t* connection)
    : m_window(window)
    , m_connection(connection)
    , m_keyboard(connection)
    , m_widget([this] { takeKeyboard(); }) {
    m_widget.setWindowFlags(Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint |
                            Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint | Qt::Tool);
    m_widget.onEditingChanged = [this] { giveBackKeyboardIfUnused(); };
    setFrame(window.frame());
    setIgnoresMouseEvents(window.ignoresMouseEvents());
}

QtWindow::~QtWindow() = default;

void QtWindow::setFrame(const CGRect& frame) {
    const QScreen* primary = QGuiApplication::primaryScreen();
    const QRectF primaryGeometry = primary ? primary->geometry() : QRectF();
    m_widget.setGeometry(desktopFromGlobal(frame, primaryGeometry).toAlignedRect());
}

void QtWindow::setIgnoresMouseEvents(bool ignores) {
    setInputRegion(m_connection, nativeWindow(),
                   ignores ? InputRegion::empty : InputRegion::window);
    giveBackKeyboardIfUnused();
}

void QtWindow::setContentView(const std::shared_ptr<HostingView>& view) {
    m_widget.setContentView(view);
}

void QtWindow::orderFrontRegardless() {
    m_widget.show();
    m_widget.raise();
}

void QtWindow::makeKeyAndOrderFront() {
    orderFrontRegardless();
    takeKeyboard();
}

void QtWindow::orderOut() {
    m_keyboard.giveBack(nativeWindow());
    m_widget.hide();
}

void QtWindow::takeKeyboard() {
    if (m_window.canBecomeKeyWindow()) {
        m_keyboard.take(nativeWindow());
    }
}

void QtWindow::giveBackKeyboardIfUnused() {
    if (m_window.ignoresMouseEvents() && !m_widget.isEditingText()) {
        m_keyboard.giveBack(nativeWindow());
    }
}

} // namespace quillon::desktop
