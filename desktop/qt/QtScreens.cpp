#include "desktop/qt/QtScreens.h"

#include "desktop/qt/GlobalCoordinates.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace quillon::desktop {

namespace {

/// Qt leaves the origin of a screen in device pixels and scales its size alone.
QRect frameInDevicePixels(const QScreen& screen) {
    return {screen.geometry().topLeft(),
            (QSizeF(screen.size()) * screen.devicePixelRatio()).toSize()};
}

qint64 area(const QRect& rect) {
    return rect.isEmpty() ? 0 : qint64(rect.width()) * rect.height();
}

} // namespace

QtScreens::QtScreens(ActiveWindowFrame activeWindowFrame, DisplayNumber displayNumber)
    : m_activeWindowFrame(std::move(activeWindowFrame))
    , m_displayNumber(std::move(displayNumber)) {
    for (QScreen* screen : QGuiApplication::screens()) {
        watch(screen);
    }
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
        watch(screen);
        noteChange();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &QtScreens::noteChange);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &QtScreens::noteChange);
}

std::vector<NSScreen> QtScreens::screens() const {
    std::vector<NSScreen> all;
    // Qt keeps the primary screen in front.
    for (const QScreen* screen : QGuiApplication::screens()) {
        all.push_back(describe(*screen));
    }
    return all;
}

std::optional<NSScreen> QtScreens::mainScreen() const {
    const QScreen* primary = QGuiApplication::primaryScreen();
    if (!primary) {
        return std::nullopt;
    }
    const QScreen* withKeyboard = screenWithKeyboard();
    return describe(withKeyboard ? *withKeyboard : *primary);
}

NSScreen QtScreens::describe(const QScreen& screen) const {
    const QRectF primaryFrame = QGuiApplication::primaryScreen()->geometry();
    NSScreen described{globalFromDesktop(QRectF(screen.geometry()), primaryFrame),
                       globalFromDesktop(QRectF(screen.availableGeometry()), primaryFrame),
                       screen.devicePixelRatio(), screen.name().toStdString()};
    described.maximumFramesPerSecond = screen.refreshRate();
    const auto number = m_displayNumber ? m_displayNumber(described.localizedName) : std::nullopt;
    if (number) {
        described.deviceDescription["NSScreenNumber"] = std::int64_t{*number};
    }
    return described;
}

CGPoint QtScreens::globalFromDevicePixel(QPoint pixel) const {
    const QScreen* primary = QGuiApplication::primaryScreen();
    if (!primary) {
        return {};
    }
    const QScreen* holder = primary;
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (frameInDevicePixels(*screen).contains(pixel)) {
            holder = screen;
            break;
        }
    }
    return globalFromDesktop(
        desktopFromDevicePixels(pixel, holder->geometry().topLeft(), holder->devicePixelRatio()),
        QRectF(primary->geometry()));
}

QScreen* QtScreens::screenWithKeyboard() const {
    const std::optional<QRect> window = m_activeWindowFrame();
    QScreen* holder = nullptr;
    qint64 largest = 0;
    for (QScreen* screen : QGuiApplication::screens()) {
        const qint64 shared = window ? area(frameInDevicePixels(*screen).intersected(*window)) : 0;
        if (shared > largest) {
            largest = shared;
            holder = screen;
        }
    }
    return holder;
}

void QtScreens::watch(QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, &QtScreens::noteChange);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, &QtScreens::noteChange);
}

void QtScreens::noteChange() {
    if (!std::exchange(m_isChangePending, true)) {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

bool QtScreens::event(QEvent* event) {
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    m_isChangePending = false;
    if (m_changed) {
        m_changed();
    }
    return true;
}

} // namespace quillon::desktop
