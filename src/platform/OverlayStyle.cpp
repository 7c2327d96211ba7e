#include "platform/OverlayStyle.h"

#include "platform/Window.h"

namespace quillon {

void applyOverlayStyle(Window& window) {
    window.setOpaque(false);
    window.setBackgroundColor(Color::clear);
    window.setLevel(NSFloatingWindowLevel);
    window.setCollectionBehavior(NSWindowCollectionBehavior::canJoinAllSpaces |
                                 NSWindowCollectionBehavior::fullScreenAuxiliary |
                                 NSWindowCollectionBehavior::ignoresCycle);
    window.setIgnoresMouseEvents(true);
    window.setHasShadow(false);
}

} // namespace quillon
