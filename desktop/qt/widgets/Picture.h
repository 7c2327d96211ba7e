#pragma once

#include "platform/Image.h"
#include "platform/SystemColor.h"

#include <QWidget>

#include <string>

namespace quillon::desktop {

/// A symbol in a colour by its role, or an asset in its own colours.
class Picture : public QWidget {
public:
    /// In a square of `side` points.
    Picture(Image image, qreal side, const SystemColor& color);

    static Picture* ofSymbol(const std::string& name, qreal side,
                             const SystemColor& color = SystemColor::labelColor);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Image m_image;
    SystemColor m_color;
};

} // namespace quillon::desktop
