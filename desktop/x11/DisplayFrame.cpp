#include "desktop/x11/DisplayFrame.h"

#include <cstdint>
#include <utility>

namespace quillon::desktop {

DisplayFrame::DisplayFrame(std::weak_ptr<CaptureSession> session, const xcb_rectangle_t& place)
    : m_session(std::move(session))
    , m_place(place) {}

CGSize DisplayFrame::size() const {
    return {static_cast<CGFloat>(m_place.width), static_cast<CGFloat>(m_place.height)};
}

std::shared_ptr<const PixelRows> DisplayFrame::read(const CGRect& rect) const {
    const auto session = m_session.lock();
    if (!session) {
        return nullptr;
    }
    // The one place of the capture where the coordinates are turned over.
    const CGFloat left = m_place.x + rect.minX();
    const CGFloat top = m_place.y + m_place.height - rect.maxY();
    return session->read({static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
                          static_cast<std::uint16_t>(rect.width),
                          static_cast<std::uint16_t>(rect.height)});
}

} // namespace quillon::desktop
