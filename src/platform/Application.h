#pragma once

#include "platform/Menu.h"
#include "platform/Window.h"

#include <string_view>
#include <vector>

namespace quillon {

enum class ActivationPolicy { regular = 0, accessory = 1 };

/// The end of the responder chain but for the application itself.
class ApplicationDelegate {
public:
    virtual ~ApplicationDelegate() = default;

    virtual void applicationDidFinishLaunching() = 0;
    virtual void applicationWillTerminate() = 0;
    /// Carries out the action of that name; false when it is not one of the delegate's.
    virtual bool perform(std::string_view selector) = 0;
};

/// The program as the desktop sees it.
class Application {
public:
    virtual ~Application() = default;

    virtual void setActivationPolicy(ActivationPolicy policy) = 0;
    /// Brings the program to the front, so that its windows may take the keyboard.
    virtual void activate(bool ignoringOtherApps) = 0;
    /// Ends the main loop, after which the delegate hears `applicationWillTerminate`.
    virtual void terminate() = 0;

    /// Held by whoever made it; null for none.
    void setDelegate(ApplicationDelegate* delegate) { m_delegate = delegate; }
    ApplicationDelegate* delegate() const { return m_delegate; }

    /// The menu of windows that carry a menu bar.
    void setMainMenu(const Menu& menu) { m_mainMenu = menu; }
    const Menu& mainMenu() const { return m_mainMenu; }

    /// Sends an action up the responder chain: to the delegate, then to the application, which
    /// knows "terminate:". False when nobody took it.
    bool sendAction(std::string_view selector);

    /// All windows of the program, in order of their making.
    const std::vector<Window*>& windows() const { return m_windows; }
    void addWindow(Window& window);
    void removeWindow(Window& window);

private:
    ApplicationDelegate* m_delegate = nullptr;
    Menu m_mainMenu;
    std::vector<Window*> m_windows;
};

} // namespace quillon
