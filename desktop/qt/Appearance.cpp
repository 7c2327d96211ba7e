#include "desktop/qt/Appearance.h"

#include "desktop/qt/QtConversions.h"

namespace quillon::desktop {

namespace {

constexpr float kSecondaryAlpha = 0.62F;
/// How much of the text's colour stands in the ground of a control.
constexpr float kControlPartLight = 0.06F;
constexpr float kControlPartDark = 0.16F;

QColor colorOf(SystemColor::Role role, const QPalette& palette) {
    const auto active = [&palette](QPalette::ColorRole part) {
        return palette.color(QPalette::Active, part);
    };
    switch (role) {
    case SystemColor::Role::clearColor:
        return Qt::transparent;
    case SystemColor::Role::controlAccentColor:
        return active(QPalette::Highlight);
    case SystemColor::Role::controlBackgroundColor:
        return blended(active(QPalette::Window), active(QPalette::WindowText),
                       isDark(palette) ? kControlPartDark : kControlPartLight);
    case SystemColor::Role::labelColor:
        return active(QPalette::WindowText);
    case SystemColor::Role::secondaryLabelColor: {
        QColor secondary = active(QPalette::WindowText);
        secondary.setAlphaF(kSecondaryAlpha);
        return secondary;
    }
    case SystemColor::Role::systemRedColor:
        return toQColor(Color::red);
    case SystemColor::Role::whiteColor:
        return Qt::white;
    case SystemColor::Role::windowBackgroundColor:
        return active(QPalette::Window);
    }
    return {};
}

} // namespace

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightnessF() < 0.5F;
}

QColor blended(const QColor& ground, const QColor& over, float part) {
    const auto mix = [part](float from, float to) { return from + (to - from) * part; };
    return QColor::fromRgbF(mix(ground.redF(), over.redF()), mix(ground.greenF(), over.greenF()),
                            mix(ground.blueF(), over.blueF()));
}

QColor toQColor(const SystemColor& color, const QPalette& palette) {
    QColor result = colorOf(color.role, palette);
    result.setAlphaF(result.alphaF() * static_cast<float>(color.alpha));
    return result;
}

QColor panelMaterial(const QPalette& palette) {
    return isDark(palette) ? QColor(38, 38, 42, 218) : QColor(248, 248, 250, 218);
}

QColor popupMaterial(const QPalette& palette) {
    return isDark(palette) ? QColor(44, 44, 48, 248) : QColor(250, 250, 252, 248);
}

QColor pageGround(const QPalette& palette) {
    return blended(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.02F);
}

QColor groupGround(const QPalette& palette) {
    return blended(palette.color(QPalette::Window), Qt::white, isDark(palette) ? 0.06F : 0.75F);
}

QColor separator(const QPalette& palette) {
    return toQColor(SystemColor::labelColor.opacity(0.12), palette);
}

QColor emptyTrack(const QPalette& palette) {
    return toQColor(SystemColor::labelColor.opacity(0.18), palette);
}

QColor outline(const QPalette& palette) {
    return toQColor(SystemColor::labelColor.opacity(0.28), palette);
}

QColor panelEdge(const QPalette& palette) {
    return isDark(palette) ? QColor(0, 0, 0, 120) : QColor(0, 0, 0, 38);
}

} // namespace quillon::desktop
