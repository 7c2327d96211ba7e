#include "platform/Window.h"

#include "platform/Host.h"
#include "platform/WindowBackend.h"

#include <utility>

namespace quillon {

Window::Window(const CGRect& contentRect, WindowStyleMask styleMask, BackingStoreType backing,
               bool defersCreation)
    : m_styleMask(styleMask)
    , m_backing(backing)
    , m_defersCreation(defersCreation)
    , m_frame(contentRect)
    , m_backend(Host::current().windows().makeWindow(*this)) {
    Host::current().application().addWindow(*this);
}

Window::~Window() {
    Host::current().application().removeWindow(*this);
}

void Window::setIgnoresMouseEvents(bool ignores) {
    m_ignoresMouseEvents = ignores;
    m_backend->setIgnoresMouseEvents(ignores);
}

void Window::setFrame(const CGRect& frame, bool display, bool /*animate*/) {
    const bool stays = frame == m_frame;
    m_frame = frame;
    m_backend->setFrame(frame);
    if (stays && display) {
        m_backend->display();
    }
}

void Window::setContentView(std::shared_ptr<HostingView> view) {
    m_contentView = std::move(view);
    m_backend->setContentView(m_contentView);
}

void Window::orderFrontRegardless() {
    m_backend->orderFrontRegardless();
    noteShown();
}

void Window::makeKeyAndOrderFront() {
    m_backend->makeKeyAndOrderFront();
    noteShown();
}

void Window::noteShown() {
    const bool wasVisible = std::exchange(m_isVisible, true);
    if (!wasVisible && m_contentView) {
        m_contentView->rootView->onAppear();
    }
}

void Window::orderOut() {
    m_isVisible = false;
    m_backend->orderOut();
}

void Window::center() {
    const auto screen = Host::current().screens().mainScreen();
    if (!screen) {
        return;
    }
    const CGRect& room = screen->visibleFrame;
    setFrame({room.x + (room.width - m_frame.width) / 2,
              room.y + (room.height - m_frame.height) * 2 / 3, m_frame.width, m_frame.height},
             /*display=*/false);
}

void Window::setContentViewController(std::shared_ptr<HostingController> controller) {
    m_contentViewController = std::move(controller);
    m_backend->setContentViewController(m_contentViewController);
}

void Window::close() {
    orderOut();
    if (m_contentViewController) {
        m_contentViewController->rootView->onDisappear();
    }
    // This may be gone when the call returns.
    Host::current().notificationCenter().post(NSWindowWillCloseNotification, this);
}

} // namespace quillon
