#include "desktop/qt/InkMask.h"

#include <QBitmap>

namespace quillon::desktop {

void InkMask::replace(QPoint corner, const QImage& picture) {
    m_ink -= QRect(corner, picture.size());
    m_ink += QRegion(QBitmap::fromImage(picture.createAlphaMask())).translated(corner);
}

} // namespace quillon::desktop
