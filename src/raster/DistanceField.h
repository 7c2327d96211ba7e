#pragma once

#include "raster/Flattening.h"
#include "raster/PixelCanvas.h"

#include <array>
#include <cstddef>

namespace quillon {

/// How far the centre of each pixel in a small area is from the nearest of some lines. Distances
/// are kept as their squares, in device pixels. A value depends on the pixel and the lines alone,
/// not on the area or the order of the lines.
class DistanceField {
public:
    /// The largest width and height of the area.
    static constexpr int side = 64;
    /// So many neighbours are computed in one go.
    static constexpr int block = 4;

    /// Which distances are of interest.
    struct Range {
        /// What is nearer than this to one of the lines may have any distance below it.
        float inner = 0;
        /// What is farther away need not be looked at.
        float outer = 0;
    };

    /// No line is near.
    DistanceField(const PixelRect& area, Range range);

    void add(const LinePiece& line);

    const PixelRect& area() const { return m_area; }

    /// The pixels of a row that were looked at: from `first` to `last`, the latter not included,
    /// counted from the left of the area.
    struct Span {
        int first = side;
        int last = 0;
    };
    /// Rows are counted from the top of the area.
    Span span(int row) const { return m_spans[static_cast<std::size_t>(row)]; }
    /// The squares of a row, from the left of the area on.
    const float* squares(int row) const { return m_squares.data() + row * m_rowLength; }

private:
    PixelRect m_area;
    Range m_range;
    int m_rowLength;
    std::array<Span, side> m_spans;
    alignas(32) std::array<float, std::size_t{side} * side> m_squares;
};

} // namespace quillon
