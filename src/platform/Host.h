#pragma once

#include "foundation/NotificationCenter.h"
#include "platform/Application.h"
#include "platform/EventMonitors.h"
#include "platform/Graphics.h"
#include "platform/HotKeys.h"
#include "platform/Image.h"
#include "platform/MainQueue.h"
#include "platform/ScreenCapture.h"
#include "platform/Screens.h"
#include "platform/StatusBar.h"
#include "platform/UserDefaults.h"
#include "platform/WindowBackend.h"
#include "platform/Workspace.h"

#include <functional>
#include <memory>
#include <typeindex>
#include <utility>
#include <vector>

namespace quillon {

/// The desktop that the system runs on: one port for each thing it asks of it.
///
/// Exactly one host is installed while anything of the system lives. The host holds the shared
/// instances, so that a fresh host starts from nothing; they go in the reverse order of their
/// making, after the work that is still pending and before the ports that they use.
class Host {
public:
    /// What a host is made of. Every port outlives the host.
    struct Ports {
        std::reference_wrapper<MainQueue> mainQueue;
        std::reference_wrapper<UserDefaults> userDefaults;
        std::reference_wrapper<Application> application;
        std::reference_wrapper<Windows> windows;
        std::reference_wrapper<Screens> screens;
        std::reference_wrapper<HotKeys> hotKeys;
        std::reference_wrapper<StatusBar> statusBar;
        std::reference_wrapper<Images> images;
        std::reference_wrapper<Graphics> graphics;
        std::reference_wrapper<EventMonitors> eventMonitors;
        std::reference_wrapper<Workspace> workspace;
        std::reference_wrapper<ScreenCapture> screenCapture;
    };

    /// Installs itself; only one may stand at a time.
    explicit Host(const Ports& ports);
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /// The installed host. To ask for it when there is none is a broken assumption and ends the
    /// program.
    static Host& current();

    MainQueue& mainQueue() const { return m_ports.mainQueue; }
    UserDefaults& userDefaults() const { return m_ports.userDefaults; }
    Application& application() const { return m_ports.application; }
    Windows& windows() const { return m_ports.windows; }
    Screens& screens() const { return m_ports.screens; }
    HotKeys& hotKeys() const { return m_ports.hotKeys; }
    StatusBar& statusBar() const { return m_ports.statusBar; }
    Images& images() const { return m_ports.images; }
    Graphics& graphics() const { return m_ports.graphics; }
    EventMonitors& eventMonitors() const { return m_ports.eventMonitors; }
    Workspace& workspace() const { return m_ports.workspace; }
    ScreenCapture& screenCapture() const { return m_ports.screenCapture; }
    /// The default notification centre.
    NotificationCenter& notificationCenter() { return m_notificationCenter; }

    /// The one instance of a shared service, made by `make` on first use.
    template <typename Service, typename Make>
    Service& shared(Make&& make) {
        for (const auto& [type, instance] : m_sharedInstances) {
            if (type == typeid(Service)) {
                return *static_cast<Service*>(instance.get());
            }
        }
        std::shared_ptr<Service> made = make();
        m_sharedInstances.emplace_back(typeid(Service), made);
        return *made;
    }

private:
    Ports m_ports;
    NotificationCenter m_notificationCenter;
    std::vector<std::pair<std::type_index, std::shared_ptr<void>>> m_sharedInstances;
};

} // namespace quillon
