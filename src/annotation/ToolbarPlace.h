#pragma once

#include "annotation/DrawingState.h"
#include "foundation/DragGesture.h"
#include "foundation/Geometry.h"
#include "model/AppSettings.h"
#include "platform/ControlsView.h"
#include "toolbar/FloatingToolbarView.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace quillon {

/// The floating toolbar on the overlay: whether it stands there, where, and its drag.
///
/// 1. It comes while annotation is on and the setting shows it, where it was left, or near the top
///    right corner when it was never placed. Nothing keeps it inside the view.
/// 2. With a drag by its body its centre jumps to the pointer and follows it.
/// 3. The release stores its place.
class ToolbarPlace {
public:
    /// The settings and the strokes must outlive this. `onClear` is what the toolbar's button does;
    /// `onMoved` is called when it stands elsewhere.
    ToolbarPlace(AppSettings& appSettings, DrawingState& drawingState,
                 std::function<void()> onClear, std::function<void()> onMoved)
        : m_appSettings(appSettings)
        , m_drawingState(drawingState)
        , m_onClear(std::move(onClear))
        , m_onMoved(std::move(onMoved)) {}

    /// Lets it come and go as the settings say, on a view of that size.
    void bringUpToDate(CGSize viewSize);

    /// Tells the toolbar at once whether there is something to undo and to redo: a key for it may
    /// come before the next update.
    void followHistory();

    /// The toolbar, while it stands.
    const std::shared_ptr<FloatingToolbarView>& toolbar() const { return m_toolbar; }
    std::optional<PlacedControls> placedControls() const;
    /// Its centre, in view coordinates.
    CGPoint position() const { return m_position; }
    bool isBeingDragged() const { return m_isBeingDragged; }

    void mouseDown(CGPoint location);
    void mouseDragged(CGPoint location);
    void mouseUp(CGPoint location);

private:
    std::shared_ptr<FloatingToolbarView> makeToolbar();
    CGPoint firstPosition(CGSize viewSize) const;
    void dragChanged(const DragValue& drag);

    AppSettings& m_appSettings;
    DrawingState& m_drawingState;
    std::function<void()> m_onClear;
    std::function<void()> m_onMoved;
    std::shared_ptr<FloatingToolbarView> m_toolbar;
    CGPoint m_position;
    bool m_isBeingDragged = false;
    DragGesture m_gesture;
};

} // namespace quillon
