#include "desktop/qt/QtWindow.h"

#include "desktop/qt/QtConversions.h"
#include "desktop/qt/TitledWindows.h"
#include "desktop/x11/BlurBehind.h"
#include "desktop/x11/PointerGrab.h"
#include "desktop/x11/WindowOrder.h"
#include "desktop/x11/WindowShape.h"
#include "desktop/x11/XRectangles.h"

#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace quillon::desktop {

namespace {

constexpr std::chrono::milliseconds kGrabAgain{30};
constexpr int kGrabConfirmations = 5;
/// In which a window manager has carried out a change of which it has told the beginning.
constexpr std::chrono::milliseconds kSettled{100};

std::vector<xcb_rectangle_t> toXRectangles(const QRegion& region) {
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& rect : region) {
        rectangles.push_back(toXRectangle(rect));
    }
    return rectangles;
}

QRect toQRect(const xcb_rectangle_t& rect) {
    return {rect.x, rect.y, rect.width, rect.height};
}

} // namespace

QtWindow::QtWindow(Window& window, const Surroundings& surroundings)
    : m_window(window)
    , m_surroundings(surroundings)
    , m_keyboard(surroundings.connection)
    , m_widget(surroundings.connection, [this] { takeKeyboard(); })
    , m_placement(m_widget, surroundings.connection)
    , m_compositorChange(surroundings.compositor.changed.sink([this] { followCompositor(); }))
    , m_panelsChange(surroundings.panels.changed.sink([this] { followPanelsLater(); })) {
    m_widget.setWindowFlags(Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint |
                            Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint | Qt::Tool);
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &m_widget,
                     [this] { stayBelowTitledWindow(); });
    // Already before it is seen: a press at once after would meet it.
    m_widget.onAboutToShow = [this] { stayBelowTitledWindow(); };
    m_widget.placed().onTextFieldCameOrWent = [this] { giveBackKeyboardIfUnused(); };
    m_widget.placed().onControlsPlaced = [this](const QRect& place) { followControls(place); };
    m_widget.isMereMove = [this](const xcb_configure_notify_event_t& event) {
        return m_window.ignoresMouseEvents() && m_placement.isMereMove(event);
    };
    m_widget.onOutlined = [this](const QRegion& outline) { takeOutline(outline); };
    m_surroundings.all.insert(this);
    setFrame(window.frame());
    followCompositor();
    setIgnoresMouseEvents(window.ignoresMouseEvents());
}

QtWindow::~QtWindow() {
    noteGrab(false);
    m_surroundings.all.erase(this);
}

void QtWindow::setFrame(const CGRect& frame) {
    const auto& content = m_window.contentView();
    m_placement.setFrame(frame.outset(content ? content->rootView->overflow() : 0));
    // A window that follows the pointer takes it nowhere, wherever it stands.
    if (!m_window.ignoresMouseEvents()) {
        followPanels();
    }
}

void QtWindow::display() {
    m_widget.display();
}

void QtWindow::setIgnoresMouseEvents(bool /*ignores*/) {
    stayBelowTitledWindow();
    grabPointerIfNeeded();
    followPanels();
    giveBackKeyboardIfUnused();
}

void QtWindow::setContentView(const std::shared_ptr<HostingView>& view) {
    setFrame(m_window.frame());
    m_widget.setContentView(view);
}

void QtWindow::orderFrontRegardless() {
    if (m_window.isOpaque()) {
        m_widget.setBackgroundColor(toQColor(m_window.backgroundColor()));
        followCompositor();
    }
    m_placement.bringToFront(ceiling());
    grabPointerIfNeeded();
}

std::optional<xcb_window_t> QtWindow::ceiling() const {
    return m_window.ignoresMouseEvents() ? std::nullopt
                                         : titledWindowOnScreen(m_surroundings.connection);
}

void QtWindow::stayBelowTitledWindow() {
    if (const auto titled = ceiling()) {
        stackBelow(m_surroundings.connection, nativeWindow(), *titled);
    }
}

void QtWindow::followCompositor() {
    // A picture with a background fills its window: there is no outline to be kept.
    const bool composited = m_surroundings.compositor.isRunning() || m_widget.hasBackground();
    if (composited && !m_widget.isComposited()) {
        clearOutline(m_surroundings.connection, nativeWindow());
    }
    m_widget.setComposited(composited);
    grabPointerIfNeeded();
}

void QtWindow::grabPointerIfNeeded() {
    // A window with the outline of its picture meets the pointer nowhere else, so it takes the
    // pointer as a whole. The server takes it back with the window.
    const bool wanted =
        !m_widget.isComposited() && m_widget.isVisible() && !m_window.ignoresMouseEvents();
    if (m_grabsPointer == wanted) {
        return;
    }
    const bool done = wanted ? grabPointer() : m_widget.windowHandle()->setMouseGrabEnabled(false);
    noteGrab(wanted && done);
    m_popups.reset();
    if (m_grabsPointer) {
        // A popup takes the pointer over, and gives it back to nobody.
        m_popups.emplace([this] { confirmGrab(); });
    }
    if (wanted && !done) {
        // Somebody else holds a button down; that passes.
        QTimer::singleShot(kGrabAgain, &m_widget, [this] { grabPointerIfNeeded(); });
    } else if (wanted) {
        // Under some window managers the server ends a grab again that it granted within the press
        // of a shortcut, and tells nobody. To ask again for what one has changes nothing.
        for (int times = 1; times <= kGrabConfirmations; ++times) {
            QTimer::singleShot(times * kGrabAgain, &m_widget, [this] { confirmGrab(); });
        }
    }
}

void QtWindow::confirmGrab() {
    if (m_grabsPointer && !PopupWatch::isPopupOpen() && !grabPointer()) {
        // A press came in between, and somebody else has the pointer until its release.
        QTimer::singleShot(kGrabAgain, &m_widget, [this] { confirmGrab(); });
    }
}

bool QtWindow::grabPointer() {
    // The toolkit's own grab would take the pointer from the settings window as well.
    return grabPointerButOverOwnWindows(m_surroundings.connection, nativeWindow());
}

void QtWindow::followInputRegion() {
    if (m_window.ignoresMouseEvents()) {
        setInputRegion(m_surroundings.connection, nativeWindow(), InputRegion::empty);
        return;
    }
    const QRect frame = m_placement.pixels();
    QRegion panels = m_panels.translated(-frame.topLeft());
    // A press on the controls is meant for them also where they stand over a panel.
    panels -= m_controlsPlace;
    if (panels.isEmpty()) {
        setInputRegion(m_surroundings.connection, nativeWindow(), InputRegion::window);
    } else {
        setInputRegion(m_surroundings.connection, nativeWindow(),
                       toXRectangles(QRegion(QRect(QPoint(), frame.size())) - panels));
    }
}

void QtWindow::followPanels() {
    m_panels = QRegion();
    if (!m_window.ignoresMouseEvents()) {
        for (const xcb_rectangle_t& panel : m_surroundings.panels.inSight()) {
            m_panels += toQRect(panel);
        }
    }
    followInputRegion();
}

void QtWindow::followPanelsLater() {
    if (!m_window.ignoresMouseEvents()) {
        QTimer::singleShot(kSettled, &m_widget, [this] { followPanels(); });
    }
}

void QtWindow::followControls(const QRect& place) {
    m_controlsPlace = place;
    followInputRegion();
    blurBehind(place);
}

void QtWindow::blurBehind(const QRect& place) {
    setBlurBehind(m_surroundings.connection, nativeWindow(),
                  place.isEmpty() ? std::nullopt : std::optional(toXRectangle(place)));
}

void QtWindow::noteGrab(bool grabs) {
    m_surroundings.pointerHolders += (grabs ? 1 : 0) - (m_grabsPointer ? 1 : 0);
    m_grabsPointer = grabs;
}

void QtWindow::takeOutline(const QRegion& outline) {
    setOutline(m_surroundings.connection, nativeWindow(), toXRectangles(outline));
}

void QtWindow::makeKeyAndOrderFront() {
    orderFrontRegardless();
    takeKeyboard();
}

void QtWindow::orderOut() {
    m_keyboard.giveBack(nativeWindow());
    m_widget.hide();
    grabPointerIfNeeded();
}

bool QtWindow::hides(const xcb_rectangle_t& rect) const {
    return m_widget.hasBackground() && m_widget.isVisible() &&
           contains(toXRectangle(m_placement.pixels()), rect);
}

void QtWindow::takeKeyboard() {
    if (m_window.canBecomeKeyWindow()) {
        m_keyboard.take(nativeWindow());
    }
}

void QtWindow::giveBackKeyboardIfUnused() {
    if (m_window.ignoresMouseEvents() && !m_widget.placed().hasTextField()) {
        m_keyboard.giveBack(nativeWindow());
    }
}

} // namespace quillon::desktop
