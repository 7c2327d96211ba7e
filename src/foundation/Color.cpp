#include "foundation/Color.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

double encodedFromLinear(double value) {
    const double magnitude = std::abs(value);
    const double encoded =
        magnitude <= 0.0031308 ? 12.92 * magnitude : 1.055 * std::pow(magnitude, 1 / 2.4) - 0.055;
    return std::copysign(encoded, value);
}

double linearFromEncoded(double value) {
    const double magnitude = std::abs(value);
    const double linear =
        magnitude <= 0.04045 ? magnitude / 12.92 : std::pow((magnitude + 0.055) / 1.055, 2.4);
    return std::copysign(linear, value);
}

} // namespace

std::optional<NSColor> NSColor::colorUsingColorSpace(ColorSpace space) const {
    if (space == m_colorSpace) {
        return *this;
    }
    if (m_colorSpace == ColorSpace::device || space == ColorSpace::device) {
        return std::nullopt;
    }
    const auto convert = space == ColorSpace::sRGB ? encodedFromLinear : linearFromEncoded;
    return NSColor(space, {convert(m_components.red), convert(m_components.green),
                           convert(m_components.blue), m_components.alpha});
}

// Both directions follow A. R. Smith, "Color gamut transform pairs", SIGGRAPH 1978.

NSColor::HSBA NSColor::getHueSaturationBrightnessAlpha() const {
    const auto [red, green, blue, alpha] = m_components;
    const double high = std::max({red, green, blue});
    const double chroma = high - std::min({red, green, blue});
    if (high <= 0 || chroma <= 0) {
        return {0, 0, high, alpha};
    }
    double sextant = 0;
    if (high == red) {
        sextant = (green - blue) / chroma;
    } else if (high == green) {
        sextant = (blue - red) / chroma + 2;
    } else {
        sextant = (red - green) / chroma + 4;
    }
    return {(sextant < 0 ? sextant + 6 : sextant) / 6, chroma / high, high, alpha};
}

Color Color::fromHSB(double hue, double saturation, double brightness, double opacity) {
    const double turns = (hue - std::floor(hue)) * 6;
    const auto component = [&](double offset) {
        const double place = std::fmod(turns + offset, 6);
        const double ramp = std::clamp(std::min(place, 4 - place), 0.0, 1.0);
        return brightness * (1 - saturation * ramp);
    };
    return {component(5), component(3), component(1), opacity};
}

NSColor::Components Color::resolved() const {
    return m_platformColor.colorUsingColorSpace(ColorSpace::sRGB)
        .value_or(m_platformColor)
        .getRedGreenBlueAlpha();
}

Color Color::opacity(double factor) const {
    const auto own = m_platformColor.getRedGreenBlueAlpha();
    return {m_platformColor.colorSpace(), own.red, own.green, own.blue, own.alpha * factor};
}

const std::vector<Color>& Color::quickSelectDefaults() {
    static const std::vector<Color> colors{red, yellow, green, cyan, purple};
    return colors;
}

const std::vector<Color>& Color::defaultPalette() {
    static const std::vector<Color> colors{red,  orange, yellow, green, mint,  teal,  cyan,
                                           blue, indigo, purple, pink,  brown, white, black};
    return colors;
}

} // namespace quillon
