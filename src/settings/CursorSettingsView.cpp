#include "settings/CursorSettingsView.h"

#include "foundation/NumberText.h"
#include "settings/FollowingSwitch.h"

namespace quillon {

namespace {

/// The raw value with a capital.
std::string animationName(ClickAnimationType type) {
    std::string name(rawValue(type));
    name.front() = static_cast<char>(name.front() - 'a' + 'A');
    return name;
}

} // namespace

PageContent CursorSettingsView::content() {
    auto& settings = m_appSettings;
    const auto shapeName = [](HaloShape shape) { return std::string(displayName(shape)); };
    return Form{
        "Cursor Halo Settings",
        {
            {"Cursor Halo",
             {
                 ToggleRow{"Enable Cursor Halo", m_cursorHighlightManager.isEnabled.binding(),
                           ToggleStyle::switchStyle},
                 PickerRow::of<HaloShape>("Halo Shape", settings.haloShape.binding(), shapeName),
                 SliderRow{
                     "Halo Size", settings.haloSize.binding(), 10, 100, 1, numberText, 150, 40, {}},
                 ColorPickerRow{"Halo Color", settings.haloColor.binding()},
             }},
            {"Click Animation",
             {
                 PickerRow::of<ClickAnimationType>(
                     "Animation Type", settings.clickAnimationType.binding(), animationName),
             }},
        },
        {},
    };
}

void CursorSettingsView::onAppear() {
    auto& settings = m_appSettings;
    m_cursorHighlightManager.isEnabled = settings.isCursorHaloEnabled.get();
    m_cursorHighlightManager.updateSettings(settings.haloShape.get(), settings.haloColor.get(),
                                            settings.haloSize.get(),
                                            settings.clickAnimationType.get());
    m_enabledObserver = follow(m_cursorHighlightManager.isEnabled, settings.isCursorHaloEnabled);
}

void CursorSettingsView::onDisappear() {
    m_enabledObserver.cancel();
}

} // namespace quillon
