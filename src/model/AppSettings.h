#pragma once

#include "foundation/Color.h"
#include "foundation/Geometry.h"
#include "foundation/Published.h"
#include "model/AutoEraseTimer.h"
#include "model/ClickAnimationType.h"
#include "model/DrawingTool.h"
#include "model/HaloShape.h"
#include "model/HotkeyConfig.h"
#include "model/MagnificationFactor.h"
#include "model/SettingsKey.h"
#include "model/ToolbarPosition.h"
#include "platform/UserDefaults.h"

#include <utility>
#include <vector>

namespace quillon {

/// The single source of every choice of the user: 25 observable properties, each mirrored into the
/// key of the same name in the per-user defaults.
///
/// An assignment announces the change, delivers the new value, stores it, and writes it to the
/// defaults, in this order. Nothing is clamped, rounded or checked, in either direction. A value
/// that does not encode is not written, and the one in the defaults stays.
///
/// Construction:
/// 1. every property takes its default;
/// 2. every property is assigned what is stored under its key, or its default again when the key is
///    absent or does not hold such a value. These are ordinary assignments, so that afterwards all
///    25 keys exist in their present form.
///
/// Main thread only.
class AppSettings : public ObservableObject {
private:
    /// What all settings have in common, whatever their type.
    class AnySetting {
    public:
        virtual void load() = 0;
        virtual void reset() = 0;

    protected:
        ~AnySetting() = default;
    };

    UserDefaults& m_userDefaults;
    /// In order of declaration.
    std::vector<AnySetting*> m_settings;

public:
    static AppSettings& shared();

    /// Assigns every property its default, in order.
    void resetToDefaults();

    /// A published property with its key and its default.
    template <typename T>
    class Setting final : public Published<T>, private AnySetting {
    public:
        Setting(AppSettings& settings, SettingsKey key, T defaultValue)
            : Published<T>(settings, defaultValue,
                           [&settings, key](const T& value) { settings.save(key, value); })
            , m_store(settings)
            , m_key(key)
            , m_default(std::move(defaultValue)) {
            settings.m_settings.push_back(this);
        }
        using Published<T>::operator=;

    private:
        void load() override { this->set(m_store.load(m_key, m_default)); }
        void reset() override { this->set(m_default); }

        AppSettings& m_store;
        SettingsKey m_key;
        T m_default;
    };

    // Lengths are in points.
    Setting<bool> isAnnotationEnabled{*this, SettingsKey::isAnnotationEnabled, false};
    Setting<bool> isWhiteboardMode{*this, SettingsKey::isWhiteboardMode, false};
    Setting<bool> isCursorHaloEnabled{*this, SettingsKey::isCursorHaloEnabled, false};
    Setting<bool> isSpotlightEnabled{*this, SettingsKey::isSpotlightEnabled, false};
    Setting<bool> isZoomEnabled{*this, SettingsKey::isZoomEnabled, false};
    Setting<DrawingTool> selectedTool{*this, SettingsKey::selectedTool, DrawingTool::pen};
    Setting<Color> selectedColor{*this, SettingsKey::selectedColor, Color::cyan};
    Setting<CGFloat> lineWidth{*this, SettingsKey::lineWidth, 4.0};
    Setting<std::vector<Color>> quickColors{*this, SettingsKey::quickColors,
                                            Color::quickSelectDefaults()};
    Setting<HaloShape> haloShape{*this, SettingsKey::haloShape, HaloShape::ring};
    Setting<Color> haloColor{*this, SettingsKey::haloColor, Color::cyan};
    Setting<CGFloat> haloSize{*this, SettingsKey::haloSize, 40.0};
    Setting<ClickAnimationType> clickAnimationType{*this, SettingsKey::clickAnimationType,
                                                   ClickAnimationType::pulse};
    /// The opacity of the dimming.
    Setting<double> spotlightIntensity{*this, SettingsKey::spotlightIntensity, 0.7};
    Setting<CGFloat> spotlightRadius{*this, SettingsKey::spotlightRadius, 150.0};
    Setting<MagnificationFactor> magnificationFactor{*this, SettingsKey::magnificationFactor,
                                                     MagnificationFactor::x2};
    Setting<CGFloat> zoomWindowSize{*this, SettingsKey::zoomWindowSize, 200.0};
    Setting<CGFloat> zoomWindowOffsetX{*this, SettingsKey::zoomWindowOffsetX, 30.0};
    Setting<CGFloat> zoomWindowOffsetY{*this, SettingsKey::zoomWindowOffsetY, 30.0};
    Setting<bool> showZoomCrosshair{*this, SettingsKey::showZoomCrosshair, true};
    Setting<AutoEraseTimer> autoEraseTimer{*this, SettingsKey::autoEraseTimer, AutoEraseTimer::off};
    Setting<bool> showFloatingToolbar{*this, SettingsKey::showFloatingToolbar, true};
    Setting<ToolbarPosition> toolbarPosition{*this, SettingsKey::toolbarPosition,
                                             ToolbarPosition::defaultPosition};
    /// An action without an entry is unbound.
    Setting<HotkeyMap> hotkeys{*this, SettingsKey::hotkeys, HotkeyConfig::defaults()};
    /// A stored preference and nothing more: no login item is made anywhere.
    Setting<bool> launchAtLogin{*this, SettingsKey::launchAtLogin, false};

private:
    explicit AppSettings(UserDefaults& userDefaults);

    void loadSettings();

    void saveBool(SettingsKey key, bool value);
    bool loadBool(SettingsKey key, bool fallback) const;
    void saveDouble(SettingsKey key, double value);
    double loadDouble(SettingsKey key, double fallback) const;
    template <RawRepresentable E>
    void saveRawRepresentable(SettingsKey key, E value);
    template <RawRepresentable E>
    E loadRawRepresentable(SettingsKey key, E fallback) const;
    void saveColor(SettingsKey key, const Color& color);
    Color loadColor(SettingsKey key, const Color& fallback) const;
    void saveColors(SettingsKey key, const std::vector<Color>& colors);
    std::vector<Color> loadColors(SettingsKey key, const std::vector<Color>& fallback) const;
    template <typename T>
    void saveCodable(SettingsKey key, const T& value);
    template <typename T>
    T loadCodable(SettingsKey key, const T& fallback) const;
    void saveHotkeys();
    HotkeyMap loadHotkeys() const;

    /// The persist step and the load operation for each type of property.
    template <typename T>
    void save(SettingsKey key, const T& value);
    template <typename T>
    T load(SettingsKey key, const T& fallback) const;
};

} // namespace quillon
