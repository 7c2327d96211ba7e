#pragma once

#include "annotation/DrawingCanvasView.h"
#include "annotation/DrawingState.h"
#include "annotation/FadeTransition.h"
#include "annotation/FinishedStrokesLayer.h"
#include "annotation/LiveStrokeLayer.h"
#include "annotation/PenRest.h"
#include "annotation/StrokeFades.h"
#include "annotation/ToolbarPlace.h"
#include "foundation/Cancellable.h"
#include "foundation/Lifetime.h"
#include "model/AppSettings.h"
#include "platform/ContentView.h"
#include "platform/FrameTicker.h"

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// The root view of the overlay window: it owns the annotations, stacks what is seen, routes
/// finished strokes into the history, and listens to the application's notifications.
///
/// Bottom to top:
/// 1. the whiteboard, while annotation and whiteboard mode are both on;
/// 2. a canvas that stands always and takes the pointer while annotation is on without the
///    whiteboard;
/// 3. a second canvas, while both are on, which then takes the pointer. Both show the same strokes,
///    so that translucent colours are seen twice;
/// 4. the floating toolbar, while annotation is on and the setting shows it.
///
/// With annotation off the strokes stay visible and the pointer passes through.
class OverlayContainerView : public ContentView {
public:
    explicit OverlayContainerView(AppSettings& appSettings);

    DrawingState& drawingState() { return m_drawingState; }
    DrawingCanvasView& lowerCanvas() { return m_lowerCanvas; }
    /// The second canvas, while it stands.
    DrawingCanvasView* upperCanvas() { return m_upperCanvas.get(); }
    int textEditorResetID() const { return m_textEditorResetID; }

    /// The floating toolbar, while it is shown.
    const std::shared_ptr<FloatingToolbarView>& toolbar() const { return m_toolbar.toolbar(); }
    /// The toolbar's centre, in view coordinates.
    CGPoint toolbarPosition() const { return m_toolbar.position(); }
    bool isDraggingToolbar() const { return m_toolbar.isBeingDragged(); }
    void clearAllAnnotations();

    void layout(CGSize size, CGFloat scale) override;
    void mouseDown(CGPoint location) override;
    void mouseDragged(CGPoint location) override;
    void mouseUp(CGPoint location) override;
    Damage takeDamage() override;
    void paint(GraphicsContext& context, const CGRect& rect) override;
    std::optional<TextField> textField() override;
    std::optional<PlacedControls> placedControls() override;
    /// A drag of the toolbar by its body.
    void controlsMouseDown(CGPoint location) override;
    void controlsMouseDragged(CGPoint location) override;
    void controlsMouseUp(CGPoint location) override;

private:
    DrawingCanvasView::Connections canvasConnections();
    void observeNotifications();
    /// The canvas that takes the pointer, if any does.
    DrawingCanvasView* activeCanvas();
    /// Hands the present tool, colour and width to the canvases.
    void bringCanvasesUpToDate();
    /// Lets the views come and go as the settings say.
    void bringStackUpToDate();

    void startAutoEraseTimer(const DrawingStroke& stroke);
    void autoErase(const UUID& id);
    /// Makes the live layer show the stroke in progress as it now is.
    Damage bringLiveLayerUpToDate();
    /// Takes the steps of a repaint one by one, with the input that has arrived between them.
    void keepRepainting();
    /// Takes one of them, unless the picture of a motion, or of the step before while a drag goes
    /// on, is still on its way to the screen.
    Damage repaintUnlessResting(double now);
    /// Asks for another update while anything is still moving.
    void keepAnimating(double now);
    CGRect bounds() const { return {0, 0, m_size.width, m_size.height}; }

    AppSettings& m_appSettings;
    DrawingState m_drawingState;
    int m_textEditorResetID = 0;

    CGSize m_size;
    ToolbarPlace m_toolbar;
    DrawingCanvasView m_lowerCanvas;
    std::unique_ptr<DrawingCanvasView> m_upperCanvas;
    /// The canvas in which the present drag began.
    DrawingCanvasView* m_dragCanvas = nullptr;
    FinishedStrokesLayer m_finishedLayer;
    bool m_isRepaintPending = false;
    PenRest m_penRest;
    LiveStrokeLayer m_liveLayer;
    bool m_isLiveLayerBehind = false;
    StrokeFades m_fades;
    FadeTransition m_whiteboard;
    double m_whiteboardOpacity = 0;
    FrameTicker m_ticker;
    Damage m_pendingDamage;
    std::vector<Cancellable> m_subscriptions;
    Lifetime m_lifetime;
};

} // namespace quillon
