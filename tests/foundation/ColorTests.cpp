#include "foundation/Color.h"

#include <gtest/gtest.h>

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

} // namespace quillon::test
