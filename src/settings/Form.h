#pragma once

#include "settings/FormRow.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

struct FormSection {
    std::string title;
    std::vector<FormRow> rows;
};

/// A message in front of the window, with one button.
struct Alert {
    std::string title;
    std::string message;
    std::string button;
    /// The alert has gone, whether by its button or otherwise.
    std::function<void()> dismiss;
};

/// A page of controls in titled groups. It is described once, when its page comes on screen; what a
/// control shows is asked for anew whenever the page has changed.
struct Form {
    std::string navigationTitle;
    std::vector<FormSection> sections;
    /// The alert that is to show now. Empty when the form never shows one.
    std::function<std::optional<Alert>()> alert;
};

} // namespace quillon
