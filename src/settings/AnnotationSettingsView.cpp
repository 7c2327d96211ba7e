#include "settings/AnnotationSettingsView.h"

#include "foundation/NumberText.h"

namespace quillon {

namespace {

/// Switching the whiteboard on switches annotation on too; switching it off leaves that as it is.
Binding<bool> whiteboardSwitch(AppSettings& settings) {
    const auto set = [&settings](bool isOn) {
        settings.isWhiteboardMode = isOn;
        if (isOn) {
            settings.isAnnotationEnabled = true;
        }
    };
    return {[&settings]() -> const bool& { return settings.isWhiteboardMode.get(); }, set,
            [&settings, set](const std::function<void(bool&)>& change) {
                bool next = settings.isWhiteboardMode;
                change(next);
                set(next);
            }};
}

} // namespace

PageContent AnnotationSettingsView::content() {
    auto& settings = m_appSettings;
    const auto timerName = [](AutoEraseTimer timer) { return std::string(displayName(timer)); };
    return Form{
        "Annotation Settings",
        {
            {"Drawing Tools",
             {
                 SwatchRow{"Default Color", {settings.selectedColor.binding()}},
                 SliderRow{"Line Width", settings.lineWidth.binding(), 1, 30, 1, pointsText, 200,
                           40, SliderEnds{"lineweight"}},
                 PickerRow::of<AutoEraseTimer>("Auto-Erase", settings.autoEraseTimer.binding(),
                                               timerName),
             }},
            {"Whiteboard Mode",
             {
                 ToggleRow{"Enable Whiteboard Mode", whiteboardSwitch(settings),
                           ToggleStyle::switchStyle},
             }},
        },
        {},
    };
}

} // namespace quillon
