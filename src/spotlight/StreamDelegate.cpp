#include "spotlight/StreamDelegate.h"

#include "foundation/PrintLine.h"
#include "platform/Host.h"
#include "spotlight/SpotlightManager.h"

#include <utility>

namespace quillon {

StreamDelegate::StreamDelegate(std::shared_ptr<SpotlightManager> newManager, Int generation)
    : manager(std::move(newManager))
    , m_generation(generation) {}

void StreamDelegate::streamDidStopWithError(SCStream& /*stream*/, const CaptureError& error) {
    printLine("SCStream stopped with error: " + error.text);
    Host::current().mainQueue().async([manager = manager, generation = m_generation] {
        if (manager) {
            manager->streamStoppedBySystem(generation);
        }
    });
}

} // namespace quillon
