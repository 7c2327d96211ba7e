#include "platform/Path.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillon::test {

namespace {

using Verb = Path::Verb;

/// A point of a cubic curve.
CGPoint onCurve(CGPoint start, CGPoint control1, CGPoint control2, CGPoint end, double t) {
    const double u = 1 - t;
    return start * (u * u * u) + control1 * (3 * u * u * t) + control2 * (3 * u * t * t) +
           end * (t * t * t);
}

} // namespace

TEST(Path, each_element_has_its_verb_and_its_points) {
    Path path;
    path.move({0, 1});
    path.addLine({2, 3});
    path.addCurve({8, 9}, {4, 5}, {6, 7});
    path.closeSubpath();
    EXPECT_EQ(path.verbs(), (std::vector{Verb::move, Verb::line, Verb::curve, Verb::close}));
    EXPECT_EQ(path.points(), (std::vector<CGPoint>{{0, 1}, {2, 3}, {4, 5}, {6, 7}, {8, 9}}));
}

TEST(Path, a_rectangle_is_four_corners_and_closed) {
    Path path;
    path.addRect({1, 2, 10, 20});
    EXPECT_EQ(path.verbs(),
              (std::vector{Verb::move, Verb::line, Verb::line, Verb::line, Verb::close}));
    EXPECT_EQ(path.points(), (std::vector<CGPoint>{{1, 2}, {11, 2}, {11, 22}, {1, 22}}));
}

TEST(Path, an_ellipse_touches_its_rectangle_and_stays_on_the_curve) {
    Path path;
    path.addEllipse({0, 0, 200, 100});
    ASSERT_EQ(path.verbs(), (std::vector{Verb::move, Verb::curve, Verb::curve, Verb::curve,
                                         Verb::curve, Verb::close}));
    const auto& points = path.points();
    EXPECT_EQ(points.back(), points.front());
    CGPoint start = points.front();
    for (std::size_t index = 1; index < points.size(); index += 3) {
        const CGPoint end = points[index + 2];
        for (double t = 0; t <= 1; t += 0.05) {
            const CGPoint point = onCurve(start, points[index], points[index + 1], end, t);
            EXPECT_NEAR(std::hypot((point.x - 100) / 100, (point.y - 50) / 50), 1, 0.0003);
        }
        start = end;
    }
    EXPECT_EQ(path.controlPointBounds(), (CGRect{0, 0, 200, 100}));
}

TEST(Path, the_bounds_are_those_of_all_points_control_points_included) {
    Path path;
    path.move({0, 0});
    path.addCurve({10, 0}, {5, -30}, {20, 40});
    EXPECT_EQ(path.controlPointBounds(), (CGRect{0, -30, 20, 70}));
}

TEST(Path, an_empty_one_has_no_bounds) {
    Path path;
    EXPECT_TRUE(path.isEmpty());
    EXPECT_EQ(path.controlPointBounds(), CGRect::zero);
    path.move({5, 5});
    EXPECT_FALSE(path.isEmpty());
    EXPECT_EQ(path.controlPointBounds(), (CGRect{5, 5, 0, 0}));
    path.clear();
    EXPECT_TRUE(path.isEmpty());
    EXPECT_EQ(path, Path());
}

} // namespace quillon::test
