#pragma once

#include <QProxyStyle>

namespace quillon::desktop {

/// How the palette's menus look: a rounded panel, roomy entries with their glyph in front, and the
/// check mark at their end.
class MenuStyle : public QProxyStyle {
public:
    MenuStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
};

} // namespace quillon::desktop
