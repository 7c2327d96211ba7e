#include "annotation/DrawingCanvasView.h"

#include "platform/Host.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr CGFloat kTextFieldWidth = 200;
constexpr CGFloat kTextSize = 24;

/// Canvases stand one over the other, so the count goes on from one to the next.
int nextTextFieldIdentity() {
    static int last = 0;
    return ++last;
}

} // namespace

void DrawingCanvasView::setTextEditorResetID(int identity) {
    if (identity != m_textEditorResetID) {
        m_textEditorResetID = identity;
        cancelTextEditing();
    }
}

void DrawingCanvasView::mouseDown(CGPoint location) {
    if (m_isEditingText) {
        setTextFieldFocused(false);
        return;
    }
    if (const auto drag = m_drawingGesture.pressed(location)) {
        handleDragChanged(drag->location, drag->translation);
    }
}

void DrawingCanvasView::mouseDragged(CGPoint location) {
    if (const auto drag = m_drawingGesture.moved(location)) {
        handleDragChanged(drag->location, drag->translation);
    }
}

void DrawingCanvasView::mouseUp(CGPoint location) {
    if (const auto drag = m_drawingGesture.released(location)) {
        handleDragEnded(drag->location);
    }
}

void DrawingCanvasView::handleDragChanged(CGPoint location, CGSize translation) {
    const bool isStart = translation == CGSize::zero;
    switch (selectedTool) {
    case DrawingTool::pen:
    case DrawingTool::highlighter:
    case DrawingTool::eraser:
        handleFreehandDrag(location, isStart);
        break;
    case DrawingTool::rectangle:
    case DrawingTool::circle:
    case DrawingTool::line:
    case DrawingTool::arrow:
        handleShapeDrag(location, isStart);
        break;
    case DrawingTool::text:
        if (isStart) {
            startTextEditing(location);
        }
        break;
    }
}

void DrawingCanvasView::handleDragEnded(CGPoint location) {
    switch (selectedTool) {
    case DrawingTool::pen:
    case DrawingTool::highlighter:
    case DrawingTool::eraser:
        finishFreehandStroke(location);
        break;
    case DrawingTool::rectangle:
    case DrawingTool::circle:
    case DrawingTool::line:
    case DrawingTool::arrow:
        finishShape(location);
        break;
    case DrawingTool::text:
        break;
    }
}

void DrawingCanvasView::handleFreehandDrag(CGPoint location, bool isStart) {
    const auto& current = m_connections.currentStroke;
    if (!isStart) {
        if (current.get()) {
            current.modify([&](auto& stroke) { stroke->points.emplace_back(location); });
        }
        return;
    }
    const bool isEraser = selectedTool == DrawingTool::eraser;
    current.set(DrawingStroke({
        .points = {location},
        .color = isEraser ? Color::white.opacity(0.5) : selectedColor,
        .lineWidth = isEraser ? std::max(lineWidth * 4, 20.0) : lineWidth,
        .tool = selectedTool,
    }));
}

void DrawingCanvasView::finishFreehandStroke(CGPoint location) {
    const auto& current = m_connections.currentStroke;
    if (!current.get() || current.get()->points.size() <= 1) {
        current.set(std::nullopt);
        return;
    }
    DrawingStroke stroke = *current.get();
    stroke.points.emplace_back(location);
    if (stroke.tool != DrawingTool::eraser) {
        m_connections.onStrokeCompleted(stroke);
    } else if (m_connections.onEraserStroke) {
        m_connections.onEraserStroke(stroke);
    }
    current.set(std::nullopt);
}

void DrawingCanvasView::handleShapeDrag(CGPoint location, bool isStart) {
    const auto& current = m_connections.currentStroke;
    if (isStart) {
        m_shapeStartPoint = location;
        current.set(DrawingStroke({
            .points = {location},
            .color = selectedColor,
            .lineWidth = lineWidth,
            .tool = selectedTool,
            .isShape = true,
            .shapeType = shapeTypeForTool(selectedTool),
            .shapeStartPoint = location,
        }));
        return;
    }
    if (m_shapeStartPoint && current.get()) {
        current.modify([&](auto& stroke) {
            stroke->shapeRect = CodableRect(rectBetween(*m_shapeStartPoint, location));
            stroke->shapeEndPoint = CodablePoint(location);
        });
    }
}

void DrawingCanvasView::finishShape(CGPoint location) {
    const auto& current = m_connections.currentStroke;
    if (m_shapeStartPoint && current.get()) {
        DrawingStroke stroke = *current.get();
        stroke.shapeRect = CodableRect(rectBetween(*m_shapeStartPoint, location));
        stroke.shapeEndPoint = CodablePoint(location);
        m_connections.onStrokeCompleted(stroke);
    }
    m_shapeStartPoint.reset();
    current.set(std::nullopt);
}

void DrawingCanvasView::startTextEditing(CGPoint location) {
    m_textPosition = location;
    m_textContent.clear();
    m_isEditingText = true;
    m_textFieldIdentity = nextTextFieldIdentity();
    m_connections.onTextFieldChanged();
}

void DrawingCanvasView::setTextFieldFocused(bool focused) {
    m_isTextFieldFocused = focused;
    if (!focused && m_isEditingText) {
        commitText();
    }
}

void DrawingCanvasView::commitText() {
    if (m_isEditingText && m_textPosition && !m_textContent.empty()) {
        m_connections.onStrokeCompleted(DrawingStroke({
            .points = {*m_textPosition},
            .color = selectedColor,
            .lineWidth = lineWidth,
            .tool = DrawingTool::text,
            .textContent = m_textContent,
            .fontSize = kTextSize,
        }));
    }
    cancelTextEditing();
}

void DrawingCanvasView::cancelTextEditing() {
    // Editing ends before the focus goes, or its loss would commit a second time.
    m_isEditingText = false;
    setTextFieldFocused(false);
    m_textPosition.reset();
    m_textContent.clear();
    m_connections.onTextFieldChanged();
}

std::optional<TextField> DrawingCanvasView::textField() {
    if (!m_isEditingText || !m_textPosition) {
        return std::nullopt;
    }
    const auto focus = Binding<bool>([this]() -> const bool& { return m_isTextFieldFocused; },
                                     [this](bool focused) { setTextFieldFocused(focused); },
                                     [this](const std::function<void(bool&)>& change) {
                                         bool focused = m_isTextFieldFocused;
                                         change(focused);
                                         setTextFieldFocused(focused);
                                     });
    return TextField{
        .identity = m_textFieldIdentity,
        .center = *m_textPosition,
        .width = kTextFieldWidth,
        .fontSize = kTextSize,
        .textColor = selectedColor,
        .text = Binding<std::string>::to(m_textContent),
        .isFocused = focus,
        .onAppear =
            [this] {
                Host::current().mainQueue().async(m_lifetime.guard([this] { focusTextField(); }));
            },
        .onSubmit = [this] { commitText(); },
        .onExitCommand = [this] { commitText(); },
    };
}

void DrawingCanvasView::focusTextField() {
    auto& application = Host::current().application();
    application.activate(/*ignoringOtherApps=*/true);
    const auto& windows = application.windows();
    const auto overlay = std::ranges::find(windows, overlayWindowIdentifier, &Window::identifier);
    if (overlay != windows.end()) {
        (*overlay)->makeKeyAndOrderFront();
    }
    setTextFieldFocused(true);
    m_connections.onTextFieldChanged();
}

std::optional<ShapeType> shapeTypeForTool(DrawingTool tool) {
    switch (tool) {
    case DrawingTool::rectangle:
        return ShapeType::rectangle;
    case DrawingTool::circle:
        return ShapeType::circle;
    case DrawingTool::line:
        return ShapeType::line;
    case DrawingTool::arrow:
        return ShapeType::arrow;
    case DrawingTool::pen:
    case DrawingTool::highlighter:
    case DrawingTool::eraser:
    case DrawingTool::text:
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace quillon
