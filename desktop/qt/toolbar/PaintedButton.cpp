#include "desktop/qt/toolbar/PaintedButton.h"

#include "desktop/qt/widgets/FocusRing.h"

namespace quillon::desktop {

PaintedButton::PaintedButton(QSize size, const QString& name, QWidget& parent)
    : QAbstractButton(&parent) {
    setFixedSize(size);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(name);
}

bool PaintedButton::isPointedAt() const {
    return underMouse() || FocusRing::isShown(*this);
}

} // namespace quillon::desktop
