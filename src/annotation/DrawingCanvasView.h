#pragma once

#include "annotation/StrokeList.h"
#include "foundation/Binding.h"
#include "foundation/DragGesture.h"
#include "foundation/Lifetime.h"
#include "model/DrawingStroke.h"
#include "platform/TextField.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace quillon {

/// The drawing surface: it turns drags and typed text into strokes. It builds the stroke under the
/// pointer in `currentStroke` and hands the finished one to its owner; it never writes to the
/// history.
///
/// A drag, by tool:
/// 1. a press, or a return to exactly its place, starts a stroke anew;
/// 2. every further move appends a point (freehand) or stretches the shape;
/// 3. the release completes it, or drops a freehand stroke that never moved.
///
/// Text entry:
/// 1. a press with the text tool opens the field there, and the drag surface is gone while it
///    stands;
/// 2. Return, Escape and the loss of the keyboard commit what was typed, unless it is empty;
/// 3. a change of `textEditorResetID` abandons it.
class DrawingCanvasView {
public:
    /// What the owner wires up once.
    struct Connections {
        /// Finished strokes; the canvas only reads them.
        Binding<StrokeList> strokes;
        Binding<std::optional<DrawingStroke>> currentStroke;
        std::function<void(const DrawingStroke&)> onStrokeCompleted;
        /// May be empty.
        std::function<void(const DrawingStroke&)> onEraserStroke;
        /// The field has come or gone, or what is to be shown in it.
        std::function<void()> onTextFieldChanged;
    };

    explicit DrawingCanvasView(Connections connections)
        : m_connections(std::move(connections)) {}

    /// The tool, colour and width in force for what happens next, also in the middle of a drag.
    DrawingTool selectedTool = DrawingTool::pen;
    Color selectedColor = Color::cyan;
    CGFloat lineWidth = 4;
    /// Stored, and without any effect on the canvas.
    bool isWhiteboardMode = false;

    int textEditorResetID() const { return m_textEditorResetID; }
    void setTextEditorResetID(int identity);

    /// A drag over the canvas, in view coordinates. A press while text is being typed only takes
    /// the keyboard from the field, and the drag that follows it does nothing.
    void mouseDown(CGPoint location);
    void mouseDragged(CGPoint location);
    void mouseUp(CGPoint location);

    void handleDragChanged(CGPoint location, CGSize translation);
    void handleDragEnded(CGPoint location);

    std::optional<CGPoint> shapeStartPoint() const { return m_shapeStartPoint; }
    std::optional<CGPoint> textPosition() const { return m_textPosition; }
    const std::string& textContent() const { return m_textContent; }
    bool isEditingText() const { return m_isEditingText; }
    bool isTextFieldFocused() const { return m_isTextFieldFocused; }

    /// The keyboard came to the field or left it.
    void setTextFieldFocused(bool focused);
    void commitText();
    void cancelTextEditing();

    /// The field as it is to stand, while text is being typed.
    std::optional<TextField> textField();

private:
    void handleFreehandDrag(CGPoint location, bool isStart);
    void finishFreehandStroke(CGPoint location);
    void handleShapeDrag(CGPoint location, bool isStart);
    void finishShape(CGPoint location);
    void startTextEditing(CGPoint location);
    void focusTextField();

    Connections m_connections;
    DragGesture m_drawingGesture{0};
    int m_textEditorResetID = 0;
    std::optional<CGPoint> m_shapeStartPoint;
    std::optional<CGPoint> m_textPosition;
    std::string m_textContent;
    bool m_isEditingText = false;
    bool m_isTextFieldFocused = false;
    /// Known to no other field of any canvas.
    int m_textFieldIdentity = 0;
    Lifetime m_lifetime;
};

/// The shape that a tool draws; nothing for a tool that draws none.
std::optional<ShapeType> shapeTypeForTool(DrawingTool tool);

/// What `Window::identifier` says of the overlay window, the one that text entry brings forward.
inline constexpr std::string_view overlayWindowIdentifier = "OverlayWindow";

} // namespace quillon
