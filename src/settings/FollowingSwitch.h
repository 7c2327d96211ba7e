#pragma once

#include "foundation/Published.h"
#include "model/AppSettings.h"

namespace quillon {

/// Lets the stored switch follow the running one for as long as the result is kept. An assignment
/// of what the running one already is writes nothing.
[[nodiscard]] inline Cancellable follow(Published<bool>& running,
                                        AppSettings::Setting<bool>& stored) {
    return running.sinkDroppingFirst([&running, &stored](bool next) {
        if (next != running.get()) {
            stored = next;
        }
    });
}

} // namespace quillon
