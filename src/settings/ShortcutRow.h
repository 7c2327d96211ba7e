#pragma once

#include "foundation/Geometry.h"
#include "shortcuts/HotkeyManager.h"

#include <functional>
#include <optional>
#include <string>

namespace quillon {

/// What stands at the right of a shortcut's row at one moment.
struct ShortcutRowState {
    enum class Clear { absent, disabled, enabled };

    /// The text of the binding in a capsule; without one the row says that none is set.
    std::optional<std::string> binding;
    ShortcutRecorderView recorder;
    /// Whether the recorder takes the pointer.
    bool allowsHitTesting = true;
    Clear clear = Clear::absent;
};

/// The shortcut of one action: its name, its binding, the recorder, and a button that clears it.
struct ShortcutRow {
    static constexpr CGSize recorderSize{132, 28};
    static constexpr CGFloat capsulePaddingX = 8;
    static constexpr CGFloat capsulePaddingY = 4;
    static constexpr double capsuleOpacity = 0.15;
    static constexpr const char* notSetText = "Not set";
    static constexpr const char* clearTitle = "Clear";

    std::string label;
    std::function<ShortcutRowState()> state;
    std::function<void()> clear;
};

} // namespace quillon
