#include "annotation/DirtyCells.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr std::size_t kBitsInWord = 64;

std::size_t cellsOver(CGFloat length, CGFloat cell) {
    return static_cast<std::size_t>(std::ceil(std::max(length, 0.0) / cell));
}

} // namespace

DirtyCells::DirtyCells(CGSize size, CGFloat scale)
    : m_cell(cellPixels / scale)
    , m_columns(cellsOver(size.width, m_cell))
    , m_rows(cellsOver(size.height, m_cell))
    , m_wordsInRow((m_columns + kBitsInWord - 1) / kBitsInWord)
    , m_words(m_rows * m_wordsInRow) {}

template <typename Body>
bool DirtyCells::anyWord(const Block& block, Body&& body) const {
    if (block.left >= block.right) {
        return false;
    }
    const std::size_t firstWord = block.left / kBitsInWord;
    const std::size_t lastWord = (block.right - 1) / kBitsInWord;
    for (std::size_t row = block.top; row < block.bottom; ++row) {
        for (std::size_t word = firstWord; word <= lastWord; ++word) {
            auto bits = ~std::uint64_t{0};
            if (word == firstWord) {
                bits &= ~std::uint64_t{0} << block.left % kBitsInWord;
            }
            if (word == lastWord) {
                bits &= ~std::uint64_t{0} >> (kBitsInWord - 1 - (block.right - 1) % kBitsInWord);
            }
            if (body(row * m_wordsInRow + word, bits)) {
                return true;
            }
        }
    }
    return false;
}

void DirtyCells::setWord(std::size_t word, std::uint64_t bits) {
    const auto wasUsed = m_words[word] != 0;
    const auto isUsed = bits != 0;
    m_wordsInUse += isUsed && !wasUsed ? 1 : 0;
    m_wordsInUse -= wasUsed && !isUsed ? 1 : 0;
    m_words[word] = bits;
}

void DirtyCells::add(const CGRect& rect) {
    anyWord(blockOver(rect), [this](std::size_t word, std::uint64_t bits) {
        setWord(word, m_words[word] | bits);
        return false;
    });
}

void DirtyCells::add(const DirtyCells& other) {
    for (std::size_t word = 0; word < m_words.size(); ++word) {
        setWord(word, m_words[word] | other.m_words[word]);
    }
}

void DirtyCells::remove(const DirtyCells& other) {
    for (std::size_t word = 0; word < m_words.size(); ++word) {
        setWord(word, m_words[word] & ~other.m_words[word]);
    }
}

void DirtyCells::keep(const DirtyCells& other) {
    for (std::size_t word = 0; word < m_words.size(); ++word) {
        setWord(word, m_words[word] & other.m_words[word]);
    }
}

bool DirtyCells::meets(const CGRect& rect) const {
    return anyWord(blockOver(rect), [this](std::size_t word, std::uint64_t bits) {
        return (m_words[word] & bits) != 0;
    });
}

bool DirtyCells::cover(const CGRect& rect) const {
    return !anyWord(blockOver(rect), [this](std::size_t word, std::uint64_t bits) {
        return (m_words[word] & bits) != bits;
    });
}

std::vector<CGRect> DirtyCells::rects() const {
    return rectsIn({0, 0, m_columns, m_rows});
}

std::vector<CGRect> DirtyCells::takeTile(std::size_t side) {
    for (std::size_t top = 0; top < m_rows; top += side) {
        for (std::size_t left = 0; left < m_columns; left += side) {
            const Block tile{left, top, std::min(left + side, m_columns),
                             std::min(top + side, m_rows)};
            auto taken = rectsIn(tile);
            if (taken.empty()) {
                continue;
            }
            anyWord(tile, [this](std::size_t word, std::uint64_t bits) {
                setWord(word, m_words[word] & ~bits);
                return false;
            });
            return taken;
        }
    }
    return {};
}

std::vector<CGRect> DirtyCells::rectsIn(const Block& area) const {
    std::vector<Block> blocks;
    // The blocks that end with the row above. A run of the same columns makes one of them higher.
    std::vector<std::size_t> above;
    for (std::size_t row = area.top; row < area.bottom; ++row) {
        std::vector<std::size_t> here;
        for (const auto& run : runsIn(row, area.left, area.right)) {
            const auto same = std::ranges::find_if(above, [&](std::size_t block) {
                return blocks[block].left == run.left && blocks[block].right == run.right;
            });
            if (same != above.end()) {
                blocks[*same].bottom = run.bottom;
                here.push_back(*same);
            } else {
                here.push_back(blocks.size());
                blocks.push_back(run);
            }
        }
        above = std::move(here);
    }
    std::vector<CGRect> rects;
    for (const auto& block : blocks) {
        rects.push_back(rectOf(block));
    }
    return rects;
}

std::vector<DirtyCells::Block> DirtyCells::runsIn(std::size_t row, std::size_t left,
                                                  std::size_t right) const {
    std::vector<Block> runs;
    for (std::size_t column = left; column < right; ++column) {
        if (!isDirty(column, row)) {
            continue;
        }
        if (!runs.empty() && runs.back().right == column) {
            ++runs.back().right;
        } else {
            runs.push_back({column, row, column + 1, row + 1});
        }
    }
    return runs;
}

bool DirtyCells::isDirty(std::size_t column, std::size_t row) const {
    const auto word = m_words[row * m_wordsInRow + column / kBitsInWord];
    return (word >> (column % kBitsInWord) & 1) != 0;
}

DirtyCells::Block DirtyCells::blockOver(const CGRect& rect) const {
    if (rect.isEmpty()) {
        return {};
    }
    const auto low = [this](CGFloat edge, std::size_t count) {
        const CGFloat cell = std::floor(edge / m_cell);
        return static_cast<std::size_t>(std::clamp(cell, 0.0, static_cast<CGFloat>(count)));
    };
    const auto high = [this](CGFloat edge, std::size_t count) {
        const CGFloat cell = std::ceil(edge / m_cell);
        return static_cast<std::size_t>(std::clamp(cell, 0.0, static_cast<CGFloat>(count)));
    };
    return {low(rect.minX(), m_columns), low(rect.minY(), m_rows), high(rect.maxX(), m_columns),
            high(rect.maxY(), m_rows)};
}

CGRect DirtyCells::rectOf(const Block& block) const {
    return {static_cast<CGFloat>(block.left) * m_cell, static_cast<CGFloat>(block.top) * m_cell,
            static_cast<CGFloat>(block.right - block.left) * m_cell,
            static_cast<CGFloat>(block.bottom - block.top) * m_cell};
}

} // namespace quillon
