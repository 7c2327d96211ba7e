#pragma once

#include <optional>
#include <vector>

namespace quillon {

/// Where the components of a colour are to be read.
enum class ColorSpace {
    sRGB,
    linearSRGB,
    /// A device's own space, of which nothing is known. It converts to no other.
    device,
};

/// The platform's colour: four components in a colour space, none of them clamped.
class NSColor {
public:
    struct Components {
        double red = 0;
        double green = 0;
        double blue = 0;
        double alpha = 1;

        friend bool operator==(const Components&, const Components&) = default;
    };

    constexpr NSColor(ColorSpace colorSpace, Components components)
        : m_colorSpace(colorSpace)
        , m_components(components) {}

    /// An sRGB colour of the four components.
    static constexpr NSColor colorWithRed(double red, double green, double blue, double alpha) {
        return {ColorSpace::sRGB, {red, green, blue, alpha}};
    }

    ColorSpace colorSpace() const { return m_colorSpace; }

    /// The four components in the colour's own space.
    Components getRedGreenBlueAlpha() const { return m_components; }

    /// Hue, saturation and brightness of the HSB (HSV) model, each from 0 to 1, of the components
    /// in the colour's own space, and alpha. A grey has hue 0, black has saturation 0 as well.
    struct HSBA {
        double hue = 0;
        double saturation = 0;
        double brightness = 0;
        double alpha = 1;

        friend bool operator==(const HSBA&, const HSBA&) = default;
    };
    HSBA getHueSaturationBrightnessAlpha() const;

    /// The same colour in `space`, or nothing when no conversion is known.
    /// The transfer function is that of IEC 61966-2-1, mirrored for negative components.
    std::optional<NSColor> colorUsingColorSpace(ColorSpace space) const;

    friend bool operator==(const NSColor&, const NSColor&) = default;

private:
    ColorSpace m_colorSpace;
    Components m_components;
};

/// The colour type of the view layer.
class Color {
public:
    /// Red, green, blue and alpha.
    constexpr Color(ColorSpace colorSpace, double r, double g, double b, double a = 1)
        : m_platformColor(colorSpace, {r, g, b, a}) {}
    constexpr Color(double r, double g, double b, double a = 1)
        : Color(ColorSpace::sRGB, r, g, b, a) {}

    /// The sRGB colour of these coordinates in the HSB (HSV) model, each from 0 to 1; a hue of 1 is
    /// that of 0.
    static Color fromHSB(double hue, double saturation, double brightness, double opacity = 1);

    const NSColor& nsColor() const { return m_platformColor; }

    /// The components as they are painted: in sRGB, or in the colour's own space when it does not
    /// convert.
    NSColor::Components resolved() const;

    /// The same colour with its alpha multiplied by `factor`.
    Color opacity(double factor) const;

    // The named system colours. Their components are this system's own choice: one fixed, light
    // and dark alike, legible on both.
    static const Color red, orange, yellow, green, mint, teal, cyan, blue, indigo, purple, pink,
        brown, white, black, clear;

    /// The five colours that the quick choice starts with.
    static const std::vector<Color>& quickSelectDefaults();
    /// The fourteen colours of the palette.
    static const std::vector<Color>& defaultPalette();

    friend bool operator==(const Color&, const Color&) = default;

private:
    NSColor m_platformColor;
};

inline constexpr Color Color::red{1.0, 0.231, 0.188};
inline constexpr Color Color::orange{1.0, 0.584, 0.0};
inline constexpr Color Color::yellow{1.0, 0.8, 0.0};
inline constexpr Color Color::green{0.204, 0.78, 0.349};
inline constexpr Color Color::mint{0.0, 0.78, 0.745};
inline constexpr Color Color::teal{0.188, 0.69, 0.78};
inline constexpr Color Color::cyan{0.196, 0.678, 0.902};
inline constexpr Color Color::blue{0.0, 0.478, 1.0};
inline constexpr Color Color::indigo{0.345, 0.337, 0.839};
inline constexpr Color Color::purple{0.686, 0.322, 0.871};
inline constexpr Color Color::pink{1.0, 0.176, 0.333};
inline constexpr Color Color::brown{0.635, 0.518, 0.369};
inline constexpr Color Color::white{1, 1, 1};
inline constexpr Color Color::black{0, 0, 0};
inline constexpr Color Color::clear{0, 0, 0, 0};

} // namespace quillon
