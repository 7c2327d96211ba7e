#pragma once

#include "desktop/support/ChildProcess.h"
#include "desktop/support/TemporaryFolder.h"
#include "desktop/support/XConnection.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon::test {

/// A desktop of a test's own: an X server without a screen, with a compositor and a window manager,
/// and a home that starts empty. Everything ends with it.
class VirtualDesktop {
public:
    struct Options {
        int width = 1920;
        int height = 1080;
        int depth = 24;
        /// Without one the server draws no pointer, as where the hardware shows it.
        bool hasCursor = true;
        /// What the server is to do without, by the names of the extensions.
        std::vector<std::string> withoutExtensions = {};
        bool hasCompositor = true;
        bool hasWindowManager = true;
        /// A number that no other desktop comes to, so that nobody answers to it once this one has
        /// gone. Else it is the first free one, and the next server may take it up.
        bool hasOwnNumber = false;
    };

    VirtualDesktop()
        : VirtualDesktop(Options()) {}
    explicit VirtualDesktop(const Options& options);

    const std::string& display() const { return m_display; }
    XConnection& connection() { return *m_connection; }
    /// Where programs of this desktop keep their settings.
    std::string configFolder() const { return m_home.path() + "/config"; }
    /// The environment of a program that belongs to this desktop, and of nothing else around.
    ChildProcess::Environment environment() const;

    /// Starts a panel with a tray along the upper edge, 30 pixels high, and waits until it takes
    /// items.
    void startTray();
    void stopTray();
    void stopCompositor();
    /// Takes the display away from everybody. Where its name is asked for after that, it needs a
    /// number of its own.
    void stopServer();
    /// As a task bar's switch of desktops would.
    void showWorkspace(std::uint32_t index);

    /// Starts a program of the desktop, such as a tray, which then runs to the end.
    ChildProcess& start(const std::vector<std::string>& command);

private:
    void startServer(const Options& options);
    void startCompositor();
    void startWindowManager();
    /// Whether the window manager takes up a window that is mapped now.
    bool managesNewWindow();

    TemporaryFolder m_home;
    std::string m_display;
    // The clients go before the server does.
    std::unique_ptr<ChildProcess> m_server;
    ChildProcess* m_tray = nullptr;
    ChildProcess* m_compositor = nullptr;
    std::vector<std::unique_ptr<ChildProcess>> m_clients;
    std::unique_ptr<XConnection> m_connection;
};

} // namespace quillon::test
