#pragma once

#include "foundation/Geometry.h"
#include "foundation/Subject.h"

#include <memory>

namespace quillon {

/// A view made of controls. It is described by plain values, which the host lays out with controls
/// of its own; each kind of view has its own description.
class ControlView {
public:
    virtual ~ControlView() = default;

    /// Sent when the description may have changed or is about to. The host reads it anew in a later
    /// turn, however often this was sent by then.
    Subject<> needsUpdate;
};

/// A view of controls that stands on a content view.
struct PlacedControls {
    std::shared_ptr<ControlView> view;
    /// Where its centre stands, in the content view's coordinates.
    CGPoint center;
};

} // namespace quillon
