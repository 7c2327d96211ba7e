#include "desktop/qt/widgets/Divider.h"

#include "desktop/qt/Appearance.h"

#include <QPainter>

namespace quillon::desktop {

Divider* Divider::across() {
    auto* divider = new Divider;
    divider->setFixedHeight(1);
    return divider;
}

Divider* Divider::upright(qreal height) {
    auto* divider = new Divider;
    divider->setFixedSize(1, qRound(height));
    return divider;
}

void Divider::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(rect(), separator(palette()));
}

} // namespace quillon::desktop
