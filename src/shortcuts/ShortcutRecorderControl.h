#pragma once

#include "platform/KeyEvent.h"
#include "platform/SystemColor.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace quillon {

/// The small button-like control that captures the next key press. It decides nothing about the
/// binding: it reports what happened, and its owner tells it whether it records.
///
/// 1. A click makes it the first responder and calls `onBegin`; the owner sets it recording.
/// 2. A key with a modifier calls `onCapture`, Escape with or without one calls `onCancel`; the
///    owner ends the recording.
/// 3. A key without a modifier calls `onRequireModifier`; the recording goes on.
///
/// Repeats of a held key, and every key while it does not record, end here without effect.
class ShortcutRecorderControl {
public:
    using Action = std::function<void()>;
    using CaptureAction = std::function<void(std::uint32_t keyCode, std::uint32_t modifiers)>;

    /// The label in the middle of the control: centred, system font of weight medium.
    struct TitleField {
        static constexpr double fontSize = 12;

        std::string stringValue;
        SystemColor textColor = SystemColor::labelColor;

        friend bool operator==(const TitleField&, const TitleField&) = default;
    };

    /// It draws nothing but its fill, a rounded rectangle over all of its bounds.
    static constexpr double cornerRadius = 6;
    static constexpr std::string_view accessibilityLabel = "Record keyboard shortcut";
    static constexpr bool acceptsFirstResponder = true;

    const TitleField& titleField() const { return m_titleField; }
    SystemColor fill() const;

    const std::string& title() const { return m_title; }
    void setTitle(const std::string& title);
    bool isRecording() const { return m_isRecording; }
    void setRecording(bool recording);

    Action onBegin;
    Action onCancel;
    CaptureAction onCapture;
    Action onRequireModifier;

    /// What the host has for a control that stands in a window; both may be empty.
    Action makeFirstResponder;
    Action setNeedsDisplay;

    void mouseDown();
    void keyDown(const KeyEvent& event);

private:
    void display() const;

    TitleField m_titleField;
    std::string m_title;
    bool m_isRecording = false;
};

} // namespace quillon
