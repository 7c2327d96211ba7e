#include "annotation/EraserIndex.h"

#include "annotation/StrokePath.h"

#include <numeric>

namespace quillon {

namespace {

constexpr CGFloat kSmallestCell = 16;
/// The grid stays this coarse on the longer side, however far an eraser stroke goes.
constexpr CGFloat kMostCells = 128;

} // namespace

EraserIndex::EraserIndex(std::span<const CodablePoint> points) {
    if (points.empty()) {
        return;
    }
    m_bounds = pointBounds(points);
    m_cell = std::max(kSmallestCell, std::max(m_bounds.width, m_bounds.height) / kMostCells);
    m_columns = static_cast<std::size_t>(m_bounds.width / m_cell) + 1;
    m_rows = static_cast<std::size_t>(m_bounds.height / m_cell) + 1;

    const auto cellOf = [this](CGPoint point) {
        return row(point.y) * m_columns + column(point.x);
    };
    for (const auto& point : points) {
        m_points.push_back(point.cgPoint());
    }
    std::ranges::stable_sort(m_points, {}, cellOf);
    std::vector<std::ptrdiff_t> inCell(m_columns * m_rows + 1);
    for (const auto& point : m_points) {
        ++inCell[cellOf(point)];
    }
    m_firstInCell.resize(inCell.size());
    std::exclusive_scan(inCell.begin(), inCell.end(), m_firstInCell.begin(), std::ptrdiff_t{0});

    const std::size_t stride = m_columns + 1;
    m_sums.resize(stride * (m_rows + 1));
    for (std::size_t y = 0; y < m_rows; ++y) {
        for (std::size_t x = 0; x < m_columns; ++x) {
            m_sums[(y + 1) * stride + x + 1] =
                static_cast<std::size_t>(inCell[y * m_columns + x]) + m_sums[y * stride + x + 1] +
                m_sums[(y + 1) * stride + x] - m_sums[y * stride + x];
        }
    }
}

EraserIndex::Block EraserIndex::blockOver(const CGRect& rect) const {
    const bool isApart = m_points.empty() || rect.maxX() < m_bounds.minX() ||
                         rect.minX() > m_bounds.maxX() || rect.maxY() < m_bounds.minY() ||
                         rect.minY() > m_bounds.maxY();
    if (isApart) {
        return {};
    }
    return {column(rect.minX()), row(rect.minY()), column(rect.maxX()) + 1, row(rect.maxY()) + 1};
}

std::size_t EraserIndex::count(const Block& block) const {
    if (block.right == 0) {
        return 0;
    }
    const std::size_t stride = m_columns + 1;
    const auto sum = [&](std::size_t x, std::size_t y) { return m_sums[y * stride + x]; };
    return sum(block.right, block.bottom) + sum(block.left, block.top) -
           sum(block.left, block.bottom) - sum(block.right, block.top);
}

std::size_t EraserIndex::column(CGFloat x) const {
    const CGFloat place =
        std::clamp((x - m_bounds.minX()) / m_cell, 0.0, static_cast<CGFloat>(m_columns - 1));
    return static_cast<std::size_t>(place);
}

std::size_t EraserIndex::row(CGFloat y) const {
    const CGFloat place =
        std::clamp((y - m_bounds.minY()) / m_cell, 0.0, static_cast<CGFloat>(m_rows - 1));
    return static_cast<std::size_t>(place);
}

} // namespace quillon
