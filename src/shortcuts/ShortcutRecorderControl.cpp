#include "shortcuts/ShortcutRecorderControl.h"

#include "shortcuts/HotkeyShortcutFormatter.h"

namespace quillon {

namespace {

constexpr std::uint16_t kEscape = 53;

void call(const ShortcutRecorderControl::Action& action) {
    // The owner may replace the action while it runs.
    if (const auto present = action) {
        present();
    }
}

} // namespace

SystemColor ShortcutRecorderControl::fill() const {
    return m_isRecording ? SystemColor::controlAccentColor : SystemColor::controlBackgroundColor;
}

void ShortcutRecorderControl::setTitle(const std::string& title) {
    m_title = title;
    m_titleField.stringValue = title;
    display();
}

void ShortcutRecorderControl::setRecording(bool recording) {
    m_isRecording = recording;
    m_titleField.textColor = recording ? SystemColor::whiteColor : SystemColor::labelColor;
    display();
}

void ShortcutRecorderControl::mouseDown() {
    call(makeFirstResponder);
    call(onBegin);
}

void ShortcutRecorderControl::keyDown(const KeyEvent& event) {
    if (!m_isRecording || event.isRepeat) {
        return;
    }
    if (event.keyCode == kEscape) {
        call(onCancel);
        return;
    }
    const std::uint32_t modifiers = HotkeyShortcutFormatter::carbonModifiers(event.modifierFlags);
    if (modifiers == 0) {
        call(onRequireModifier);
        return;
    }
    if (const auto capture = onCapture) {
        capture(event.keyCode, modifiers);
    }
}

void ShortcutRecorderControl::display() const {
    call(setNeedsDisplay);
}

} // namespace quillon
