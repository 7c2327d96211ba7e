#include "desktop/painting/PaintedPicture.h"
#include "desktop/qt/QtGraphics.h"
#include "desktop/qt/StampedContent.h"
#include "desktop/support/VirtualDesktop.h"
#include "spotlight/CircleDamage.h"
#include "spotlight/DimmedPicture.h"

#include <gtest/gtest.h>

#include <random>

namespace quillon::desktop {
namespace {

constexpr CGSize kSize{400, 300};
const Color kDark = Color::black.opacity(0.7);

CGRect wholeView() {
    return {0, 0, kSize.width, kSize.height};
}

/// The whole as one even-odd fill, by the painter alone.
QImage reference(const Circle& circle, CGFloat scale, const Color& color = kDark) {
    QImage picture = blankPicture(kSize, scale);
    paintAnew(picture, wholeView(), scale, [&](GraphicsContext& context, const CGRect&) {
        Path mask;
        mask.addRect(wholeView());
        mask.addEllipse(circle.bounds());
        context.fillEvenOdd(mask, color);
    });
    return picture;
}

/// How far the two are apart where they differ most.
int largestDifference(const QImage& a, const QImage& b) {
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            largest = std::max(largest, std::abs(qAlpha(a.pixel(x, y)) - qAlpha(b.pixel(x, y))));
        }
    }
    return largest;
}

/// Circles one after the other: mostly near their predecessor, some far away, some of another
/// size. The pointer stands on whole device pixels.
class Circles {
public:
    explicit Circles(CGFloat scale)
        : m_scale(scale)
        , m_anyX(-20, static_cast<int>(kSize.width * scale) + 20)
        , m_anyY(-20, static_cast<int>(kSize.height * scale) + 20) {}

    const Circle& current() const { return m_circle; }
    const Circle& next() {
        const int chosen = m_kind(m_random);
        m_pixel = chosen == 0 ? QPoint(m_anyX(m_random), m_anyY(m_random))
                              : m_pixel + QPoint(m_step(m_random), m_step(m_random));
        m_circle = {{m_pixel.x() / m_scale, m_pixel.y() / m_scale},
                    chosen == 1 ? 40.0 + m_step(m_random) : m_circle.radius};
        return m_circle;
    }

private:
    CGFloat m_scale;
    std::mt19937 m_random{7};
    std::uniform_int_distribution<int> m_anyX;
    std::uniform_int_distribution<int> m_anyY;
    std::uniform_int_distribution<int> m_step{-9, 9};
    std::uniform_int_distribution<int> m_kind{0, 9};
    QPoint m_pixel{200, 150};
    Circle m_circle{{m_pixel.x() / m_scale, m_pixel.y() / m_scale}, 60};
};

/// A translucent window on a server of its own, of the size of the view.
class ServerWindow {
public:
    explicit ServerWindow(CGFloat scale)
        : m_size(blankPicture(kSize, scale).size()) {
        const xcb_screen_t& screen = m_server.connection().screen();
        const xcb_visualid_t visual = translucentVisual(screen);
        const xcb_colormap_t colors = xcb_generate_id(connection());
        xcb_create_colormap(connection(), XCB_COLORMAP_ALLOC_NONE, colors, screen.root, visual);
        const std::uint32_t values[] = {0, 0, 1, colors};
        xcb_create_window(
            connection(), 32, m_window, screen.root, 0, 0,
            static_cast<std::uint16_t>(m_size.width()), static_cast<std::uint16_t>(m_size.height()),
            0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
            XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_COLORMAP,
            values);
        xcb_map_window(connection(), m_window);
        m_server.connection().synchronise();
    }

    xcb_connection_t* connection() { return m_server.connection().get(); }
    xcb_window_t id() const { return m_window; }
    QRect bounds() const { return {QPoint(), m_size}; }

    QImage picture() {
        const test::XOwned<xcb_get_image_reply_t> reply(
            xcb_get_image_reply(connection(),
                                xcb_get_image(connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, 0,
                                              0, static_cast<std::uint16_t>(m_size.width()),
                                              static_cast<std::uint16_t>(m_size.height()), ~0U),
                                nullptr));
        return QImage(xcb_get_image_data(reply.get()), m_size.width(), m_size.height(),
                      QImage::Format_ARGB32_Premultiplied)
            .copy();
    }

private:
    static xcb_visualid_t translucentVisual(const xcb_screen_t& screen) {
        for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem != 0;
             xcb_depth_next(&depth)) {
            if (depth.data->depth == 32) {
                return xcb_depth_visuals(depth.data)->visual_id;
            }
        }
        return XCB_NONE;
    }

    QSize m_size;
    test::VirtualDesktop m_server{
        {.width = 1000, .height = 800, .hasCompositor = false, .hasWindowManager = false}};
    xcb_window_t m_window = xcb_generate_id(m_server.connection().get());
};

class SpotlightPicture : public testing::TestWithParam<CGFloat> {};

TEST_P(SpotlightPicture, after_any_moves_it_is_the_even_odd_fill_of_the_whole) {
    const CGFloat scale = GetParam();
    QtGraphics graphics;
    DimmedPicture dimmed(graphics);
    QImage screen = blankPicture(kSize, scale);
    const auto paintOnScreen = [&](const CGRect& rect, const Circle& circle) {
        paintAnew(screen, rect, scale, [&](GraphicsContext& context, const CGRect& part) {
            dimmed.paint(context, part, circle, kDark, scale);
        });
    };
    Circles circles(scale);
    paintOnScreen(wholeView(), circles.current());
    for (int move = 0; move < 60; ++move) {
        const Circle before = circles.current();
        const Circle& next = circles.next();
        const Damage damage = differenceOfCircles(before, next);
        for (const CGRect& rect : damage.rects()) {
            paintOnScreen(rect, next);
        }
        ASSERT_EQ(largestDifference(screen, reference(next, scale)), 0) << "after move " << move;
    }
}

TEST_P(SpotlightPicture, put_together_by_the_server_it_is_the_same) {
    const CGFloat scale = GetParam();
    ServerWindow window(scale);
    StampedContent content(window.connection());
    QtGraphics graphics;
    DimmedPicture dimmed(graphics);
    const auto put = [&](const QRegion& pixels, const Circle& circle, const Color& color) {
        const auto picture = dimmed.stamped(circle, color, scale);
        ASSERT_TRUE(picture);
        ASSERT_TRUE(content.put(window.id(), *picture, pixels));
    };
    Circles circles(scale);
    put(window.bounds(), circles.current(), kDark);
    for (int move = 0; move < 30; ++move) {
        const Circle before = circles.current();
        const Circle& next = circles.next();
        const Damage damage = differenceOfCircles(before, next);
        QRegion pixels;
        for (const CGRect& rect : damage.rects()) {
            pixels += devicePixels(rect, scale) & window.bounds();
        }
        put(pixels, next, kDark);
        ASSERT_EQ(largestDifference(window.picture(), reference(next, scale)), 0)
            << "after move " << move;
    }
    for (int percent = 0; percent <= 100; percent += 5) {
        const Color color = Color::black.opacity(percent / 100.0);
        put(window.bounds(), circles.current(), color);
        ASSERT_EQ(largestDifference(window.picture(), reference(circles.current(), scale, color)),
                  0)
            << percent;
    }
}

TEST(SpotlightPictureSize, a_circle_too_large_to_keep_is_painted_and_not_put_together) {
    QtGraphics graphics;
    DimmedPicture dimmed(graphics);
    EXPECT_TRUE(dimmed.stamped({{200, 150}, 500}, kDark, 2));
    EXPECT_FALSE(dimmed.stamped({{200, 150}, 501}, kDark, 2));
}

INSTANTIATE_TEST_SUITE_P(AtEachScale, SpotlightPicture, testing::Values(1.0, 1.25, 1.5, 2.0));

} // namespace
} // namespace quillon::desktop
