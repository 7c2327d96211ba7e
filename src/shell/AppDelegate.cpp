#include "shell/AppDelegate.h"

#include "cursor/CursorHighlightManager.h"
#include "foundation/FatalError.h"
#include "foundation/PrintLine.h"
#include "model/AppSettings.h"
#include "model/NotificationNames.h"
#include "platform/Host.h"
#include "platform/ProgramIcon.h"
#include "settings/SettingsView.h"
#include "shell/StatusMenu.h"
#include "shortcuts/HotkeyManager.h"
#include "spotlight/SpotlightManager.h"

#include <optional>
#include <span>
#include <string>
#include <utility>

namespace quillon {

namespace {

constexpr std::string_view kIdleSymbol = "pencil.and.outline";
constexpr std::string_view kDrawingSymbol = "pencil.and.outline.fill";
constexpr std::string_view kIconDescription = "Orvalis Clone";
constexpr CGSize kIconSize{16, 16};

constexpr CGRect kOverlayWithoutScreen{0, 0, 1024, 768};
constexpr CGRect kOffScreen{-10000, -10000, 1, 1};
constexpr CGRect kSettingsContent{0, 0, 600, 500};
constexpr std::string_view kSettingsTitle = "Quillon Mark Settings";

struct Action {
    std::string_view selector;
    void (AppDelegate::*operation)();
};

/// The operations that notifications call, by the notification's name, in order of observation.
constexpr Action kToggles[] = {
    {NotificationName::toggleAnnotation, &AppDelegate::toggleAnnotation},
    {NotificationName::toggleWhiteboard, &AppDelegate::toggleWhiteboard},
    {NotificationName::toggleCursorHalo, &AppDelegate::toggleCursorHalo},
    {NotificationName::toggleSpotlight, &AppDelegate::toggleSpotlight},
    {NotificationName::toggleZoom, &AppDelegate::toggleZoom},
};

/// What else a menu or a button can ask for.
constexpr Action kCommands[] = {
    {"menuBarButtonClicked", &AppDelegate::menuBarButtonClicked},
    {"openSettings", &AppDelegate::openSettings},
    {NotificationName::clearAnnotations, &AppDelegate::clearAnnotations},
};

std::unique_ptr<Window> makeSettingsWindow() {
    const auto style =
        WindowStyleMask::titled | WindowStyleMask::closable | WindowStyleMask::miniaturizable;
    auto window = std::make_unique<Window>(kSettingsContent, style, BackingStoreType::buffered,
                                           /*defersCreation=*/false);
    window->setTitle(std::string(kSettingsTitle));
    window->setContentViewController(
        std::make_shared<HostingController>(std::make_unique<SettingsView>()));
    window->center();
    window->setReleasedWhenClosed(false);
    window->setLevel(NSFloatingWindowLevel);
    return window;
}

std::optional<Image> statusImage(std::string_view symbol) {
    auto image = programIcon(Host::current().images(), symbol, kIconDescription);
    if (image && image->kind == Image::Kind::asset) {
        image->size = kIconSize;
    }
    return image;
}

void showImage(StatusBarButton& button, std::string_view symbol) {
    if (const auto image = statusImage(symbol)) {
        button.setImage(*image);
    }
}

} // namespace

void AppDelegate::applicationDidFinishLaunching() {
    Host::current().application().setActivationPolicy(ActivationPolicy::accessory);
    AppSettings::shared();
    setupStatusItem();
    setupOverlayWindow();
    observeAnnotationSettings();
    setupHotkeys();
    observeHotkeySettings();
    CursorHighlightManager::shared();
    SpotlightManager::shared();
    sweepWindows();
}

void AppDelegate::applicationWillTerminate() {
    CursorHighlightManager::shared().stopTracking();
    HotkeyManager::shared().unregisterAllHotkeys();
    HotkeyManager::shared().stopListening();
}

bool AppDelegate::perform(std::string_view selector) {
    for (const auto& actions : {std::span<const Action>(kToggles), {kCommands}}) {
        for (const auto& action : actions) {
            if (action.selector == selector) {
                (this->*action.operation)();
                return true;
            }
        }
    }
    return false;
}

// Setting up.

void AppDelegate::setupStatusItem() {
    m_statusItem = Host::current().statusBar().statusItemWithLength(NSVariableStatusItemLength);
    if (StatusBarButton* button = m_statusItem->button()) {
        showImage(*button, kIdleSymbol);
        // With the menu set a click opens it, and the action does not fire.
        button->setAction("menuBarButtonClicked");
    }
    m_statusItem->setMenu(statusMenu());
}

void AppDelegate::setupOverlayWindow() {
    // Nothing is made at the start; `ensureOverlayWindow` does it at the first need.
}

void AppDelegate::ensureOverlayWindow() {
    if (m_overlayWindow) {
        return;
    }
    const auto screen = Host::current().screens().mainScreen();
    m_overlayWindow =
        std::make_unique<OverlayWindow>(screen ? screen->frame : kOverlayWithoutScreen);
    m_overlayWindow->setAnnotationMode(AppSettings::shared().isAnnotationEnabled);
    m_overlayWindow->orderFrontRegardless();
    m_observers.push_back(Host::current().notificationCenter().addObserver(
        NSApplicationDidChangeScreenParametersNotification,
        [this](const Notification&) { later([this] { updateOverlayForScreens(); }); }));
}

void AppDelegate::updateOverlayForScreens() {
    // The window follows the main screen alone, however many there are.
    if (m_overlayWindow) {
        m_overlayWindow->updateForScreen(
            Host::current().screens().mainScreen().value_or(NSScreen()));
    }
}

void AppDelegate::observeAnnotationSettings() {
    m_annotationSettingsObserver =
        AppSettings::shared().isAnnotationEnabled.sink([this](bool enabled) {
            later([this, enabled] {
                if (enabled) {
                    ensureOverlayWindow();
                    m_overlayWindow->orderFrontRegardless();
                }
                if (m_overlayWindow) {
                    m_overlayWindow->setAnnotationMode(enabled);
                }
                updateStatusItemState();
            });
        });
}

void AppDelegate::observeHotkeySettings() {
    m_hotkeySettingsObserver =
        AppSettings::shared().hotkeys.sinkDroppingFirst([this](const HotkeyMap& hotkeys) {
            later([hotkeys] { HotkeyManager::shared().registerHotkeys(hotkeys); });
        });
}

void AppDelegate::setupHotkeys() {
    HotkeyManager::shared().registerHotkeys(AppSettings::shared().hotkeys);
    HotkeyManager::shared().startListening();
    for (const auto& [name, operation] : kToggles) {
        m_observers.push_back(Host::current().notificationCenter().addObserver(
            name, [this, operation = operation](const Notification&) {
                later([this, operation] { (this->*operation)(); });
            }));
    }
}

void AppDelegate::sweepWindows() {
    for (Window* window : Host::current().application().windows()) {
        const bool stays =
            window == m_overlayWindow.get() || window->backgroundColor() == Color::clear ||
            window->backgroundColor() == Color::black || window->title() == kSettingsTitle;
        if (!stays) {
            window->setFrame(kOffScreen, /*display=*/false);
            window->setExcludedFromWindowsMenu(true);
            window->setMovable(false);
        }
    }
}

void AppDelegate::updateStatusItemState() {
    if (!m_statusItem) {
        fatalError("there is no status item");
    }
    if (StatusBarButton* button = m_statusItem->button()) {
        showImage(*button,
                  AppSettings::shared().isAnnotationEnabled ? kDrawingSymbol : kIdleSymbol);
    }
}

void AppDelegate::later(std::function<void()> work) {
    Host::current().mainQueue().async(m_lifetime.guard(std::move(work)));
}

// What the menu and the shortcuts do.

void AppDelegate::menuBarButtonClicked() {
    toggleAnnotation();
}

void AppDelegate::toggleAnnotation() {
    auto& isEnabled = AppSettings::shared().isAnnotationEnabled;
    const bool next = !isEnabled;
    isEnabled = next;
    ensureOverlayWindow();
    m_overlayWindow->setAnnotationMode(next);
    m_overlayWindow->orderFrontRegardless();
    updateStatusItemState();
}

void AppDelegate::toggleWhiteboard() {
    auto& settings = AppSettings::shared();
    settings.isWhiteboardMode = !settings.isWhiteboardMode;
    if (settings.isWhiteboardMode) {
        settings.isAnnotationEnabled = true;
    }
    ensureOverlayWindow();
    m_overlayWindow->setAnnotationMode(settings.isAnnotationEnabled);
    m_overlayWindow->clearAnnotations();
}

void AppDelegate::toggleCursorHalo() {
    auto& isStoredAsOn = AppSettings::shared().isCursorHaloEnabled;
    const bool next = !isStoredAsOn;
    isStoredAsOn = next;
    CursorHighlightManager::shared().isEnabled = next;
}

void AppDelegate::toggleSpotlight() {
    auto& manager = SpotlightManager::shared();
    manager.toggleSpotlight();
    AppSettings::shared().isSpotlightEnabled = manager.isSpotlightEnabled;
}

void AppDelegate::toggleZoom() {
    auto& manager = SpotlightManager::shared();
    manager.toggleZoom();
    AppSettings::shared().isZoomEnabled = manager.isZoomEnabled;
}

void AppDelegate::openSettings() {
    printLine("AppDelegate: openSettings called");
    Host::current().application().activate(/*ignoringOtherApps=*/true);
    if (m_settingsWindow) {
        printLine("AppDelegate: settings window exists, bringing to front");
        m_settingsWindow->makeKeyAndOrderFront();
        return;
    }
    printLine("AppDelegate: creating new settings window");
    m_settingsWindow = makeSettingsWindow();
    m_settingsWindowObserver = Host::current().notificationCenter().addObserver(
        NSWindowWillCloseNotification, [this](const Notification& notification) {
            if (notification.object == m_settingsWindow.get()) {
                printLine("AppDelegate: settings window closed");
                m_settingsWindow.reset();
            }
        });
    printLine("AppDelegate: showing settings window");
    m_settingsWindow->makeKeyAndOrderFront();
}

void AppDelegate::clearAnnotations() {
    Host::current().notificationCenter().post(NotificationName::clearAnnotations);
}

} // namespace quillon
