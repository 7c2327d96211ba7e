#pragma once

#include "desktop/qt/settings/KeyReader.h"
#include "settings/SettingsView.h"

#include <functional>

class QWidget;

namespace quillon::desktop {

/// The widgets of one row, and what brings them up to date with the values that they show.
struct FormRowWidgets {
    QWidget* row = nullptr;
    std::function<void()> refresh;
};

/// Makes the widgets of a row, which whoever takes them up owns. `refresh` is void once they are
/// gone.
FormRowWidgets makeFormRow(const FormRow& row, const KeyReader& readKey);

} // namespace quillon::desktop
