#include "shortcuts/ShortcutRecorderView.h"

namespace quillon {

std::unique_ptr<ShortcutRecorderControl> ShortcutRecorderView::makeControl() const {
    auto control = std::make_unique<ShortcutRecorderControl>();
    updateControl(*control);
    return control;
}

void ShortcutRecorderView::updateControl(ShortcutRecorderControl& control) const {
    control.setTitle(title);
    control.setRecording(isRecording);
    control.onBegin = onBegin;
    control.onCancel = onCancel;
    control.onCapture = onCapture;
    control.onRequireModifier = onRequireModifier;
}

} // namespace quillon
