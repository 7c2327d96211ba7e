#include "foundation/Color.h"

#include <gtest/gtest.h>

#include <cmath>

#include <vector>

namespace quillon::test {

namespace {

NSColor linear(double value) {
    return {ColorSpace::linearSRGB, {value, value, value, 0.5}};
}

} // namespace

TEST(NSColor, a_conversion_to_its_own_space_changes_nothing) {
    for (const auto space : {ColorSpace::sRGB, ColorSpace::linearSRGB, ColorSpace::device}) {
        const NSColor color(space, {0.1, -2, 3, 0.5});
        EXPECT_EQ(color.colorUsingColorSpace(space), color);
    }
}

TEST(NSColor, known_values_of_the_transfer_function) {
    const auto encoded = [](double value) {
        return linear(value).colorUsingColorSpace(ColorSpace::sRGB)->getRedGreenBlueAlpha().red;
    };
    EXPECT_NEAR(encoded(0), 0, 1e-12);
    EXPECT_NEAR(encoded(1), 1, 1e-12);
    EXPECT_NEAR(encoded(0.2140411404822325), 0.5, 1e-9);
    EXPECT_NEAR(encoded(0.001), 0.01292, 1e-12);
}

TEST(NSColor, there_and_back_is_the_same_also_outside_of_0_to_1) {
    for (const double value : {-1.5, -0.001, 0.0, 0.002, 0.18, 0.5, 1.0, 4.0}) {
        const auto encoded = linear(value).colorUsingColorSpace(ColorSpace::sRGB);
        ASSERT_TRUE(encoded);
        const auto back = encoded->colorUsingColorSpace(ColorSpace::linearSRGB);
        ASSERT_TRUE(back);
        EXPECT_NEAR(back->getRedGreenBlueAlpha().green, value, 1e-9);
    }
}

TEST(NSColor, negative_components_mirror_positive_ones) {
    const auto components = [](double value) {
        return linear(value).colorUsingColorSpace(ColorSpace::sRGB)->getRedGreenBlueAlpha();
    };
    EXPECT_EQ(components(-0.3).blue, -components(0.3).blue);
}

TEST(NSColor, alpha_is_no_matter_of_a_space) {
    EXPECT_EQ(linear(0.3).colorUsingColorSpace(ColorSpace::sRGB)->getRedGreenBlueAlpha().alpha,
              0.5);
}

TEST(NSColor, a_device_colour_converts_neither_way) {
    const NSColor device(ColorSpace::device, {0.1, 0.2, 0.3, 1});
    EXPECT_EQ(device.colorUsingColorSpace(ColorSpace::sRGB), std::nullopt);
    EXPECT_EQ(linear(0.5).colorUsingColorSpace(ColorSpace::device), std::nullopt);
}

TEST(Color, it_is_painted_in_sRGB_or_in_its_own_space_when_it_does_not_convert) {
    EXPECT_EQ(Color(0.1, 0.2, 0.3, 0.4).resolved(), (NSColor::Components{0.1, 0.2, 0.3, 0.4}));
    EXPECT_EQ(Color(ColorSpace::device, 0.1, 0.2, 0.3).resolved(),
              (NSColor::Components{0.1, 0.2, 0.3, 1}));
    EXPECT_NEAR(Color(ColorSpace::linearSRGB, 0.2140411404822325, 0, 0).resolved().red, 0.5, 1e-9);
}

TEST(Color, an_opacity_multiplies_the_alpha_that_is_there) {
    EXPECT_EQ(Color(0.1, 0.2, 0.3, 0.5).opacity(0.5), Color(0.1, 0.2, 0.3, 0.25));
    EXPECT_EQ(Color::white.opacity(0), Color(1, 1, 1, 0));
}

TEST(Color, the_quick_choice_starts_with_five_colours) {
    EXPECT_EQ(Color::quickSelectDefaults(),
              (std::vector{Color::red, Color::yellow, Color::green, Color::cyan, Color::purple}));
}

TEST(Color, the_palette_has_fourteen_different_colours_in_order) {
    const auto& palette = Color::defaultPalette();
    EXPECT_EQ(palette,
              (std::vector{Color::red, Color::orange, Color::yellow, Color::green, Color::mint,
                           Color::teal, Color::cyan, Color::blue, Color::indigo, Color::purple,
                           Color::pink, Color::brown, Color::white, Color::black}));
    for (std::size_t first = 0; first < palette.size(); ++first) {
        for (std::size_t second = first + 1; second < palette.size(); ++second) {
            EXPECT_NE(palette[first], palette[second]) << first << ' ' << second;
        }
    }
}

TEST(Color, hue_runs_from_red_over_green_and_blue_back_to_red) {
    const auto isNear = [](const Color& color, double red, double green, double blue) {
        const auto seen = color.resolved();
        return std::abs(seen.red - red) < 1e-12 && std::abs(seen.green - green) < 1e-12 &&
               std::abs(seen.blue - blue) < 1e-12;
    };
    EXPECT_TRUE(isNear(Color::fromHSB(0, 1, 1), 1, 0, 0));
    EXPECT_TRUE(isNear(Color::fromHSB(1.0 / 6, 1, 1), 1, 1, 0));
    EXPECT_TRUE(isNear(Color::fromHSB(2.0 / 6, 1, 1), 0, 1, 0));
    EXPECT_TRUE(isNear(Color::fromHSB(3.0 / 6, 1, 1), 0, 1, 1));
    EXPECT_TRUE(isNear(Color::fromHSB(4.0 / 6, 1, 1), 0, 0, 1));
    EXPECT_TRUE(isNear(Color::fromHSB(5.0 / 6, 1, 1), 1, 0, 1));
    EXPECT_TRUE(isNear(Color::fromHSB(1, 1, 1), 1, 0, 0));
    EXPECT_TRUE(isNear(Color::fromHSB(0.7, 0, 0.4), 0.4, 0.4, 0.4));
}

TEST(Color, a_colour_made_of_hue_saturation_and_brightness_gives_them_back) {
    for (double hue = 0; hue < 1; hue += 0.05) {
        const Color color = Color::fromHSB(hue, 0.6, 0.7, 0.3);
        const auto read = color.nsColor().getHueSaturationBrightnessAlpha();
        EXPECT_NEAR(read.hue, hue, 1e-9);
        EXPECT_NEAR(read.saturation, 0.6, 1e-9);
        EXPECT_NEAR(read.brightness, 0.7, 1e-9);
        EXPECT_EQ(read.alpha, 0.3);
    }
}

TEST(Color, a_grey_has_no_hue_and_black_no_saturation) {
    EXPECT_EQ(Color(0.5, 0.5, 0.5).nsColor().getHueSaturationBrightnessAlpha(),
              (NSColor::HSBA{0, 0, 0.5, 1}));
    EXPECT_EQ(Color::black.nsColor().getHueSaturationBrightnessAlpha(),
              (NSColor::HSBA{0, 0, 0, 1}));
}

TEST(Color, one_darker_than_black_has_no_saturation_either) {
    EXPECT_EQ(Color(0, -0.25, -0.5).nsColor().getHueSaturationBrightnessAlpha(),
              (NSColor::HSBA{0, 0, 0, 1}));
}

} // namespace quillon::test
