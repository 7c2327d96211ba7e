#pragma once

#include "shortcuts/ShortcutRecorderControl.h"

#include <memory>
#include <string>

namespace quillon {

/// What a recorder control is to be, as a value that its owner makes anew for every update.
struct ShortcutRecorderView {
    /// The text to show.
    std::string title;
    /// Whether the owner regards this control as recording.
    bool isRecording = false;
    ShortcutRecorderControl::Action onBegin;
    ShortcutRecorderControl::Action onCancel;
    ShortcutRecorderControl::CaptureAction onCapture;
    ShortcutRecorderControl::Action onRequireModifier;

    std::unique_ptr<ShortcutRecorderControl> makeControl() const;
    /// Pushes all members into a control that was made before.
    void updateControl(ShortcutRecorderControl& control) const;
};

} // namespace quillon
