#include "raster/Flattening.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {

namespace {

constexpr CGFloat kTolerance = 0.1;
/// Enough for a curve across several screens.
constexpr int kMostSteps = 256;
/// In device pixels. Screens end long before.
constexpr CGFloat kFarthest = 1e6;

/// Wang's formula for a cubic: its second differences tell how far a chord can be from it.
int stepsOf(CGPoint start, CGPoint control1, CGPoint control2, CGPoint end) {
    const CGPoint first = start - control1 * 2 + control2;
    const CGPoint second = control1 - control2 * 2 + end;
    const CGFloat largestSquare =
        std::max(first.x * first.x + first.y * first.y, second.x * second.x + second.y * second.y);
    const CGFloat steps = std::sqrt(0.75 / kTolerance * std::sqrt(largestSquare));
    return steps < kMostSteps ? static_cast<int>(steps) + 1 : kMostSteps;
}

/// False of what is no number.
bool isOnAnyScreen(CGPoint place) {
    return std::abs(place.x) <= kFarthest && std::abs(place.y) <= kFarthest;
}

class Flattener {
public:
    explicit Flattener(std::size_t capacity) { m_pieces.reserve(capacity); }

    void move(CGPoint to) { m_start = m_pen = to; }
    void close() { addLine(m_start); }
    void addLine(CGPoint to) {
        if (isOnAnyScreen(m_pen) && isOnAnyScreen(to)) {
            m_pieces.push_back({m_pen, to});
        }
        m_pen = to;
    }
    void addCurve(CGPoint control1, CGPoint control2, CGPoint end) {
        const CGPoint start = m_pen;
        const int steps = stepsOf(start, control1, control2, end);
        // The polynomial of the curve, by powers of its parameter.
        const CGPoint linear = (control1 - start) * 3;
        const CGPoint square = (control2 - control1) * 3 - linear;
        const CGPoint cube = end - start - linear - square;
        for (int step = 1; step < steps; ++step) {
            const CGFloat t = static_cast<CGFloat>(step) / steps;
            addLine(start + (linear + (square + cube * t) * t) * t);
        }
        addLine(end);
    }

    std::vector<LinePiece> takePieces() { return std::move(m_pieces); }

private:
    CGPoint m_start;
    CGPoint m_pen;
    std::vector<LinePiece> m_pieces;
};

} // namespace

std::vector<LinePiece> flattened(const Path& path, CGFloat scale) {
    Flattener flattener(path.points().size());
    auto point = path.points().begin();
    for (const auto verb : path.verbs()) {
        switch (verb) {
        case Path::Verb::move:
            flattener.move(*point++ * scale);
            break;
        case Path::Verb::line:
            flattener.addLine(*point++ * scale);
            break;
        case Path::Verb::curve:
            flattener.addCurve(point[0] * scale, point[1] * scale, point[2] * scale);
            point += 3;
            break;
        case Path::Verb::close:
            flattener.close();
            break;
        }
    }
    return flattener.takePieces();
}

} // namespace quillon
