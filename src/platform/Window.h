#pragma once

#include "foundation/Color.h"
#include "foundation/Geometry.h"
#include "platform/HostingView.h"
#include "platform/WindowStyle.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace quillon {

/// Posted on the notification centre when a window closes, with the window as the object.
inline constexpr std::string_view NSWindowWillCloseNotification = "NSWindowWillCloseNotification";

class WindowBackend;

/// A window of the system. Its properties are kept here, so that they can be read back, and handed
/// on to the host, which makes them true.
///
/// A window that ignores the mouse lets every click through to what lies below it. It does not keep
/// the keyboard either: the keyboard goes back to the window that had it, unless a text field is
/// being typed in.
class Window {
public:
    Window(const CGRect& contentRect, WindowStyleMask styleMask, BackingStoreType backing,
           bool defersCreation);
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    virtual bool canBecomeKeyWindow() const { return styleMask() != WindowStyleMask::borderless; }

    WindowStyleMask styleMask() const { return m_styleMask; }
    BackingStoreType backingType() const { return m_backing; }
    bool defersCreation() const { return m_defersCreation; }

    /// Tells one kind of window from another, in the list of all windows.
    const std::string& identifier() const { return m_identifier; }
    void setIdentifier(std::string identifier) { m_identifier = std::move(identifier); }
    const std::string& title() const { return m_title; }
    void setTitle(std::string title) { m_title = std::move(title); }

    bool isOpaque() const { return m_isOpaque; }
    void setOpaque(bool opaque) { m_isOpaque = opaque; }
    const Color& backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const Color& color) { m_backgroundColor = color; }
    int level() const { return m_level; }
    void setLevel(int level) { m_level = level; }
    std::uint32_t collectionBehavior() const { return m_collectionBehavior; }
    void setCollectionBehavior(std::uint32_t behavior) { m_collectionBehavior = behavior; }
    bool hasShadow() const { return m_hasShadow; }
    void setHasShadow(bool hasShadow) { m_hasShadow = hasShadow; }
    bool isReleasedWhenClosed() const { return m_isReleasedWhenClosed; }
    void setReleasedWhenClosed(bool released) { m_isReleasedWhenClosed = released; }
    bool isExcludedFromWindowsMenu() const { return m_isExcludedFromWindowsMenu; }
    void setExcludedFromWindowsMenu(bool excluded) { m_isExcludedFromWindowsMenu = excluded; }
    bool isMovable() const { return m_isMovable; }
    void setMovable(bool movable) { m_isMovable = movable; }

    bool ignoresMouseEvents() const { return m_ignoresMouseEvents; }
    void setIgnoresMouseEvents(bool ignores);

    const CGRect& frame() const { return m_frame; }
    /// `display` puts the picture on the screen anew where the frame alone would change nothing
    /// there.
    void setFrame(const CGRect& frame, bool display, bool animate = false);
    /// Moves the window to the middle of the main screen, with half as much room above it as
    /// below. It stays where it is when no screen is known.
    void center();
    /// The area of the content in the window's own coordinates.
    CGRect contentBounds() const { return {0, 0, m_frame.width, m_frame.height}; }

    const std::shared_ptr<HostingView>& contentView() const { return m_contentView; }
    void setContentView(std::shared_ptr<HostingView> view);
    const std::shared_ptr<HostingController>& contentViewController() const {
        return m_contentViewController;
    }
    void setContentViewController(std::shared_ptr<HostingController> controller);

    bool isVisible() const { return m_isVisible; }
    void orderFrontRegardless();
    void makeKeyAndOrderFront();
    void orderOut();
    /// Takes the window off the screen and announces that it closes, upon which its owner may
    /// destroy it.
    void close();

private:
    void noteShown();

    WindowStyleMask m_styleMask;
    BackingStoreType m_backing;
    bool m_defersCreation;
    CGRect m_frame;
    std::string m_identifier;
    std::string m_title;
    bool m_isOpaque = true;
    Color m_backgroundColor = Color::white;
    int m_level = 0;
    std::uint32_t m_collectionBehavior = 0;
    bool m_hasShadow = true;
    bool m_isReleasedWhenClosed = true;
    bool m_isExcludedFromWindowsMenu = false;
    bool m_isMovable = true;
    bool m_ignoresMouseEvents = false;
    bool m_isVisible = false;
    std::shared_ptr<HostingView> m_contentView;
    std::shared_ptr<HostingController> m_contentViewController;
    std::unique_ptr<WindowBackend> m_backend;
};

} // namespace quillon
