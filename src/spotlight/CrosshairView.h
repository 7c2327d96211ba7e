#pragma once

#include "platform/GraphicsContext.h"

namespace quillon {

/// Four short white arms round the centre of an area, with a gap between them.
struct CrosshairView {
    /// Paints it into the middle of an area of that size, in points.
    static void paint(GraphicsContext& context, CGSize size);
};

} // namespace quillon
