#pragma once

#include "foundation/Published.h"
#include "settings/AboutPage.h"
#include "settings/Form.h"

#include <variant>

namespace quillon {

using PageContent = std::variant<Form, AboutPage>;

/// What one tab shows. It is made when its tab is selected and goes with it.
///
/// It announces the changes of its own state; those of the settings are heard by whoever holds it.
class SettingsPage : public ObservableObject {
public:
    virtual ~SettingsPage() = default;

    virtual PageContent content() = 0;
    /// The page has come on screen.
    virtual void onAppear() {}
    /// The page leaves the screen. It comes back at once when the settings are reset, else never.
    virtual void onDisappear() {}
};

} // namespace quillon
