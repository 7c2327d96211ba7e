#pragma once

#include "foundation/Geometry.h"
#include "model/CodablePoint.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace quillon {

/// Finds the points of an eraser stroke that lie near a rectangle: the points are sorted into the
/// cells of a grid, and a table of sums tells at once whether a block of cells is empty.
class EraserIndex {
public:
    explicit EraserIndex(std::span<const CodablePoint> points);

    /// False only when no point lies in `rect`, edges included.
    bool mayTouch(const CGRect& rect) const {
        const Block block = blockOver(rect);
        return count(block) > 0;
    }

    /// True when `predicate` holds for a point near `rect`; every point that lies in it, edges
    /// included, is asked, and others may be.
    template <typename Predicate>
    bool anyPointIn(const CGRect& rect, Predicate&& predicate) const {
        const Block block = blockOver(rect);
        if (count(block) == 0) {
            return false;
        }
        for (std::size_t row = block.top; row < block.bottom; ++row) {
            const auto first = m_firstInCell[row * m_columns + block.left];
            const auto past = m_firstInCell[row * m_columns + block.right];
            if (std::any_of(m_points.begin() + first, m_points.begin() + past, predicate)) {
                return true;
            }
        }
        return false;
    }

private:
    /// Cells from `left` to `right` and from `top` to `bottom`, the latter not included.
    struct Block {
        std::size_t left = 0;
        std::size_t top = 0;
        std::size_t right = 0;
        std::size_t bottom = 0;
    };

    Block blockOver(const CGRect& rect) const;
    std::size_t count(const Block& block) const;
    std::size_t column(CGFloat x) const;
    std::size_t row(CGFloat y) const;

    CGRect m_bounds;
    CGFloat m_cell = 1;
    std::size_t m_columns = 0;
    std::size_t m_rows = 0;
    /// Sorted by cell, row by row.
    std::vector<CGPoint> m_points;
    std::vector<std::ptrdiff_t> m_firstInCell;
    /// How many points stand above and to the left of a cell's corner.
    std::vector<std::size_t> m_sums;
};

} // namespace quillon
