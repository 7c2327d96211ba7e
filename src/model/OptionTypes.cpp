#include "model/AutoEraseTimer.h"
#include "model/HaloShape.h"
#include "model/HotkeyAction.h"
#include "model/MagnificationFactor.h"

namespace quillon {

std::string_view displayName(HaloShape shape) {
    switch (shape) {
    case HaloShape::ring:
        return "Ring";
    case HaloShape::squircle:
        return "Squircle";
    case HaloShape::rhombus:
        return "Rhombus";
    }
    return {};
}

std::string_view displayName(AutoEraseTimer timer) {
    switch (timer) {
    case AutoEraseTimer::off:
        return "Off";
    case AutoEraseTimer::twoSeconds:
        return "2 Seconds";
    case AutoEraseTimer::fiveSeconds:
        return "5 Seconds";
    case AutoEraseTimer::tenSeconds:
        return "10 Seconds";
    }
    return {};
}

std::optional<double> duration(AutoEraseTimer timer) {
    switch (timer) {
    case AutoEraseTimer::off:
        return std::nullopt;
    case AutoEraseTimer::twoSeconds:
        return 2.0;
    case AutoEraseTimer::fiveSeconds:
        return 5.0;
    case AutoEraseTimer::tenSeconds:
        return 10.0;
    }
    return {};
}

std::string_view displayName(MagnificationFactor magnification) {
    return rawValue(magnification);
}

CGFloat factor(MagnificationFactor magnification) {
    switch (magnification) {
    case MagnificationFactor::x1_5:
        return 1.5;
    case MagnificationFactor::x2:
        return 2.0;
    case MagnificationFactor::x4:
        return 4.0;
    case MagnificationFactor::x8:
        return 8.0;
    }
    return {};
}

std::string_view displayName(HotkeyAction action) {
    switch (action) {
    case HotkeyAction::toggleAnnotation:
        return "Toggle Annotation";
    case HotkeyAction::toggleWhiteboard:
        return "Toggle Whiteboard";
    case HotkeyAction::toggleCursorHalo:
        return "Toggle Cursor Halo";
    case HotkeyAction::toggleSpotlight:
        return "Toggle Spotlight";
    case HotkeyAction::toggleZoom:
        return "Toggle Zoom";
    case HotkeyAction::clearAnnotations:
        return "Clear Annotations";
    case HotkeyAction::undo:
        return "Undo";
    case HotkeyAction::redo:
        return "Redo";
    }
    return {};
}

} // namespace quillon
