#include "desktop/support/StoredSettings.h"

#include "desktop/storage/SqliteDefaults.h"
#include "support/FakePorts.h"

namespace quillon::test {

void withStoredSettings(const std::string& configFolder,
                        const std::function<void(AppSettings&)>& change) {
    desktop::SqliteDefaults defaults(configFolder);
    FakePorts fakes;
    Host::Ports ports = fakes.ports();
    ports.userDefaults = defaults;
    const Host host(ports);
    change(AppSettings::shared());
}

} // namespace quillon::test
