#include "cursor/CursorWindow.h"

namespace quillon {

void makeCursorWindow(Window& window) {
    window.setOpaque(false);
    window.setBackgroundColor(Color::clear);
    window.setLevel(NSFloatingWindowLevel);
    window.setCollectionBehavior(NSWindowCollectionBehavior::canJoinAllSpaces |
                                 NSWindowCollectionBehavior::fullScreenAuxiliary |
                                 NSWindowCollectionBehavior::ignoresCycle);
    window.setIgnoresMouseEvents(true);
    window.setHasShadow(false);
    // The manager owns its windows, also closed ones.
    window.setReleasedWhenClosed(false);
}

} // namespace quillon
