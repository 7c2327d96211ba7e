#include "annotation/OverlayContainerView.h"

#include "annotation/Eraser.h"
#include "model/NotificationNames.h"
#include "platform/Host.h"

#include <utility>

namespace quillon {

namespace {

constexpr double kWhiteboardOpacity = 0.9;
constexpr double kWhiteboardFade = 0.25;

} // namespace

OverlayContainerView::OverlayContainerView(AppSettings& appSettings)
    : m_appSettings(appSettings)
    , m_toolbar(
          m_appSettings, m_drawingState, [this] { clearAllAnnotations(); },
          [this] { setNeedsUpdate(); })
    , m_lowerCanvas(canvasConnections())
    , m_finishedLayer(Host::current().graphics())
    , m_liveLayer(Host::current().graphics())
    , m_whiteboard(kWhiteboardFade,
                   appSettings.isAnnotationEnabled && appSettings.isWhiteboardMode) {
    m_subscriptions.push_back(m_appSettings.objectWillChange.sink([this] {
        setNeedsUpdate();
        if (toolbar()) {
            toolbar()->objectWillChange.send();
        }
    }));
    m_subscriptions.push_back(m_drawingState.objectWillChange.sink([this] {
        m_isLiveLayerBehind = true;
        setNeedsUpdate();
    }));
    observeNotifications();
}

DrawingCanvasView::Connections OverlayContainerView::canvasConnections() {
    return {
        .strokes = m_drawingState.strokes.binding(),
        .currentStroke = m_drawingState.currentStroke.binding(),
        .onStrokeCompleted =
            [this](const DrawingStroke& stroke) {
                m_drawingState.addStroke(stroke);
                startAutoEraseTimer(stroke);
            },
        .onEraserStroke =
            [this](const DrawingStroke& stroke) {
                m_drawingState.strokes.modify(
                    [&](StrokeList& strokes) { processEraser(stroke, strokes); });
            },
        .onTextFieldChanged = [this] { setNeedsUpdate(); },
    };
}

void OverlayContainerView::observeNotifications() {
    auto& center = Host::current().notificationCenter();
    const auto observe = [&](std::string_view name, auto action) {
        m_subscriptions.push_back(
            center.addObserver(name, [action](const Notification&) { action(); }));
    };
    observe(NotificationName::clearAnnotations, [this] { clearAllAnnotations(); });
    observe(NotificationName::undoAnnotation, [this] {
        m_drawingState.undo();
        m_toolbar.followHistory();
    });
    observe(NotificationName::redoAnnotation, [this] {
        m_drawingState.redo();
        m_toolbar.followHistory();
    });
    for (const auto name : {NotificationName::toolChanged, NotificationName::colorChanged,
                            NotificationName::lineWidthChanged}) {
        observe(name, [this] { m_drawingState.cancelCurrentStroke(); });
    }
}

void OverlayContainerView::clearAllAnnotations() {
    ++m_textEditorResetID;
    bringCanvasesUpToDate();
    m_drawingState.clearAll();
    m_toolbar.followHistory();
}

// The pointer.

DrawingCanvasView* OverlayContainerView::activeCanvas() {
    if (!m_appSettings.isAnnotationEnabled) {
        return nullptr;
    }
    return m_appSettings.isWhiteboardMode ? upperCanvas() : &m_lowerCanvas;
}

void OverlayContainerView::bringCanvasesUpToDate() {
    for (auto* canvas : {&m_lowerCanvas, upperCanvas()}) {
        if (canvas) {
            canvas->selectedTool = m_appSettings.selectedTool;
            canvas->selectedColor = m_appSettings.selectedColor;
            canvas->lineWidth = m_appSettings.lineWidth;
            canvas->setTextEditorResetID(m_textEditorResetID);
        }
    }
    m_lowerCanvas.isWhiteboardMode = m_appSettings.isWhiteboardMode;
}

void OverlayContainerView::mouseDown(CGPoint location) {
    bringCanvasesUpToDate();
    m_dragCanvas = activeCanvas();
    if (!m_dragCanvas) {
        return;
    }
    if (m_dragCanvas == upperCanvas()) {
        // What is being typed below is committed, as by any press outside of its field.
        m_lowerCanvas.setTextFieldFocused(false);
    }
    m_dragCanvas->mouseDown(location);
}

void OverlayContainerView::mouseDragged(CGPoint location) {
    bringCanvasesUpToDate();
    if (m_dragCanvas) {
        m_dragCanvas->mouseDragged(location);
    }
}

void OverlayContainerView::mouseUp(CGPoint location) {
    bringCanvasesUpToDate();
    if (m_dragCanvas) {
        std::exchange(m_dragCanvas, nullptr)->mouseUp(location);
        m_toolbar.followHistory();
        setNeedsUpdate();
    }
}

// The stack of views.

void OverlayContainerView::bringStackUpToDate() {
    const bool isAnnotating = m_appSettings.isAnnotationEnabled;
    const bool hasUpperCanvas = isAnnotating && m_appSettings.isWhiteboardMode;
    if (hasUpperCanvas && !m_upperCanvas) {
        m_upperCanvas = std::make_unique<DrawingCanvasView>(canvasConnections());
        m_upperCanvas->isWhiteboardMode = true;
        m_upperCanvas->setTextEditorResetID(m_textEditorResetID);
        m_pendingDamage.add(bounds());
    } else if (!hasUpperCanvas && m_upperCanvas && m_dragCanvas != upperCanvas()) {
        // A drag that began there is followed to its end first. What is being typed there is
        // kept, as with any other loss of the keyboard.
        m_upperCanvas->setTextFieldFocused(false);
        m_upperCanvas.reset();
        m_pendingDamage.add(bounds());
    }
    m_whiteboard.setVisible(hasUpperCanvas, Host::current().mainQueue().now());

    m_toolbar.bringUpToDate(m_size);
    bringCanvasesUpToDate();
}

void OverlayContainerView::layout(CGSize size, CGFloat scale) {
    m_size = size;
    m_finishedLayer.layout(size, scale);
    m_liveLayer.layout(size, scale);
    m_pendingDamage.add(bounds());
    setNeedsUpdate();
}

Damage OverlayContainerView::takeDamage() {
    bringStackUpToDate();
    const double now = Host::current().mainQueue().now();
    Damage damage = std::exchange(m_pendingDamage, {});
    if (const double opacity = m_whiteboard.opacity(now); opacity != m_whiteboardOpacity) {
        m_whiteboardOpacity = opacity;
        damage.add(bounds());
    }
    damage.add(
        m_finishedLayer.update(m_drawingState.strokes, m_fades.at(now, m_drawingState.strokes)));
    const Damage live = bringLiveLayerUpToDate();
    if (!live.isEmpty()) {
        // A motion of the pen waits for nothing.
        m_penRest.motionShown(now);
    } else if (!m_isRepaintPending) {
        // What takes little is done with its change.
        damage.add(repaintUnlessResting(now));
    }
    damage.add(live);
    keepRepainting();
    keepAnimating(now);
    return damage;
}

void OverlayContainerView::keepRepainting() {
    if (!m_finishedLayer.isBehind() || std::exchange(m_isRepaintPending, true)) {
        return;
    }
    MainQueue& mainQueue = Host::current().mainQueue();
    mainQueue.asyncAfter(m_penRest.remaining(mainQueue.now()), m_lifetime.guard([this] {
        m_isRepaintPending = false;
        const Damage damage = repaintUnlessResting(Host::current().mainQueue().now());
        if (!damage.isEmpty()) {
            m_pendingDamage.add(damage);
            setNeedsUpdate();
        }
        keepRepainting();
    }));
}

Damage OverlayContainerView::repaintUnlessResting(double now) {
    if (m_penRest.remaining(now) > 0) {
        return {};
    }
    Damage damage = m_finishedLayer.repaintStep();
    if (!damage.isEmpty() && m_dragCanvas) {
        m_penRest.otherShown(now);
    }
    return damage;
}

Damage OverlayContainerView::bringLiveLayerUpToDate() {
    m_isLiveLayerBehind = false;
    return m_liveLayer.update(m_drawingState.currentStroke);
}

void OverlayContainerView::paint(GraphicsContext& context, const CGRect& rect) {
    // The desktop may ask for a picture between a change and its update; what the change touched
    // is then still owed everywhere else.
    if (m_isLiveLayerBehind) {
        m_pendingDamage.add(bringLiveLayerUpToDate());
    }
    if (m_whiteboardOpacity > 0) {
        context.fillRect(rect, Color::white.opacity(kWhiteboardOpacity * m_whiteboardOpacity));
    }
    const int canvasCount = m_upperCanvas ? 2 : 1;
    for (int canvas = 0; canvas < canvasCount; ++canvas) {
        m_finishedLayer.draw(context, rect);
        m_liveLayer.draw(context, m_drawingState.currentStroke);
    }
}

std::optional<TextField> OverlayContainerView::textField() {
    if (m_upperCanvas) {
        if (auto field = m_upperCanvas->textField()) {
            return field;
        }
    }
    return m_lowerCanvas.textField();
}

// The toolbar.

std::optional<PlacedControls> OverlayContainerView::placedControls() {
    return m_toolbar.placedControls();
}

void OverlayContainerView::controlsMouseDown(CGPoint location) {
    m_toolbar.mouseDown(location);
}

void OverlayContainerView::controlsMouseDragged(CGPoint location) {
    m_toolbar.mouseDragged(location);
}

void OverlayContainerView::controlsMouseUp(CGPoint location) {
    m_toolbar.mouseUp(location);
}

// Auto-erase.

void OverlayContainerView::startAutoEraseTimer(const DrawingStroke& stroke) {
    const auto seconds = duration(m_appSettings.autoEraseTimer.get());
    if (seconds) {
        Host::current().mainQueue().asyncAfter(
            *seconds, m_lifetime.guard([this, id = stroke.id()] { autoErase(id); }));
    }
}

void OverlayContainerView::autoErase(const UUID& id) {
    const StrokeList& strokes = m_drawingState.strokes;
    const double now = Host::current().mainQueue().now();
    for (std::size_t index = 0; index < strokes.size(); ++index) {
        if (strokes[index].id() == id) {
            m_fades.add(strokes.ref(index), now);
        }
    }
    m_drawingState.removeStroke(id);
}

void OverlayContainerView::keepAnimating(double now) {
    const bool isMoving = !m_fades.isEmpty() || m_whiteboard.isRunning(now);
    if (isMoving) {
        m_ticker.request([this] { setNeedsUpdate(); });
    }
}

} // namespace quillon
