#include "raster/InkPainting.h"

#include "raster/Blending.h"
#include "raster/DistanceField.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace quillon {

namespace {

/// How much of a pixel a line covers, of 255, by the square of the distance from its middle.
class Coverage {
public:
    explicit Coverage(float radius)
        : m_outer(radius + 0.5F)
        , m_outerSquare(m_outer * m_outer)
        , m_innerSquare((radius - 0.5F) * (radius - 0.5F)) {}

    /// Between which distances it matters how far a line is.
    DistanceField::Range range() const { return {m_outer - 1, m_outer}; }

    std::uint32_t at(float square) const {
        if (square >= m_outerSquare) {
            return 0;
        }
        return square <= m_innerSquare
                   ? opaqueAlpha
                   : static_cast<std::uint32_t>((m_outer - std::sqrt(square)) * 255 + 0.5F);
    }

private:
    float m_outer;
    float m_outerSquare;
    float m_innerSquare;
};

void fill(const DistanceField& field, const Coverage& coverage, const Ink& ink,
          const PixelCanvas& canvas) {
    for (int row = 0; row < field.area().height(); ++row) {
        const auto [first, last] = field.span(row);
        const float* const squares = field.squares(row);
        std::uint32_t* const pixels = canvas.at(field.area().left, field.area().top + row);
        for (int column = first; column < last; ++column) {
            const std::uint32_t covered = coverage.at(squares[column]);
            if (covered != 0) {
                const std::uint32_t source =
                    covered == opaqueAlpha ? ink.color : scaled(ink.color, covered);
                pixels[column] = blended(source, pixels[column], ink.blendMode);
            }
        }
    }
}

/// A line beside a tile that it can reach. Tiles are numbered row by row.
struct Meeting {
    std::uint32_t tile = 0;
    std::uint32_t line = 0;
};

/// A canvas in tiles of the size of a distance field, from its top left corner on.
class Tiling {
public:
    explicit Tiling(const PixelRect& canvas)
        : m_canvas(canvas)
        , m_columns((canvas.width() + side - 1) / side) {}

    /// All meetings, tile by tile.
    std::vector<Meeting> meetings(const std::vector<LinePiece>& lines, CGFloat reach) const {
        std::vector<Meeting> meetings;
        meetings.reserve(lines.size());
        for (std::uint32_t line = 0; line < lines.size(); ++line) {
            const PixelRect reached = reachOf(lines[line], reach);
            const int lastRow = (reached.bottom - 1) / side;
            for (int row = reached.top / side; !reached.isEmpty() && row <= lastRow; ++row) {
                // A long line reaches a few tiles of a row alone.
                const LinePiece part = lastRow > 0 ? inRow(lines[line], row, reach) : lines[line];
                const PixelRect pixels = reachOf(part, reach);
                for (int column = pixels.left / side; column <= (pixels.right - 1) / side;
                     ++column) {
                    meetings.push_back(
                        {static_cast<std::uint32_t>(row * m_columns + column), line});
                }
            }
        }
        std::ranges::sort(meetings, {}, &Meeting::tile);
        return meetings;
    }

    PixelRect area(std::uint32_t tile) const {
        const int left = m_canvas.left + static_cast<int>(tile) % m_columns * side;
        const int top = m_canvas.top + static_cast<int>(tile) / m_columns * side;
        return PixelRect{left, top, left + side, top + side}.intersection(m_canvas);
    }

private:
    static constexpr int side = DistanceField::side;

    /// The pixels of the canvas, counted from its corner, that a line may come to.
    PixelRect reachOf(const LinePiece& line, CGFloat reach) const {
        const auto whole = [](CGFloat place, int length) {
            return static_cast<int>(std::clamp(place, 0.0, CGFloat(length)));
        };
        const auto [lowX, highX] = std::minmax(line.start.x, line.end.x);
        const auto [lowY, highY] = std::minmax(line.start.y, line.end.y);
        return {whole(lowX - reach - m_canvas.left, m_canvas.width()),
                whole(lowY - reach - m_canvas.top, m_canvas.height()),
                whole(highX + reach + 1 - m_canvas.left, m_canvas.width()),
                whole(highY + reach + 1 - m_canvas.top, m_canvas.height())};
    }

    /// The part of a line from which a row of tiles can be reached.
    LinePiece inRow(const LinePiece& line, int row, CGFloat reach) const {
        const CGPoint along = line.end - line.start;
        if (along.y == 0) {
            return line;
        }
        const auto at = [&](CGFloat y) {
            return line.start + along * std::clamp((y - line.start.y) / along.y, 0.0, 1.0);
        };
        const CGFloat top = m_canvas.top + row * side;
        return {at(top - reach - 1), at(top + side + reach + 1)};
    }

    PixelRect m_canvas;
    int m_columns;
};

} // namespace

void paintInk(const std::vector<LinePiece>& lines, const Ink& ink, const PixelCanvas& canvas) {
    const Coverage coverage(static_cast<float>(std::max(1.0, ink.lineWidth) / 2));
    const Tiling tiling(canvas.place);
    const std::vector<Meeting> meetings =
        tiling.meetings(lines, static_cast<CGFloat>(coverage.range().outer));
    for (auto next = meetings.begin(); next != meetings.end();) {
        const std::uint32_t tile = next->tile;
        DistanceField field(tiling.area(tile), coverage.range());
        for (; next != meetings.end() && next->tile == tile; ++next) {
            field.add(lines[next->line]);
        }
        fill(field, coverage, ink, canvas);
    }
}

} // namespace quillon
