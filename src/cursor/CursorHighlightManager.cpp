#include "cursor/CursorHighlightManager.h"

#include "cursor/HaloView.h"
#include "platform/Host.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr CGFloat kHaloSize = 40;
constexpr CGFloat kClickAnimationPart = 1.5;
/// A tenth longer than the animation takes.
constexpr double kClickAnimationLife = 0.5;

constexpr std::uint64_t kGlobalMask = NSEventMask::mouseMoved | NSEventMask::leftMouseDown |
                                      NSEventMask::rightMouseDown | NSEventMask::otherMouseDown;
constexpr std::uint64_t kLocalMask = NSEventMask::leftMouseDown | NSEventMask::rightMouseDown;

void removeMonitor(std::optional<EventMonitorToken>& token) {
    if (const auto monitor = std::exchange(token, std::nullopt)) {
        Host::current().eventMonitors().removeMonitor(*monitor);
    }
}

} // namespace

CursorHighlightManager& CursorHighlightManager::shared() {
    return Host::current().shared<CursorHighlightManager>(
        [] { return std::shared_ptr<CursorHighlightManager>(new CursorHighlightManager()); });
}

CursorHighlightManager::CursorHighlightManager()
    : isEnabled(*this, false, [this](bool isNowEnabled) { isEnabledDidSet(isNowEnabled); })
    , haloShape(*this, HaloShape::ring, [this](HaloShape) { updateHaloAppearance(); })
    , haloColor(*this, Color::cyan, [this](const Color&) { updateHaloAppearance(); })
    , haloSize(*this, kHaloSize, [this](CGFloat) { updateHaloAppearance(); })
    , clickAnimationType(*this, ClickAnimationType::pulse) {
    setupSettingsObserver();
}

void CursorHighlightManager::setupSettingsObserver() {
    const auto follow = [this](auto& setting, auto& property) {
        m_settingsObservers.push_back(
            setting.sink(m_lifetime.guard([&property](const auto& value) { property = value; })));
    };
    auto& settings = AppSettings::shared();
    follow(settings.haloShape, haloShape);
    follow(settings.haloColor, haloColor);
    follow(settings.haloSize, haloSize);
    follow(settings.clickAnimationType, clickAnimationType);
}

void CursorHighlightManager::isEnabledDidSet(bool isNowEnabled) {
    if (isNowEnabled) {
        startTracking();
        return;
    }
    stopTracking();
    hideHalo();
    hideClickAnimations();
}

void CursorHighlightManager::updateSettings(std::optional<HaloShape> shape,
                                            std::optional<Color> color, std::optional<CGFloat> size,
                                            std::optional<ClickAnimationType> clickAnimation) {
    if (shape) {
        haloShape = *shape;
    }
    if (color) {
        haloColor = *color;
    }
    if (size) {
        haloSize = *size;
    }
    if (clickAnimation) {
        clickAnimationType = *clickAnimation;
    }
}

// Tracking.

void CursorHighlightManager::startTracking() {
    if (m_eventMonitor || m_localEventMonitor) {
        return;
    }
    if (!m_haloWindow) {
        m_haloWindow = std::make_unique<HaloWindow>();
    }
    auto& monitors = Host::current().eventMonitors();
    m_eventMonitor = monitors.addGlobalMonitorForEventsMatchingMask(
        kGlobalMask, m_lifetime.guard([this](const NSEvent& event) { handleEvent(event); }));
    m_localEventMonitor = monitors.addLocalMonitorForEventsMatchingMask(
        kLocalMask, [handle = m_lifetime.guard([this](const NSEvent& event) {
            handleClickEvent(event);
        })](const NSEvent& event) mutable {
            handle(event);
            return event;
        });
}

void CursorHighlightManager::stopTracking() {
    removeMonitor(m_eventMonitor);
    removeMonitor(m_localEventMonitor);
}

void CursorHighlightManager::handleEvent(const NSEvent& /*event*/) {
    const CGPoint location = Host::current().eventMonitors().mouseLocation();
    m_currentCursorLocation = location;
    Host::current().mainQueue().async(
        m_lifetime.guard([this, location] { updateHaloPosition(location); }));
}

void CursorHighlightManager::handleClickEvent(const NSEvent& event) {
    if (isEnabled && clickAnimationType != ClickAnimationType::none) {
        handleClick(Host::current().eventMonitors().mouseLocation(),
                    event.type == NSEventType::rightMouseDown);
    }
}

// The halo.

void CursorHighlightManager::updateHaloPosition(CGPoint location) {
    if (!isEnabled || !m_haloWindow) {
        return;
    }
    const CGFloat size = haloSize;
    m_haloWindow->setFrame({location.x - size / 2, location.y - size / 2, size, size},
                           /*display=*/true, /*animate=*/false);
    m_haloWindow->orderFrontRegardless();
}

void CursorHighlightManager::updateHaloAppearance() {
    if (!isEnabled) {
        return;
    }
    Host::current().mainQueue().async(m_lifetime.guard([this] {
        if (!isEnabled || !m_haloWindow || !m_haloWindow->contentView()) {
            return;
        }
        auto& content = *m_haloWindow->contentView();
        if (dynamic_cast<const HaloView*>(content.rootView.get())) {
            content.setRootView(std::make_unique<HaloView>(haloShape, haloColor, haloSize));
        }
    }));
}

void CursorHighlightManager::hideHalo() {
    if (m_haloWindow) {
        m_haloWindow->orderOut();
    }
}

// Click animations.

void CursorHighlightManager::handleClick(CGPoint location, bool isRightClick) {
    if (isEnabled && clickAnimationType != ClickAnimationType::none) {
        showClickAnimation(location, isRightClick);
    }
}

void CursorHighlightManager::showClickAnimation(CGPoint location, bool isRightClick) {
    const auto window = std::make_shared<ClickAnimationWindow>(
        location, haloColor, haloSize * kClickAnimationPart, clickAnimationType, isRightClick);
    m_clickAnimationWindows.push_back(window);
    window->show();
    Host::current().mainQueue().asyncAfter(kClickAnimationLife, m_lifetime.guard([this, window] {
        removeClickAnimationWindow(*window);
    }));
}

void CursorHighlightManager::removeClickAnimationWindow(const ClickAnimationWindow& window) {
    const auto entry = std::ranges::find(m_clickAnimationWindows, &window,
                                         [](const auto& candidate) { return candidate.get(); });
    if (entry == m_clickAnimationWindows.end()) {
        return;
    }
    const auto removed = *entry;
    m_clickAnimationWindows.erase(entry);
    removed->close();
}

void CursorHighlightManager::hideClickAnimations() {
    for (const auto& window : m_clickAnimationWindows) {
        window->orderOut();
    }
}

} // namespace quillon
