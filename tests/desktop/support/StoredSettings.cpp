#include "desktop/support/StoredSettings.h"

#include "desktop/storage/SqliteDefaults.h"
#include "support/FakeHost.h"

namespace quillon::test {

void withStoredSettings(const std::string& configFolder,
                        const std::function<void(AppSettings&)>& change) {
    desktop::SqliteDefaults defaults(configFolder);
    HandTurnedQueue mainQueue;
    FakeApplication application;
    FakeWindows windows;
    FakeScreens screens;
    FakeHotKeys hotKeys;
    FakeStatusBar statusBar;
    FakeImages images;
    RecordingGraphics graphics;
    Host host(
        {mainQueue, defaults, application, windows, screens, hotKeys, statusBar, images, graphics});
    change(AppSettings::shared());
}

} // namespace quillon::test
