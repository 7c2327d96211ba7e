#include "support/FakePorts.h"

namespace quillon::test {

FakePorts::FakePorts() = default;
FakePorts::~FakePorts() = default;

Host::Ports FakePorts::ports() {
    return {mainQueue, userDefaults, application, windows,       screens,   hotKeys,
            statusBar, images,       graphics,    eventMonitors, workspace, screenCapture};
}

} // namespace quillon::test
