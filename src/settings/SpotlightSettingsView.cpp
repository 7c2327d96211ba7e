#include "settings/SpotlightSettingsView.h"

#include "foundation/NumberText.h"
#include "settings/FollowingSwitch.h"

namespace quillon {

namespace {

constexpr CGFloat kSliderWidth = 150;

} // namespace

PageContent SpotlightSettingsView::content() {
    return Form{"Spotlight & Zoom Settings", {spotlight(), zoomLens()}, {}};
}

FormSection SpotlightSettingsView::spotlight() {
    auto& settings = m_appSettings;
    return {
        "Spotlight",
        {
            ToggleRow{"Enable Spotlight", m_spotlightManager.isSpotlightEnabled.binding(),
                      ToggleStyle::switchStyle},
            SliderRow{"Dimming Intensity",
                      settings.spotlightIntensity.binding(),
                      0.1,
                      0.95,
                      0.05,
                      percentText,
                      kSliderWidth,
                      50,
                      {}},
            SliderRow{"Cutout Radius",
                      settings.spotlightRadius.binding(),
                      30,
                      500,
                      10,
                      numberText,
                      kSliderWidth,
                      50,
                      {}},
        },
    };
}

FormSection SpotlightSettingsView::zoomLens() {
    auto& settings = m_appSettings;
    const auto magnification = [](MagnificationFactor factor) {
        return std::string(displayName(factor));
    };
    return {
        "Zoom Lens",
        {
            ToggleRow{"Enable Zoom Lens", m_spotlightManager.isZoomEnabled.binding(),
                      ToggleStyle::switchStyle},
            PickerRow::of<MagnificationFactor>(
                "Magnification", settings.magnificationFactor.binding(), magnification),
            SliderRow{"Window Size",
                      settings.zoomWindowSize.binding(),
                      100,
                      500,
                      10,
                      pointsText,
                      kSliderWidth,
                      60,
                      {}},
            SliderRow{"Offset X (Right)",
                      settings.zoomWindowOffsetX.binding(),
                      0,
                      200,
                      5,
                      pointsText,
                      kSliderWidth,
                      50,
                      {}},
            SliderRow{"Offset Y (Up)",
                      settings.zoomWindowOffsetY.binding(),
                      0,
                      200,
                      5,
                      pointsText,
                      kSliderWidth,
                      50,
                      {}},
            ToggleRow{"Show Crosshair", settings.showZoomCrosshair.binding(),
                      ToggleStyle::switchStyle},
        },
    };
}

void SpotlightSettingsView::onAppear() {
    auto& settings = m_appSettings;
    m_spotlightManager.isSpotlightEnabled = settings.isSpotlightEnabled.get();
    m_spotlightManager.isZoomEnabled = settings.isZoomEnabled.get();
    m_spotlightObserver =
        follow(m_spotlightManager.isSpotlightEnabled, settings.isSpotlightEnabled);
    m_zoomObserver = follow(m_spotlightManager.isZoomEnabled, settings.isZoomEnabled);
}

void SpotlightSettingsView::onDisappear() {
    m_spotlightObserver.cancel();
    m_zoomObserver.cancel();
}

} // namespace quillon
