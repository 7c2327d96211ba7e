#pragma once

#include "foundation/Binding.h"
#include "foundation/Color.h"
#include "foundation/Geometry.h"
#include "toolbar/ColorSwatchView.h"

#include <vector>

namespace quillon {

/// The colour wheel: a place on it is a hue, by its angle, and a saturation, by its distance from
/// the centre. Coordinates are those of the wheel's square, in points.
///
/// Hue 0 is chosen at the top and grows clockwise. The painted hues are not turned to match: they
/// start at the right, so what is painted under the marker is a quarter turn away from what is
/// chosen.
class HueSaturationPicker {
public:
    static constexpr CGFloat markerDiameter = 24;
    static constexpr CGFloat markerLineWidth = 2;
    static constexpr Color markerColor = Color::white;
    static constexpr Shadow markerShadow{Color(0, 0, 0, 0.3), 2, {0, 0}};

    HueSaturationPicker(Binding<double> hue, Binding<double> saturation, double brightness);

    /// The side of the wheel's square in a view of that size.
    static CGFloat side(CGSize size);

    /// The wheel has come on the screen.
    void appeared(CGSize size) { m_pickerSize = size; }
    /// The pointer is there, pressed. The end of a drag does nothing.
    void dragChanged(CGPoint location, CGFloat side) const;
    /// Where the marker stands, from the centre.
    CGSize markerOffset(CGFloat side) const;

    /// From the centre to the edge. The angular layer hides it.
    struct RadialLayer {
        Color center;
        Color edge;
    };
    RadialLayer radialLayer() const;
    /// Evenly spaced round the centre from the right, clockwise. The mask is a border inside the
    /// edge as wide as the radius, which reaches the centre.
    std::vector<Color> angularStops() const;
    static CGFloat angularMaskLineWidth(CGFloat side) { return side / 2; }

    double brightness() const { return m_brightness; }
    void setBrightness(double brightness) { m_brightness = brightness; }
    /// Kept and read by nothing.
    CGSize pickerSize() const { return m_pickerSize; }

private:
    Binding<double> m_hue;
    Binding<double> m_saturation;
    double m_brightness;
    CGSize m_pickerSize;
};

} // namespace quillon
