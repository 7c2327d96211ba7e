#include "annotation/AnnotationCanvas.h"
#include "annotation/PenRest.h"
#include "annotation/StrokeRenderer.h"
#include "annotation/StrokeWalk.h"
#include "desktop/painting/PaintedPicture.h"
#include "desktop/qt/QtGraphics.h"
#include "raster/Blending.h"
#include "support/FakeHost.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace quillon::desktop {
namespace {

constexpr CGSize kSize{240, 160};

/// A screen in memory on which the overlay is shown as the host shows it: only damage is painted.
class OverlayOnScreen {
public:
    explicit OverlayOnScreen(CGFloat scale)
        : m_scale(scale)
        , m_screen(blankPicture(kSize, scale)) {
        settings().isAnnotationEnabled = true;
        overlay.layout(kSize, scale);
        update();
    }

    /// The pen rests, what the queue holds is done, and the update that follows it.
    void turn() {
        host.mainQueue.pass(PenRest::length);
        host.mainQueue.turn();
        update();
    }
    /// Whatever is to be done without further input is done.
    void settle() {
        update();
        while (!host.mainQueue.isIdle()) {
            host.mainQueue.advance(PenRest::length);
            update();
        }
    }

    AppSettings& settings() { return AppSettings::shared(); }

    /// Answers whether there was anything to update.
    bool update() {
        const Damage damage = overlay.takeDamage();
        for (const CGRect& rect : damage.rects()) {
            expose(rect);
        }
        return !damage.isEmpty();
    }

    /// The desktop asks for a part of the picture, at a time of its own.
    void expose(const CGRect& rect) {
        paintAnew(m_screen, rect, m_scale, [&](GraphicsContext& context, const CGRect& part) {
            overlay.paint(context, part);
        });
    }

    /// The plain walk: every segment of every stroke, over the whole screen, from nothing.
    QImage plainWalk(double whiteboardOpacity) {
        QImage finished = blankPicture(kSize, m_scale);
        QtGraphicsContext strokes(canvasOf(finished), finished.rect(), m_scale);
        StrokeWalk(overlay.drawingState().strokes, {})
            .goOn(strokes, host.graphics, everywhere(), {});
        QImage picture = blankPicture(kSize, m_scale);
        QtGraphicsContext context(canvasOf(picture), picture.rect(), m_scale);
        context.fillRect(context.clipBounds(), Color::white.opacity(whiteboardOpacity));
        for (int canvas = 0; canvas < (overlay.upperCanvas() ? 2 : 1); ++canvas) {
            drawPixels(pictureOf(finished), canvasOf(picture), opaqueAlpha, BlendMode::normal);
            if (const auto& live = overlay.drawingState().currentStroke.get()) {
                drawStroke(context, *live, blendModeOf(live->tool), SegmentIndex(live->points),
                           everywhere());
            }
        }
        return picture;
    }

    const QImage& screen() const { return m_screen; }

    struct QtFakeHost : test::FakePorts {
        QtGraphics qtGraphics;
        Host host{portsWithQtGraphics()};

    private:
        Host::Ports portsWithQtGraphics() {
            Host::Ports chosen = ports();
            chosen.graphics = qtGraphics;
            return chosen;
        }
    } host;
    OverlayContainerView overlay{AppSettings::shared()};

private:
    CGFloat m_scale;
    QImage m_screen;
};

class PaintedDamage : public testing::TestWithParam<double> {};

TEST_P(PaintedDamage, after_any_sequence_the_screen_is_pixel_for_pixel_the_plain_walk) {
    OverlayOnScreen shown(GetParam());
    auto& settings = shown.settings();
    auto& state = shown.overlay.drawingState();
    std::mt19937 random(7);
    const auto pick = [&](int count) {
        return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    const auto place = [&] { return CGPoint{pick(2600) / 10.0 - 10, pick(1800) / 10.0 - 10}; };
    const std::vector<Color> colors{Color::red, Color::blue.opacity(0.5), Color::green,
                                    Color::yellow.opacity(0.3), Color::black};
    const std::vector<std::string> texts{
        "Quill fj", "\u00C5ngstr\u00F6m Z\u0351\u0357\u0351\u0357g\u0330\u0330",
        "\u05E9\u05DC\u05D5\u05DD \u0633\u0644\u0627\u0645", "\u6F22\u5B57 \u270D\U0001F600  "};
    bool isDragging = false;
    CGPoint pointer;
    for (int step = 0; step < 900; ++step) {
        if (isDragging) {
            pointer = pick(6) == 0 ? place()
                                   : pointer + CGPoint{pick(160) / 10.0 - 8, pick(160) / 10.0 - 8};
            if (pick(14) != 0) {
                shown.overlay.mouseDragged(pointer);
            } else {
                shown.overlay.mouseUp(pointer);
                isDragging = false;
            }
        } else {
            switch (pick(10)) {
            case 0:
                state.undo();
                break;
            case 1:
                state.redo();
                break;
            case 2:
                if (pick(12) == 0) {
                    shown.overlay.clearAllAnnotations();
                }
                break;
            case 3:
                if (pick(4) == 0) {
                    settings.isWhiteboardMode = !settings.isWhiteboardMode;
                    shown.update();
                    shown.host.mainQueue.advance(2);
                }
                break;
            case 4:
                if (!state.strokes->empty()) {
                    state.removeStroke(state.strokes.get()[0].id());
                }
                break;
            default: {
                auto tool = allCases<DrawingTool>()[static_cast<std::size_t>(pick(8))];
                if (tool == DrawingTool::text) {
                    state.addStroke(
                        DrawingStroke({.points = {place()},
                                       .color = colors[0],
                                       .lineWidth = 1,
                                       .tool = tool,
                                       .textContent = texts[static_cast<std::size_t>(pick(4))],
                                       .fontSize = 24.0}));
                    break;
                }
                settings.selectedTool = tool;
                settings.selectedColor = colors[static_cast<std::size_t>(pick(5))];
                settings.lineWidth = 1 + pick(90) / 10.0;
                pointer = place();
                shown.overlay.mouseDown(pointer);
                isDragging = true;
            }
            }
        }
        // Several events may fall into one update, and several updates into one repaint.
        if (pick(3) != 0) {
            shown.update();
            if (pick(3) == 0) {
                shown.turn();
            }
        } else if (pick(4) == 0) {
            const CGPoint corner = place();
            shown.expose({corner.x, corner.y, 100, 60});
        }
        if (step % 10 == 0) {
            shown.settle();
            ASSERT_EQ(differingPixels(shown.screen(),
                                      shown.plainWalk(settings.isWhiteboardMode ? 0.9 : 0)),
                      0)
                << "after step " << step;
        }
    }
}

TEST_P(PaintedDamage, among_many_strokes_erasing_and_undoing_leave_the_plain_walk) {
    OverlayOnScreen shown(GetParam());
    auto& state = shown.overlay.drawingState();
    std::mt19937 random(23);
    const auto pick = [&](int count) {
        return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    const auto wander = [&](int count) {
        std::vector<CGPoint> points{{pick(2600) / 10.0 - 10, pick(1800) / 10.0 - 10}};
        for (double direction = pick(60) / 10.0; static_cast<int>(points.size()) < count;) {
            direction += pick(100) / 100.0 - 0.5;
            points.push_back(points.back() +
                             CGPoint{8 * std::cos(direction), 8 * std::sin(direction)});
        }
        return points;
    };
    const auto drag = [&](DrawingTool tool, const std::vector<CGPoint>& points) {
        shown.settings().selectedTool = tool;
        shown.settings().lineWidth = 1 + pick(40) / 10.0;
        shown.settings().selectedColor = pick(2) == 0 ? Color::red.opacity(0.4) : Color::blue;
        shown.overlay.mouseDown(points.front());
        for (const CGPoint& point : points) {
            shown.overlay.mouseDragged(point);
        }
        shown.overlay.mouseUp(points.back());
    };
    for (int stroke = 0; stroke < 200; ++stroke) {
        drag(pick(8) == 0 ? DrawingTool::highlighter : DrawingTool::pen, wander(3 + pick(80)));
    }
    for (int step = 0; step < 120; ++step) {
        switch (pick(8)) {
        case 0:
            shown.overlay.clearAllAnnotations();
            shown.update();
            state.undo();
            break;
        case 1:
            state.undo();
            break;
        case 2:
            state.redo();
            break;
        case 3:
            drag(DrawingTool::pen, wander(40));
            break;
        case 4:
            shown.overlay.layout({kSize.width + pick(2), kSize.height}, GetParam());
            shown.turn();
            shown.overlay.layout(kSize, GetParam());
            break;
        case 5:
            shown.settings().isWhiteboardMode = !shown.settings().isWhiteboardMode;
            shown.update();
            shown.host.mainQueue.advance(2);
            break;
        default:
            drag(DrawingTool::eraser, wander(3 + pick(12)));
        }
        // The next edit comes before, in the middle of, or after the repaint of this one.
        for (int turns = pick(12); turns > 0; --turns) {
            shown.turn();
        }
        if (step % 3 == 0) {
            shown.settle();
            ASSERT_EQ(differingPixels(shown.screen(),
                                      shown.plainWalk(shown.settings().isWhiteboardMode ? 0.9 : 0)),
                      0)
                << "after step " << step;
        }
    }
}

TEST_P(PaintedDamage, a_stroke_just_released_is_on_the_screen_all_the_time) {
    OverlayOnScreen shown(GetParam());
    const auto drag = [&](DrawingTool tool, const Color& color, CGFloat shift) {
        shown.settings().selectedTool = tool;
        shown.settings().lineWidth = 8.0;
        shown.settings().selectedColor = color;
        shown.overlay.mouseDown({20 + shift, 20});
        for (int step = 1; step <= 60; ++step) {
            shown.overlay.mouseDragged({20 + 3.0 * step, 20 + 2.0 * step + shift});
        }
        shown.overlay.mouseUp({200, 140 + shift});
    };
    const auto lowestRedAlong = [&] {
        int lowest = 255;
        for (int step = 10; step < 50; ++step) {
            const CGPoint place{20 + 3.0 * step, 20 + 2.0 * step};
            const QRgb pixel =
                shown.screen().pixel(qRound(place.x * GetParam()), qRound(place.y * GetParam()));
            lowest = std::min(lowest, qRed(pixel));
        }
        return lowest;
    };
    for (int stroke = 0; stroke < 20; ++stroke) {
        drag(DrawingTool::pen, Color::blue, stroke - 10);
    }
    for (int stroke = 0; stroke < 4; ++stroke) {
        drag(DrawingTool::highlighter, Color::blue.opacity(0.2), stroke);
    }
    shown.settle();
    ASSERT_EQ(lowestRedAlong(), 0);
    shown.overlay.drawingState().undo();
    shown.turn();
    drag(DrawingTool::pen, Color::red, 0);
    int turns = 0;
    for (bool isWorking = true; isWorking; ++turns) {
        isWorking = shown.update();
        shown.expose({0, 0, kSize.width, kSize.height});
        ASSERT_GT(lowestRedAlong(), 100) << "in turn " << turns;
        isWorking = isWorking || !shown.host.mainQueue.isIdle();
        shown.host.mainQueue.turn();
    }
    EXPECT_GT(turns, 6);
    EXPECT_EQ(differingPixels(shown.screen(), shown.plainWalk(0)), 0);
}

INSTANTIATE_TEST_SUITE_P(AtEachScale, PaintedDamage, testing::Values(1.0, 1.25, 1.5, 2.0));

TEST(PaintedDamage, a_stroke_that_fades_leaves_nothing_behind) {
    OverlayOnScreen shown(1);
    shown.settings().autoEraseTimer = AutoEraseTimer::twoSeconds;
    shown.overlay.mouseDown({20, 20});
    shown.overlay.mouseDragged({90, 60});
    shown.overlay.mouseUp({90, 60});
    shown.update();
    shown.host.mainQueue.advance(2.25);
    shown.update();
    EXPECT_GT(qAlpha(shown.screen().pixel(55, 40)), 0);
    EXPECT_LT(qAlpha(shown.screen().pixel(55, 40)), 255);
    shown.host.mainQueue.advance(0.5);
    shown.settle();
    EXPECT_EQ(differingPixels(shown.screen(), shown.plainWalk(0)), 0);
    EXPECT_EQ(qAlpha(shown.screen().pixel(55, 40)), 0);
}

TEST(PaintedDamage, a_new_point_of_a_long_stroke_damages_its_tail_alone) {
    OverlayOnScreen shown(1);
    shown.overlay.mouseDown({10, 10});
    for (int x = 11; x < 200; x += 3) {
        shown.overlay.mouseDragged({static_cast<CGFloat>(x), 10.0 + x % 7});
    }
    shown.update();
    shown.overlay.mouseDragged({203, 12});
    const CGRect tail = shown.overlay.takeDamage().bounds();
    EXPECT_GT(tail.minX(), 180);
    EXPECT_LT(tail.width, 30);
}

} // namespace
} // namespace quillon::desktop

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
