#include "toolbar/ColorPickerView.h"

#include "foundation/Int.h"
#include "foundation/NumberText.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <utility>

namespace quillon {

namespace {

/// As the format sees an integer: its lower 32 bits.
std::uint32_t hexComponent(double component) {
    return static_cast<std::uint32_t>(integerPart(component * 255));
}

} // namespace

std::string colorHex(const Color& color) {
    const auto [red, green, blue, alpha] = color.nsColor().getRedGreenBlueAlpha();
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "#%02X%02X%02X", hexComponent(red), hexComponent(green),
                  hexComponent(blue));
    return text.data();
}

ColorPickerView::ColorPickerView(Binding<Color> selectedColor,
                                 Binding<std::vector<Color>> quickColors)
    : m_selectedColor(std::move(selectedColor))
    , m_quickColors(std::move(quickColors))
    , m_lastSelectedColor(m_selectedColor.get())
    , m_wheel(binding(&Numbers::hue), binding(&Numbers::saturation), m_numbers.brightness) {}

void ColorPickerView::appeared() {
    updateHSBFromColor();
}

void ColorPickerView::followSelectedColor() {
    const Color color = m_selectedColor.get();
    if (std::exchange(m_lastSelectedColor, color) == color || m_isUpdatingFromColor) {
        return;
    }
    m_isUpdatingFromColor = true;
    updateHSBFromColor(color);
    m_isUpdatingFromColor = false;
}

void ColorPickerView::updateHSBFromColor(const std::optional<Color>& color) {
    const Color source = color.value_or(m_selectedColor.get());
    change([&](Numbers& numbers) { numbers = source.nsColor().getHueSaturationBrightnessAlpha(); });
}

void ColorPickerView::updateColor() {
    m_isUpdatingFromColor = true;
    m_selectedColor.set(
        Color::fromHSB(m_numbers.hue, m_numbers.saturation, m_numbers.brightness, m_numbers.alpha));
    followSelectedColor();
    m_isUpdatingFromColor = false;
}

void ColorPickerView::change(const std::function<void(Numbers&)>& change) {
    const Numbers before = m_numbers;
    change(m_numbers);
    m_wheel.setBrightness(m_numbers.brightness);
    for (const auto number :
         {&Numbers::hue, &Numbers::saturation, &Numbers::brightness, &Numbers::alpha}) {
        if (before.*number != m_numbers.*number) {
            numberChanged();
        }
    }
}

void ColorPickerView::numberChanged() {
    if (!m_isUpdatingFromColor) {
        updateColor();
    }
}

Binding<double> ColorPickerView::binding(double Numbers::*number) {
    return {[this, number]() -> const double& { return m_numbers.*number; },
            [this, number](double value) {
                change([&](Numbers& numbers) { numbers.*number = value; });
            },
            [this, number](const std::function<void(double&)>& edit) {
                change([&](Numbers& numbers) { edit(numbers.*number); });
            }};
}

ColorPickerView::Channel ColorPickerView::brightnessChannel() {
    return {.title = "Brightness",
            .value = binding(&Numbers::brightness),
            .percentage = percentText(m_numbers.brightness),
            .accent = Color::fromHSB(m_numbers.hue, m_numbers.saturation, m_numbers.brightness)};
}

ColorPickerView::Channel ColorPickerView::opacityChannel() {
    return {.title = "Opacity",
            .value = binding(&Numbers::alpha),
            .percentage = percentText(m_numbers.alpha),
            .accent = std::nullopt};
}

std::vector<ColorPickerView::QuickColorCell> ColorPickerView::quickColorCells() const {
    using Role = ContextMenuEntry::Role;
    const std::vector<Color>& colors = m_quickColors.get();
    std::vector<QuickColorCell> cells;
    for (std::size_t index = 0; index < colors.size(); ++index) {
        const auto setAsCurrent = [selected = m_selectedColor, color = colors[index]] {
            selected.set(color);
        };
        QuickColorCell cell{.swatch = {colors[index], false, quickSwatchSize},
                            .action = setAsCurrent,
                            .contextMenu = {{"Remove", Role::destructive, removing(index)},
                                            {"Set as Current", Role::plain, setAsCurrent}},
                            .addButton = std::nullopt};
        if (index + 1 == colors.size() && colors.size() < quickColorLimit) {
            cell.addButton = AddButton{[selected = m_selectedColor, quick = m_quickColors] {
                quick.modify([&](std::vector<Color>& list) { list.push_back(selected.get()); });
            }};
        }
        cells.push_back(std::move(cell));
    }
    return cells;
}

std::function<void()> ColorPickerView::removing(std::size_t index) const {
    return [quick = m_quickColors, index] {
        quick.modify([index](std::vector<Color>& list) {
            if (index < list.size()) {
                list.erase(list.begin() + static_cast<std::ptrdiff_t>(index));
            }
        });
    };
}

} // namespace quillon
