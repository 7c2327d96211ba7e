#include "annotation/ToolbarPlace.h"

namespace quillon {

namespace {

/// Where a toolbar that was never placed stands: this far from the right and from the top.
constexpr CGFloat kFromRight = 150;
constexpr CGFloat kFromTop = 50;

} // namespace

void ToolbarPlace::bringUpToDate(CGSize viewSize) {
    if (!m_appSettings.isAnnotationEnabled || !m_appSettings.showFloatingToolbar) {
        m_toolbar.reset();
    } else if (!m_toolbar) {
        m_toolbar = makeToolbar();
        m_position = firstPosition(viewSize);
    }
    followHistory();
}

void ToolbarPlace::followHistory() {
    if (m_toolbar) {
        m_toolbar->setHistory(m_drawingState.canUndo(), m_drawingState.canRedo());
    }
}

std::shared_ptr<FloatingToolbarView> ToolbarPlace::makeToolbar() {
    const auto undo = [this] {
        m_drawingState.undo();
        followHistory();
    };
    const auto redo = [this] {
        m_drawingState.redo();
        followHistory();
    };
    return std::make_shared<FloatingToolbarView>(
        m_appSettings.selectedTool.binding(), m_appSettings.selectedColor.binding(),
        m_appSettings.lineWidth.binding(), m_appSettings.quickColors.binding(),
        m_appSettings.isWhiteboardMode.binding(), m_onClear, undo, redo, m_drawingState.canUndo(),
        m_drawingState.canRedo());
}

CGPoint ToolbarPlace::firstPosition(CGSize viewSize) const {
    const ToolbarPosition saved = m_appSettings.toolbarPosition;
    return saved == ToolbarPosition::defaultPosition
               ? CGPoint{viewSize.width - kFromRight, kFromTop}
               : CGPoint{saved.x, saved.y};
}

std::optional<PlacedControls> ToolbarPlace::placedControls() const {
    return m_toolbar ? std::optional(PlacedControls{m_toolbar, m_position}) : std::nullopt;
}

void ToolbarPlace::mouseDown(CGPoint location) {
    if (const auto drag = m_gesture.pressed(location)) {
        dragChanged(*drag);
    }
}

void ToolbarPlace::mouseDragged(CGPoint location) {
    if (const auto drag = m_gesture.moved(location)) {
        dragChanged(*drag);
    }
}

void ToolbarPlace::mouseUp(CGPoint location) {
    if (m_gesture.released(location)) {
        m_isBeingDragged = false;
        m_appSettings.toolbarPosition = ToolbarPosition{m_position.x, m_position.y};
    }
}

void ToolbarPlace::dragChanged(const DragValue& drag) {
    m_isBeingDragged = true;
    m_position = drag.location;
    m_onMoved();
}

} // namespace quillon
