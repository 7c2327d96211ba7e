#include "desktop/qt/PopupSurface.h"

#include "desktop/x11/Compositor.h"

#include <QGuiApplication>

namespace quillon::desktop {

void prepareSurface(QWidget& popup) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 && x11->connection() && isCompositorRunning(x11->connection())) {
        popup.setAttribute(Qt::WA_TranslucentBackground);
    }
}

QPainterPath surfaceOutline(const QWidget& popup, const QRectF& panel, qreal cornerRadius) {
    const qreal radius = popup.testAttribute(Qt::WA_TranslucentBackground) ? cornerRadius : 0;
    QPainterPath outline;
    outline.addRoundedRect(panel, radius, radius);
    return outline;
}

} // namespace quillon::desktop
