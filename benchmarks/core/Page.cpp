#include "benchmarks/core/Page.h"

#include <cmath>
#include <random>

namespace quillon::bench {

namespace {

constexpr CGFloat kStep = 4;
constexpr CGFloat kLineWidth = 4;
constexpr CGFloat kEraserWidth = 20;
/// How far a hand turns from one point to the next, in radians.
constexpr double kTurn = 0.25;

} // namespace

DrawingStroke strokeOnPage(std::uint32_t number) {
    std::mt19937 random(number);
    std::uniform_real_distribution<CGFloat> across(0, kPageSize.width);
    std::uniform_real_distribution<CGFloat> down(0, kPageSize.height);
    std::uniform_real_distribution<double> turn(-kTurn, kTurn);
    std::vector<CGPoint> points{{across(random), down(random)}};
    for (double direction = across(random); points.size() < kPointsOfStroke;) {
        direction += turn(random);
        points.push_back({points.back().x + kStep * std::cos(direction),
                          points.back().y + kStep * std::sin(direction)});
    }
    return DrawingStroke({.points = std::move(points),
                          .color = Color(1, 0, 0),
                          .lineWidth = kLineWidth,
                          .tool = DrawingTool::pen});
}

const StrokeList& pageOf(std::size_t strokes) {
    static StrokeList page;
    if (page.size() != strokes) {
        page.clear();
        for (std::size_t number = 0; number < strokes; ++number) {
            page.append(strokeOnPage(static_cast<std::uint32_t>(number)));
        }
    }
    return page;
}

DrawingStroke eraserSweep() {
    std::vector<CGPoint> points;
    for (std::size_t index = 0; index < kPointsOfEraser; ++index) {
        const double along = static_cast<double>(index) / (kPointsOfEraser - 1);
        points.push_back(
            {kPageSize.width * along, kPageSize.height * (0.5 + 0.3 * std::sin(along * 4 * M_PI))});
    }
    return DrawingStroke({.points = std::move(points),
                          .color = Color::white.opacity(0.5),
                          .lineWidth = kEraserWidth,
                          .tool = DrawingTool::eraser});
}

} // namespace quillon::bench
