#pragma once

#include "foundation/Geometry.h"

#include <string>

/// Values as they stand in a printed line.
namespace quillon {

/// The fewest digits that read back as the same number, with at least one after the point: "2.0",
/// "0.1", "1e-05".
std::string description(double value);

/// Origin and size: "(0.0, 0.0, 1920.0, 1080.0)".
std::string description(const CGRect& rect);

} // namespace quillon
