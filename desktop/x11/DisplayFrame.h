#pragma once

#include "desktop/x11/CaptureSession.h"

#include <memory>

namespace quillon::desktop {

/// The picture of a display as it is whenever it is looked at. After the end of its capture there
/// is nothing to be seen.
class DisplayFrame : public CVImageBuffer {
public:
    /// `place` is where the display lies in the root window, in device pixels.
    DisplayFrame(std::weak_ptr<CaptureSession> session, const xcb_rectangle_t& place);

    CGSize size() const override;
    std::shared_ptr<const PixelRows> read(const CGRect& rect) const override;

private:
    std::weak_ptr<CaptureSession> m_session;
    xcb_rectangle_t m_place;
};

} // namespace quillon::desktop
