#include "platform/Path.h"
#include "support/Curves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace quillon::test {

namespace {

using Verb = Path::Verb;

struct Cubic {
    CGPoint start;
    CGPoint control1;
    CGPoint control2;
    CGPoint end;

    /// Of the turn to the right, as the screen's coordinates have it.
    double curvature(double t) const {
        const double u = 1 - t;
        const CGPoint first = (control1 - start) * (3 * u * u) +
                              (control2 - control1) * (6 * u * t) + (end - control2) * (3 * t * t);
        const CGPoint second =
            (control2 - control1 * 2 + start) * (6 * u) + (end - control2 * 2 + control1) * (6 * t);
        return (first.x * second.y - first.y * second.x) /
               std::pow(std::hypot(first.x, first.y), 3);
    }
};

std::vector<Cubic> curvesOf(const Path& path) {
    std::vector<Cubic> curves;
    CGPoint place;
    auto point = path.points().begin();
    for (const Verb verb : path.verbs()) {
        if (verb == Verb::curve) {
            curves.push_back({place, point[0], point[1], point[2]});
            point += 3;
            place = curves.back().end;
        } else if (verb != Verb::close) {
            place = *point++;
        }
    }
    return curves;
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

TEST(Path, a_continuous_corner_crosses_the_diagonal_where_the_circle_does) {
    Path path;
    path.addContinuousRoundedRect({0, 0, 100, 80}, 20);
    const CGFloat tip = 20 * (1 - std::numbers::sqrt2 / 2);
    for (const CGPoint middle : {CGPoint{100 - tip, tip}, CGPoint{100 - tip, 80 - tip},
                                 CGPoint{tip, 80 - tip}, CGPoint{tip, tip}}) {
        const bool isOnPath = std::ranges::any_of(
            path.points(), [&](CGPoint point) { return distance(point, middle) < 1e-9; });
        EXPECT_TRUE(isOnPath) << middle.x << ", " << middle.y;
    }
}

TEST(Path, the_curvature_of_a_continuous_corner_has_no_jump) {
    Path path;
    path.addContinuousRoundedRect({0, 0, 100, 100}, 20);
    double last = 0;
    double largest = 0;
    for (const Cubic& curve : curvesOf(path)) {
        for (int step = 0; step <= 400; ++step) {
            const double now = curve.curvature(step / 400.0);
            EXPECT_NEAR(now, last, 0.002);
            largest = std::max(largest, now);
            last = now;
        }
    }
    EXPECT_NEAR(last, 0, 1e-9) << "a side is straight where a corner ends";
    EXPECT_GE(largest, 1.0 / 20);
    EXPECT_LT(largest, 1.4 / 20);
}

TEST(Path, a_continuous_corner_begins_one_and_a_half_radii_before_the_tip) {
    Path path;
    path.addContinuousRoundedRect({10, 20, 100, 80}, 20);
    EXPECT_EQ(path.points().front(), (CGPoint{80, 20}));
    EXPECT_EQ(path.controlPointBounds(), (CGRect{10, 20, 100, 80}));
    EXPECT_EQ(path.verbs().size(), 1 + 3 + 8 + 1U) << "a move, three sides, two curves a corner";
}

TEST(Path, corners_without_room_meet_in_the_middle_of_a_side) {
    Path path;
    path.addContinuousRoundedRect({0, 0, 40, 20}, 1000);
    EXPECT_EQ(path.points().front(), (CGPoint{30, 0}));
    EXPECT_EQ(path.controlPointBounds(), (CGRect{0, 0, 40, 20}));
}

TEST(Path, a_rounded_rectangle_without_size_or_radius_is_still_a_figure) {
    Path point;
    point.addContinuousRoundedRect({5, 5, 0, 0}, 10);
    EXPECT_EQ(point.controlPointBounds(), (CGRect{5, 5, 0, 0}));
    Path sharp;
    sharp.addContinuousRoundedRect({0, 0, 10, 10}, 0);
    EXPECT_EQ(sharp.controlPointBounds(), (CGRect{0, 0, 10, 10}));
}

} // namespace quillon::test
