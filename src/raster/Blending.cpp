#include "raster/Blending.h"

namespace quillon {

std::uint32_t premultipliedPixel(const Color& color, double opacity) {
    const auto parts = color.resolved();
    const auto whole = [](double part) {
        return static_cast<std::uint32_t>(std::clamp(part, 0.0, 1.0) * opaqueAlpha + 0.5);
    };
    const double alpha = std::clamp(parts.alpha, 0.0, 1.0) * std::clamp(opacity, 0.0, 1.0);
    const auto multiplied = [&](double part) { return whole(std::clamp(part, 0.0, 1.0) * alpha); };
    return whole(alpha) << 24 | multiplied(parts.red) << 16 | multiplied(parts.green) << 8 |
           multiplied(parts.blue);
}

} // namespace quillon
