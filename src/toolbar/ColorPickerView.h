#pragma once

#include "foundation/Binding.h"
#include "foundation/Color.h"
#include "foundation/Geometry.h"
#include "toolbar/HueSaturationPicker.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// "#RRGGBB", each component in its own space times 255, truncated and not clamped. Alpha is not
/// shown. A component that is not finite ends the program.
std::string colorHex(const Color& color);

/// The content of the colour popover: any colour by wheel, brightness and opacity, and the list of
/// quick colours.
///
/// The colour is held twice: as the shared colour, and as the four numbers to which the controls
/// bind, since a grey has no hue to find again. The two are kept in step:
/// 1. when the view appears, the numbers are taken from the colour; if that changed them, it is
///    written back as its equal in these numbers;
/// 2. when a number changes, the colour is made of the four;
/// 3. when somebody else changes the colour, the numbers are taken from it;
/// 4. `isUpdatingFromColor` is set during 2 and 3, so that neither sets off the other.
class ColorPickerView {
public:
    static constexpr CGFloat spacing = 16;
    static constexpr CGFloat padding = 16;
    static constexpr CGFloat wheelHeight = 150;
    static constexpr CGFloat groupSpacing = 4;
    static constexpr CGFloat quickColorsSpacing = 8;
    /// The quick colours stand in this many equal columns.
    static constexpr int columnCount = 8;
    static constexpr CGFloat columnSpacing = 8;
    static constexpr CGFloat rowSpacing = 8;
    static constexpr CGFloat quickSwatchSize = 28;
    static constexpr std::size_t quickColorLimit = 10;

    static constexpr CGSize currentSwatchSize{40, 24};
    static constexpr CGFloat currentSwatchCornerRadius = 6;
    static constexpr CGFloat currentSwatchBorderWidth = 1;
    static constexpr Color currentSwatchBorder{1, 1, 1, 0.3};

    static constexpr const char* quickColorsTitle = "Quick Colors";
    static constexpr const char* currentTitle = "Current:";

    ColorPickerView(Binding<Color> selectedColor, Binding<std::vector<Color>> quickColors);
    ColorPickerView(const ColorPickerView&) = delete;

    void appeared();
    /// Looks whether somebody else has changed the shared colour.
    void followSelectedColor();

    /// A titled slider over 0 to 1 without steps, its value as a percentage beside the title.
    struct Channel {
        std::string title;
        Binding<double> value;
        std::string percentage;
        /// The slider's own colour, if it has one.
        std::optional<Color> accent;
    };
    Channel brightnessChannel();
    Channel opacityChannel();
    HueSaturationPicker& wheel() { return m_wheel; }

    /// Laid over the swatch that it belongs to, and covering it.
    struct AddButton {
        static constexpr const char* icon = "plus";
        static constexpr CGFloat fontSize = 14;
        static constexpr CGFloat diameter = 28;
        static constexpr CGFloat borderLineWidth = 1;
        static constexpr CGFloat dashLength = 4;

        std::function<void()> action;
    };
    struct ContextMenuEntry {
        enum class Role { plain, destructive };

        std::string title;
        Role role = Role::plain;
        std::function<void()> action;
    };
    struct QuickColorCell {
        ColorSwatchView swatch;
        /// Run on a click.
        std::function<void()> action;
        std::vector<ContextMenuEntry> contextMenu;
        /// On the last cell alone, and only while there is room for another colour.
        std::optional<AddButton> addButton;
    };
    std::vector<QuickColorCell> quickColorCells() const;

    const Color& selectedColor() const { return m_selectedColor.get(); }
    std::string selectedHex() const { return colorHex(selectedColor()); }

    double hue() const { return m_numbers.hue; }
    double saturation() const { return m_numbers.saturation; }
    double brightness() const { return m_numbers.brightness; }
    double alpha() const { return m_numbers.alpha; }

private:
    using Numbers = NSColor::HSBA;

    void updateHSBFromColor(const std::optional<Color>& color = std::nullopt);
    void updateColor();
    /// Changes the numbers, and calls `numberChanged` once for each that became another.
    void change(const std::function<void(Numbers&)>& change);
    void numberChanged();
    Binding<double> binding(double Numbers::*number);
    std::function<void()> removing(std::size_t index) const;

    Binding<Color> m_selectedColor;
    Binding<std::vector<Color>> m_quickColors;
    Numbers m_numbers{0, 1, 1, 1};
    bool m_isUpdatingFromColor = false;
    Color m_lastSelectedColor;
    HueSaturationPicker m_wheel;
};

} // namespace quillon
