#pragma once

#include "foundation/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quillon {

/// The part of a layer that has to be painted anew, in cells of a grid. Unlike `Damage` it stays
/// close to what was added however much that is, and knows at once whether a rectangle meets it.
///
/// Cells are squares of `cellPixels` device pixels, so that no pixel lies in two of them.
class DirtyCells {
public:
    static constexpr int cellPixels = 8;

    /// Nothing is dirty. The grid covers `size` points with `scale` device pixels each.
    DirtyCells(CGSize size, CGFloat scale);

    /// Makes every cell dirty with which `rect` shares an area. What lies outside of the grid is
    /// left out.
    void add(const CGRect& rect);
    /// These take the cells of another grid of the same size and scale.
    void add(const DirtyCells& other);
    void remove(const DirtyCells& other);
    /// Leaves only what is dirty in both.
    void keep(const DirtyCells& other);
    /// Takes out what is dirty in the first square of `side` times `side` cells that holds
    /// anything, of those that lie side by side from the top left, row by row. Answers it as
    /// `rects` does.
    std::vector<CGRect> takeTile(std::size_t side);

    bool isEmpty() const { return m_wordsInUse == 0; }
    /// False only when `rect` shares no area with a dirty cell.
    bool meets(const CGRect& rect) const;
    /// Every cell is dirty with which `rect` shares an area.
    bool cover(const CGRect& rect) const;
    /// Rectangles over all dirty cells and no others; no two overlap. In points.
    std::vector<CGRect> rects() const;

private:
    /// Cells from `left` to `right` and from `top` to `bottom`, the latter not included.
    struct Block {
        std::size_t left = 0;
        std::size_t top = 0;
        std::size_t right = 0;
        std::size_t bottom = 0;
    };

    void setWord(std::size_t word, std::uint64_t bits);
    Block blockOver(const CGRect& rect) const;
    /// Calls `body` with the number of each word that holds a cell of the block, and the bits that
    /// do; ends as soon as `body` answers true, and answers whether it did.
    template <typename Body>
    bool anyWord(const Block& block, Body&& body) const;
    /// Rectangles over the dirty cells of a block.
    std::vector<CGRect> rectsIn(const Block& block) const;
    /// The longest blocks of dirty cells in one row between two columns, the latter not included.
    std::vector<Block> runsIn(std::size_t row, std::size_t left, std::size_t right) const;
    bool isDirty(std::size_t column, std::size_t row) const;
    CGRect rectOf(const Block& block) const;

    /// In points.
    CGFloat m_cell;
    std::size_t m_columns;
    std::size_t m_rows;
    std::size_t m_wordsInRow;
    /// A bit for each cell, row by row.
    std::vector<std::uint64_t> m_words;
    /// That hold a dirty cell.
    std::size_t m_wordsInUse = 0;
};

} // namespace quillon
