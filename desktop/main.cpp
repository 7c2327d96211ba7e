#include "desktop/qt/ActiveWindow.h"
#include "desktop/qt/ColorScheme.h"
#include "desktop/qt/QtApplication.h"
#include "desktop/qt/QtEventMonitors.h"
#include "desktop/qt/QtFileWatch.h"
#include "desktop/qt/QtGraphics.h"
#include "desktop/qt/QtImages.h"
#include "desktop/qt/QtMainQueue.h"
#include "desktop/qt/QtScreens.h"
#include "desktop/qt/QtStatusBar.h"
#include "desktop/qt/QtWindows.h"
#include "desktop/qt/QtWorkspace.h"
#include "desktop/qt/UnixSignals.h"
#include "desktop/qt/X11EventFilter.h"
#include "desktop/qt/settings/SettingsWidget.h"
#include "desktop/storage/SqliteDefaults.h"
#include "desktop/x11/GrabbedKeyboard.h"
#include "desktop/x11/Monitors.h"
#include "desktop/x11/SingleInstance.h"
#include "desktop/x11/X11HotKeys.h"
#include "desktop/x11/X11ScreenCapture.h"
#include "desktop/x11/XcbHandles.h"
#include "platform/Host.h"
#include "shell/OrvalisCloneApp.h"

#include <QApplication>
#include <QScreen>
#include <QThreadPool>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace quillon;
using namespace quillon::desktop;

namespace {

/// True when an X server answers. The toolkit would abort the program if none did.
bool hasDisplay() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

void prepareToolkit() {
    // Under Wayland the program runs through XWayland: it needs what only X11 offers.
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Small parts of a picture are on the screen sooner when they travel with their request: with
    // shared memory every paint would first wait for the server to have read the one before.
    qputenv("QT_XCB_NO_MITSHM", "1");
    // A large area is filled by several threads. Those stay: to let go of them, each would wake up
    // once more, half a minute after the last work.
    QThreadPool::globalInstance()->setExpiryTimeout(-1);
    // The toolkit's own loop is a tenth quicker from a motion to its picture than the one of GLib,
    // which only dialogs of another toolkit would need.
    qputenv("QT_NO_GLIB", "1");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // Every change is saved when it is made, and whether the program starts again with the session
    // is for the user's own autostart to say: there is nothing to tell a session manager.
    QCoreApplication::setAttribute(Qt::AA_DisableSessionManager);
    QGuiApplication::setDesktopFileName("quillon-mark");
    // No display name is set: the toolkit would write it behind the title of every window.
    QCoreApplication::setApplicationName("quillon-mark");
}

/// The settings are the one view that is made of controls.
ControlsLayout controlsLayout(const X11HotKeys& hotKeys) {
    return [&hotKeys](ControlsView& view) {
        return std::make_unique<SettingsWidget>(
            dynamic_cast<SettingsView&>(view),
            [&hotKeys](const QKeyEvent& event) { return readKey(event, hotKeys.keyboardMap()); });
    };
}

/// Makes the ports, gives them to the system, and runs the loop to its end.
int run(QApplication& application, xcb_connection_t* connection) {
    const xcb_window_t root = rootWindow(connection);
    SingleInstance instance(connection, root, SingleInstance::selectionName(getuid()));
    if (instance.acquire() == SingleInstance::Outcome::handedOver) {
        return EXIT_SUCCESS;
    }

    const ColorScheme colorScheme(QDBusConnection::sessionBus());
    QtMainQueue mainQueue;
    SqliteDefaults userDefaults(userConfigFolder());
    QtApplication system;
    MonitorNumbers monitorNumbers(connection);
    QtScreens screens([connection] { return activeWindowFrame(connection); },
                      [&](const std::string& name) { return monitorNumbers.numberOf(name); });
    X11HotKeys hotKeys(connection, root);
    QtWindows windows(connection, system, controlsLayout(hotKeys));
    X11EventFilter events;
    // The toolkit would take a shortcut held down for a loss of the keyboard, and end text entry.
    const auto grabEvents = events.addHandler(tellsOfKeyboardGrab);
    QtStatusBar statusBar(events, connection, system);
    QtImages images;
    QtGraphics graphics;
    QtEventMonitors eventMonitors(
        connection, qEnvironmentVariable("DISPLAY").toStdString(),
        {.toGlobal = [&](QPoint pixel) { return screens.globalFromDevicePixel(pixel); },
         .holdsPointer =
             [&] { return windows.holdPointer() || QApplication::activePopupWidget(); }});
    QtWorkspace workspace;
    X11ScreenCapture screenCapture(
        {qEnvironmentVariable("DISPLAY").toStdString(), mainQueue, qtFileWatch(),
         [&](const xcb_rectangle_t& rect) { return windows.hide(rect); }},
        [] {
            const QScreen* primary = QGuiApplication::primaryScreen();
            return primary ? primary->devicePixelRatio() : 1;
        });
    Host host({mainQueue, userDefaults, system, windows, screens, hotKeys, statusBar, images,
               graphics, eventMonitors, workspace, screenCapture});
    OrvalisCloneApp app;

    const auto instanceEvents = events.addHandler(
        [&](const xcb_generic_event_t& event) { return instance.handleEvent(event); });
    const auto hotKeyEvents = events.addHandler(
        [&](const xcb_generic_event_t& event) { return hotKeys.handleEvent(event); });
    const auto windowEvents = events.addHandler(
        [&](const xcb_generic_event_t& event) { return windows.handleEvent(event); });
    instance.onActivated = [&] { system.sendAction("openSettings"); };
    screens.setChangeHandler([&] {
        host.notificationCenter().post(NSApplicationDidChangeScreenParametersNotification);
    });
    const UnixSignals signalsToEnd([&] { system.terminate(); });

    app.appDelegate().applicationDidFinishLaunching();
    const int status = application.exec();
    app.appDelegate().applicationWillTerminate();
    return status;
}

} // namespace

int main(int argc, char** argv) {
    if (!hasDisplay()) {
        std::fprintf(stderr, "quillon-mark: no X display answers; is DISPLAY set?\n");
        return EXIT_FAILURE;
    }
    prepareToolkit();
    // There is no command line: the toolkit sees the program's name and none of its own options,
    // one of which would take the place of X11.
    int nameAlone = std::min(argc, 1);
    QApplication application(nameAlone, argv);
    // Every place that the pointer passed becomes a point of the stroke. The platform switches this
    // on when it comes up, so it is switched off here.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    const auto* x11 = application.nativeInterface<QNativeInterface::QX11Application>();
    if (!x11) {
        std::fprintf(stderr, "quillon-mark: the toolkit came up without X11\n");
        return EXIT_FAILURE;
    }
    return run(application, x11->connection());
}
