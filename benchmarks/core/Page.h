#pragma once

#include "annotation/StrokeList.h"
#include "foundation/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quillon::bench {

inline constexpr CGSize kPageSize{1920, 1080};
inline constexpr std::size_t kPointsOfStroke = 100;
inline constexpr std::size_t kPointsOfEraser = 200;

/// How many strokes a page bears, from none to more than anybody draws.
inline constexpr std::size_t kPageSizes[] = {0, 100, 1000, 10000, 100000};
/// That for which targets are set.
inline constexpr std::size_t kLargePage = 10000;

/// A pen stroke of `kPointsOfStroke` points that wanders over some tenth of the page; the same for
/// the same number.
DrawingStroke strokeOnPage(std::uint32_t number);

/// So many strokes all over the page. The last page asked for is kept.
const StrokeList& pageOf(std::size_t strokes);

/// One sweep of the eraser across the page, as wide as it is drawn with the default line.
DrawingStroke eraserSweep();

} // namespace quillon::bench
