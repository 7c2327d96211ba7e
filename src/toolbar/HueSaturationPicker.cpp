#include "toolbar/HueSaturationPicker.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace quillon {

namespace {

constexpr double kPi = std::numbers::pi;
constexpr int kAngularSteps = 12;

} // namespace

HueSaturationPicker::HueSaturationPicker(Binding<double> hue, Binding<double> saturation,
                                         double brightness)
    : m_hue(std::move(hue))
    , m_saturation(std::move(saturation))
    , m_brightness(brightness) {}

CGFloat HueSaturationPicker::side(CGSize size) {
    return std::min(size.width, size.height);
}

void HueSaturationPicker::dragChanged(CGPoint location, CGFloat side) const {
    const CGFloat radius = side / 2;
    const CGFloat dx = location.x - radius;
    const CGFloat dy = location.y - radius;
    const CGFloat distance = std::sqrt(dx * dx + dy * dy);
    m_hue.set((std::atan2(dy, dx) + kPi / 2) / (2 * kPi));
    if (m_hue.get() < 0) {
        // An angle a hair short of the top rounds to a full turn, which is the top itself.
        const double turned = m_hue.get() + 1;
        m_hue.set(turned < 1 ? turned : 0);
    }
    m_saturation.set(std::min(std::max(distance / radius, 0.0), 1.0));
}

CGSize HueSaturationPicker::markerOffset(CGFloat side) const {
    const double angle = m_hue.get() * 2 * kPi - kPi / 2;
    const double distance = side / 2 * m_saturation.get();
    return {std::cos(angle) * distance, std::sin(angle) * distance};
}

HueSaturationPicker::RadialLayer HueSaturationPicker::radialLayer() const {
    const double hue = m_hue.get();
    return {Color::fromHSB(hue, 0, m_brightness), Color::fromHSB(hue, 1, m_brightness)};
}

std::vector<Color> HueSaturationPicker::angularStops() const {
    std::vector<Color> stops;
    for (int step = 0; step <= kAngularSteps; ++step) {
        const double hue = static_cast<double>(step % kAngularSteps) / kAngularSteps;
        stops.push_back(Color::fromHSB(hue, 1, m_brightness));
    }
    return stops;
}

} // namespace quillon
