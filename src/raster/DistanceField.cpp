#include "raster/DistanceField.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quillon {

namespace {

constexpr float kFar = std::numeric_limits<float>::max();
/// Below this the core of a line is too small to be worth a look.
constexpr float kSmallestCore = 4;

// Unlike those of the library these become one instruction for several neighbours. Of what is no
// number the answer is the second.
float lower(float a, float b) {
    return a < b ? a : b;
}
float higher(float a, float b) {
    return a > b ? a : b;
}

/// The whole part of a place along an area of so many pixels.
int wholePixels(float place, int length) {
    return static_cast<int>(lower(higher(place, 0), static_cast<float>(length)));
}

/// A line, in device pixels of the view.
struct Ray {
    explicit Ray(const LinePiece& line)
        : startX(static_cast<float>(line.start.x))
        , startY(static_cast<float>(line.start.y))
        , alongX(static_cast<float>(line.end.x) - startX)
        , alongY(static_cast<float>(line.end.y) - startY)
        , length(std::sqrt(alongX * alongX + alongY * alongY))
        , unitX(length > 0 ? alongX / length : 1)
        , unitY(length > 0 ? alongY / length : 0) {}

    float startX;
    float startY;
    float alongX;
    float alongY;
    float length;
    /// The direction, also of a line that goes nowhere.
    float unitX;
    float unitY;
};

/// Brings neighbouring pixels of a row up to date with a line: `y` is that of their centres, from
/// the start of the line. The distance of a place has two parts: how far it is from the endless
/// line, and how far along this from the start or the end, if it lies beyond them.
void keepNearest(float* squares, int count, int firstPixel, float y, const Ray& line) {
    const float half = line.length / 2;
    const float alongAtRow = y * line.unitY - half;
    const float asideAtRow = y * line.unitX;
    for (int index = 0; index < count; ++index) {
        const float x = static_cast<float>(firstPixel + index) + 0.5F - line.startX;
        const float aside = x * line.unitY - asideAtRow;
        const float beyond = higher(std::abs(x * line.unitX + alongAtRow) - half, 0);
        squares[index] = lower(aside * aside + beyond * beyond, squares[index]);
    }
}

/// The blocks of a row that lie in the core of a line for sure: between two round ends that both
/// meet the row there is nothing but the line. `y` is as above; `startX` is the place of the start
/// in the row, where a pixel has the place of its centre.
DistanceField::Span coreOf(const Ray& line, float core, float y, float startX, int width) {
    constexpr int block = DistanceField::block;
    // A little less, so that no rounding makes a difference.
    const float square = (core - 0.1F) * (core - 0.1F);
    const float atStart = square - y * y;
    const float atEnd = square - (y - line.alongY) * (y - line.alongY);
    if (core < kSmallestCore || atStart <= 0 || atEnd <= 0) {
        return {};
    }
    const float halfAtStart = std::sqrt(atStart);
    const float halfAtEnd = std::sqrt(atEnd);
    const float left = startX + lower(-halfAtStart, line.alongX - halfAtEnd);
    const float right = startX + higher(halfAtStart, line.alongX + halfAtEnd);
    return {(wholePixels(left, width) + block) / block * block,
            wholePixels(right, width) / block * block};
}

} // namespace

DistanceField::DistanceField(const PixelRect& area, Range range)
    : m_area(area)
    , m_range(range)
    , m_rowLength((area.width() + block - 1) / block * block) {
    std::fill_n(m_squares.begin(), m_rowLength * area.height(), kFar);
}

void DistanceField::add(const LinePiece& line) {
    const Ray ray(line);
    const float reach = m_range.outer;
    // From the edges of the area, to which pixel the ink comes: a pixel is where its centre is.
    const float startX = ray.startX - static_cast<float>(m_area.left) - 0.5F;
    const float startY = ray.startY - static_cast<float>(m_area.top) - 0.5F;
    const float leftmost = startX + lower(ray.alongX, 0) - reach;
    const float rightmost = startX + higher(ray.alongX, 0) + reach + 1;
    const int top = wholePixels(startY + lower(ray.alongY, 0) - reach, m_area.height());
    const int bottom = wholePixels(startY + higher(ray.alongY, 0) + reach + 1, m_area.height());

    // A steep line crosses a row in a part of its bounds.
    const bool isSteep = std::abs(ray.alongY) > 1;
    const float slope = isSteep ? ray.alongX / ray.alongY : 0;
    const float halfWidth = isSteep ? reach * ray.length / std::abs(ray.alongY) : 0;

    for (int row = top; row < bottom; ++row) {
        const float y = static_cast<float>(m_area.top + row) + 0.5F - ray.startY;
        const float middle = startX + y * slope;
        const float left = isSteep ? higher(leftmost, middle - halfWidth) : leftmost;
        const float right = isSteep ? lower(rightmost, middle + halfWidth + 1) : rightmost;
        const int first = wholePixels(left, m_area.width());
        const int last = wholePixels(right, m_area.width());
        if (first >= last) {
            continue;
        }
        Span& span = m_spans[static_cast<std::size_t>(row)];
        span = {std::min(span.first, first), std::max(span.last, last)};
        // Up to three more are no harm: rows have room for whole blocks.
        const int firstOfBlock = first / block * block;
        const int lastOfBlock = (last + block - 1) / block * block;
        float* const squares = m_squares.data() + row * m_rowLength;
        const auto keep = [&](int from, int to) {
            keepNearest(squares + from, to - from, m_area.left + from, y, ray);
        };
        const Span core = coreOf(ray, m_range.inner, y, startX, m_area.width());
        if (core.first >= core.last) {
            keep(firstOfBlock, lastOfBlock);
        } else {
            keep(firstOfBlock, core.first);
            std::fill(squares + core.first, squares + core.last, 0.0F);
            keep(core.last, lastOfBlock);
        }
    }
}

} // namespace quillon
