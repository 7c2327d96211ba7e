#pragma once

#include "foundation/Geometry.h"
#include "foundation/Published.h"

#include <memory>

namespace quillon {

/// A view made of controls. It is described by plain values, which the host lays out with controls
/// of its own toolkit; each kind of view has its own description.
///
/// `objectWillChange` is sent when the description may have changed or is about to. The host reads
/// it anew in a later turn, however often this was sent by then.
class ControlsView : public ObservableObject {
public:
    virtual ~ControlsView() = default;

    /// The window that shows the view as its root has closed.
    virtual void onDisappear() {}
};

/// A view of controls that stands on a content view.
struct PlacedControls {
    std::shared_ptr<ControlsView> view;
    /// Where its centre stands, in the content view's coordinates.
    CGPoint center;
};

} // namespace quillon
