#include "raster/InkPainting.h"
#include "support/Curves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

namespace quillon::test {
namespace {

constexpr int kSide = 48;
constexpr int kSamples = 8;

struct Cubic {
    CGPoint start;
    CGPoint control1;
    CGPoint control2;
    CGPoint end;

    CGPoint at(CGFloat t) const { return onCurve(start, control1, control2, end, t); }
};

/// Bends such as a hand draws, through the middle of the picture.
Cubic bend(unsigned seed) {
    std::mt19937 random(seed);
    const auto place = [&](CGFloat low, CGFloat high) {
        std::uniform_real_distribution<CGFloat> coordinate(low, high);
        return CGPoint{coordinate(random), coordinate(random)};
    };
    return {place(12, 22), place(8, 40), place(8, 40), place(26, 36)};
}

/// How much of each pixel the line covers, of 255, by asking many places in it how far they are
/// from many places on the curve.
std::vector<double> sampledCoverage(const Cubic& curve, CGFloat lineWidth) {
    std::array<CGPoint, 200> places;
    for (std::size_t index = 0; index < places.size(); ++index) {
        places[index] = curve.at(static_cast<CGFloat>(index) / (places.size() - 1));
    }
    const auto distanceOf = [&](CGPoint at) {
        CGFloat nearest = HUGE_VAL;
        for (const CGPoint place : places) {
            const CGPoint away = place - at;
            nearest = std::min(nearest, away.x * away.x + away.y * away.y);
        }
        return std::sqrt(nearest);
    };
    const auto share = [&](int x, int y) {
        int covered = 0;
        for (int sample = 0; sample < kSamples * kSamples; ++sample) {
            const CGPoint at{x + (sample % kSamples + 0.5) / kSamples,
                             y + (sample / kSamples + 0.5) / kSamples};
            covered += distanceOf(at) <= lineWidth / 2 ? 1 : 0;
        }
        return 255.0 * covered / (kSamples * kSamples);
    };
    std::vector<double> coverage;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            // No place in a pixel is farther from its middle than this.
            constexpr CGFloat halfDiagonal = 0.71;
            const CGFloat depth = lineWidth / 2 - distanceOf({x + 0.5, y + 0.5});
            const bool isAtEdge = std::abs(depth) <= halfDiagonal;
            coverage.push_back(isAtEdge ? share(x, y) : depth > 0 ? 255 : 0);
        }
    }
    return coverage;
}

class InkCoverage : public testing::TestWithParam<double> {};

TEST_P(InkCoverage, a_line_of_any_width_covers_what_its_area_covers_of_each_pixel) {
    for (unsigned seed = 0; seed < 4; ++seed) {
        const Cubic curve = bend(seed);
        Path path;
        path.move(curve.start);
        path.addCurve(curve.end, curve.control1, curve.control2);
        std::vector<std::uint32_t> pixels(kSide * kSide);
        paintInk(flattened(path, 1), {0xFF000000, GetParam()},
                 {{0, 0, kSide, kSide}, pixels.data(), kSide});
        const auto expected = sampledCoverage(curve, GetParam());
        double ink = 0;
        double expectedInk = 0;
        int touched = 0;
        int off = 0;
        for (std::size_t index = 0; index < pixels.size(); ++index) {
            const double painted = pixels[index] >> 24;
            ink += painted;
            expectedInk += expected[index];
            touched += expected[index] > 0 ? 1 : 0;
            off += std::abs(painted - expected[index]) > 255 / 10.0 ? 1 : 0;
        }
        EXPECT_NEAR(ink / expectedInk, 1, 0.05);
        // Where two edges meet in one pixel, the nearer one alone counts.
        EXPECT_LE(off, touched / 8) << off << " of " << touched;
    }
}

INSTANTIATE_TEST_SUITE_P(OfWidth, InkCoverage, testing::Values(1, 1.5, 2, 3, 4, 8, 20));

} // namespace
} // namespace quillon::test
