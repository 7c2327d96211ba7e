#include "shell/StatusMenu.h"

namespace quillon {

namespace {

MenuItem item(const char* title, const char* action, const char* keyEquivalent = "") {
    MenuItem entry;
    entry.title = title;
    entry.action = action;
    entry.keyEquivalent = keyEquivalent;
    return entry;
}

} // namespace

Menu statusMenu() {
    return {"",
            {
                item("Toggle Annotation", "toggleAnnotation"),
                item("Toggle Whiteboard", "toggleWhiteboard"),
                item("Toggle Cursor Halo", "toggleCursorHalo"),
                item("Toggle Spotlight", "toggleSpotlight"),
                item("Toggle Zoom", "toggleZoom"),
                MenuItem::separator(),
                item("Preferences...", "openSettings", ","),
                MenuItem::separator(),
                item("Quit", "terminate:", "q"),
            }};
}

Menu annotationCommandMenu() {
    return {"Annotation",
            {
                item("Toggle Annotation Mode", "toggleAnnotation"),
                MenuItem::separator(),
                item("Clear All", "clearAnnotations"),
            }};
}

} // namespace quillon
