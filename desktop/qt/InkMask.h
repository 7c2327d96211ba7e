#pragma once

#include <QImage>
#include <QRegion>

namespace quillon::desktop {

/// The outline of a picture in a window that cannot be translucent: what is more than half opaque
/// belongs to the window, the rest is left to what lies below. In device pixels.
class InkMask {
public:
    /// `picture` stands at `corner` from now on.
    void replace(QPoint corner, const QImage& picture);

    const QRegion& region() const { return m_ink; }

private:
    QRegion m_ink;
};

} // namespace quillon::desktop
