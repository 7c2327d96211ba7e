#include "annotation/DirtyCells.h"
#include "annotation/LiveStrokeLayer.h"
#include "annotation/StrokeRenderer.h"
#include "desktop/painting/PaintedPicture.h"
#include "desktop/qt/QtGraphics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <random>
#include <string>

namespace quillon::desktop {
namespace {

constexpr CGSize kSize{160, 110};

/// How the points of a stroke follow each other.
enum class Course {
    jagged,
    smooth,
    thereAndBack,
    loop,
    pointsAgain,
    onGrid,
    turningOnTheSpot,
    tiny,
};

constexpr Course kCourses[] = {Course::jagged,      Course::smooth, Course::thereAndBack,
                               Course::loop,        Course::onGrid, Course::turningOnTheSpot,
                               Course::pointsAgain, Course::tiny};

/// Strokes of every course, width, colour and tool, half of them on whole points as from a mouse.
class Strokes {
public:
    explicit Strokes(unsigned seed)
        : m_random(seed) {}

    DrawingStroke next(Course course) {
        constexpr DrawingTool tools[] = {DrawingTool::pen, DrawingTool::pen,
                                         DrawingTool::highlighter, DrawingTool::eraser};
        const bool isThin = pick(3) == 0;
        return DrawingStroke({.points = points(course),
                              .color = Color::red.opacity(pick(2) == 0 ? 1 : real(0.05, 1)),
                              .lineWidth = isThin ? real(0.5, 1.5) : real(1, 40),
                              .tool = tools[pick(4)]});
    }
    CGRect rect() {
        const CGPoint corner = place(false);
        return {corner.x, corner.y, real(1, 60), real(1, 60)};
    }

private:
    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    double real(double low, double high) { return low + (high - low) * pick(1 << 20) / (1 << 20); }
    CGPoint place(bool isWhole) {
        const CGPoint any{real(-15, kSize.width + 15), real(-15, kSize.height + 15)};
        return isWhole ? CGPoint{std::round(any.x), std::round(any.y)} : any;
    }

    CGPoint nextPoint(Course course, CGPoint last, bool isWhole) {
        switch (course) {
        case Course::smooth:
        case Course::loop: {
            m_direction += real(-0.7, 0.7);
            const CGPoint step{9 * std::cos(m_direction), 9 * std::sin(m_direction)};
            return last + (isWhole ? CGPoint{std::round(step.x), std::round(step.y)} : step);
        }
        case Course::onGrid:
            return {20.0 + 15 * pick(4), 20.0 + 15 * pick(4)};
        case Course::tiny:
            return last + CGPoint{real(-0.3, 0.3), real(-0.3, 0.3)};
        case Course::pointsAgain:
            return last + CGPoint{real(-9, 9), real(-9, 9)};
        case Course::jagged:
        case Course::thereAndBack:
        case Course::turningOnTheSpot:
            break;
        }
        return place(isWhole);
    }

    std::vector<CGPoint> points(Course course) {
        const bool isWhole = pick(2) == 0;
        const int count = 2 + pick(20);
        std::vector<CGPoint> points{place(isWhole)};
        for (int number = 1; number < count; ++number) {
            const CGPoint last = points.back();
            points.push_back(nextPoint(course, last, isWhole));
            if (course == Course::pointsAgain) {
                points.insert(points.end(), static_cast<std::size_t>(pick(4)), points.back());
            } else if (course == Course::turningOnTheSpot) {
                points.push_back(last);
            }
        }
        if (course == Course::thereAndBack) {
            const std::vector<CGPoint> there = points;
            points.insert(points.end(), there.rbegin(), there.rend());
        } else if (course == Course::loop) {
            points.push_back(points.front());
            if (pick(2) == 0) {
                // As at the release of the pointer, which comes where the last motion was.
                points.push_back(points.front());
            }
        }
        return points;
    }

    std::mt19937 m_random;
    double m_direction = 0;
};

class PaintedParts : public testing::TestWithParam<double> {
protected:
    /// Every segment.
    QImage whole(const DrawingStroke& stroke) const {
        QImage picture = blankPicture(kSize, m_scale);
        QtGraphicsContext context(canvasOf(picture), picture.rect(), m_scale);
        drawStroke(context, stroke, blendModeOf(stroke.tool), SegmentIndex(stroke.points),
                   everywhere());
        return picture;
    }

    QImage part(const DrawingStroke& stroke, const CGRect& rect) const {
        QImage picture = blankPicture(kSize, m_scale);
        paintAnew(picture, rect, m_scale, [&](GraphicsContext& context, const CGRect&) {
            drawStroke(context, stroke, blendModeOf(stroke.tool), SegmentIndex(stroke.points));
        });
        return picture;
    }

    /// What lies in those cells, painted as a repaint in steps does it.
    QImage cellsOf(const DrawingStroke& stroke, const DirtyCells& cells) {
        const auto bitmap = m_graphics.makeBitmap(kSize, m_scale);
        const CGRect all{0, 0, kSize.width, kSize.height};
        bitmap->paint(all, [&](GraphicsContext& context) {
            drawStroke(context, stroke, blendModeOf(stroke.tool), SegmentIndex(stroke.points),
                       PaintArea(all, cells));
        });
        QImage picture = blankPicture(kSize, m_scale);
        paintAnew(picture, all, m_scale, [&](GraphicsContext& context, const CGRect& rect) {
            context.draw(*bitmap, rect);
        });
        return picture;
    }

    /// The stroke as it grows under the pointer, by one to three points at a time, each time its
    /// damage alone.
    QImage grown(const DrawingStroke& stroke) {
        LiveStrokeLayer live(m_graphics);
        live.layout(kSize, m_scale);
        QImage picture = blankPicture(kSize, m_scale);
        std::optional<DrawingStroke> growing = stroke;
        growing->points.clear();
        for (std::size_t next = 0; next < stroke.points.size();) {
            for (std::size_t more = 1 + next % 3; more > 0 && next < stroke.points.size(); --more) {
                growing->points.push_back(stroke.points[next++]);
            }
            const Damage damage = live.update(growing);
            for (const CGRect& rect : damage.rects()) {
                paintAnew(picture, rect, m_scale, [&](GraphicsContext& context, const CGRect&) {
                    live.draw(context, growing);
                });
            }
        }
        return picture;
    }

    const double m_scale = GetParam();
    QtGraphics m_graphics;
};

TEST_P(PaintedParts, of_any_stroke_each_part_has_the_pixels_of_the_whole) {
    Strokes strokes(5);
    for (int round = 0; round < 20; ++round) {
        for (const Course course : kCourses) {
            SCOPED_TRACE("round " + std::to_string(round) + ", course " +
                         std::to_string(static_cast<int>(course)));
            const DrawingStroke stroke = strokes.next(course);
            const QImage expected = whole(stroke);
            for (int number = 0; number < 3; ++number) {
                const CGRect rect = strokes.rect();
                const QRect pixels = devicePixels(rect, m_scale) & expected.rect();
                ASSERT_EQ(differingPixels(part(stroke, rect), expected, pixels), 0);
            }
            DirtyCells cells(kSize, m_scale);
            for (int number = 0; number < 4; ++number) {
                cells.add(strokes.rect());
            }
            const QImage inCells = cellsOf(stroke, cells);
            for (const CGRect& rect : cells.rects()) {
                const QRect pixels = devicePixels(rect, m_scale) & expected.rect();
                ASSERT_EQ(differingPixels(inCells, expected, pixels), 0);
            }
            ASSERT_EQ(differingPixels(grown(stroke), expected), 0);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AtEachScale, PaintedParts, testing::Values(1.0, 1.25, 1.5, 2.0));

} // namespace
} // namespace quillon::desktop
