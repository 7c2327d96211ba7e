#pragma once

#include "foundation/Binding.h"
#include "foundation/Color.h"
#include "foundation/Geometry.h"

#include <functional>
#include <string>

namespace quillon {

/// A single-line edit field with an empty placeholder that stands in a view, described as a value.
/// The host makes a real field with input-method support of it.
struct TextField {
    /// Another number is another field: the old one goes, a new one appears.
    int identity = 0;
    /// Where its centre stands, in view coordinates.
    CGPoint center;
    /// In points; the height is the field's natural one.
    CGFloat width = 0;
    CGFloat fontSize = 0;
    Color textColor = Color::black;
    Binding<std::string> text;
    /// Written by the host when the keyboard comes or goes, read by it to give the keyboard.
    Binding<bool> isFocused;
    /// Called once, when the field has appeared.
    std::function<void()> onAppear;
    /// Return was pressed.
    std::function<void()> onSubmit;
    /// Escape was pressed.
    std::function<void()> onExitCommand;
};

} // namespace quillon
