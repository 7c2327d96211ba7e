#pragma once

#include "foundation/Geometry.h"
#include "platform/Path.h"

#include <vector>

namespace quillon {

/// A straight line, in device pixels from the top left corner of the view. Start and end may be the
/// same.
struct LinePiece {
    CGPoint start;
    CGPoint end;

    friend bool operator==(const LinePiece&, const LinePiece&) = default;
};

/// The path as straight lines that leave its curves by less than a tenth of a pixel; `scale` is the
/// number of device pixels to a point. A curve is divided into equal steps of its parameter, as
/// many as Wang's formula asks for, which depends on its own four points alone: a part of a path
/// has the very lines that it has in the whole. What goes beyond a million pixels is left out.
std::vector<LinePiece> flattened(const Path& path, CGFloat scale);

} // namespace quillon
