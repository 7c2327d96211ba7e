#include "model/DrawingTool.h"

namespace quillon {

std::string_view displayName(DrawingTool tool) {
    switch (tool) {
    case DrawingTool::pen:
        return "Pen";
    case DrawingTool::highlighter:
        return "Highlighter";
    case DrawingTool::eraser:
        return "Eraser";
    case DrawingTool::text:
        return "Text";
    case DrawingTool::rectangle:
        return "Rectangle";
    case DrawingTool::circle:
        return "Circle";
    case DrawingTool::line:
        return "Line";
    case DrawingTool::arrow:
        return "Arrow";
    }
    return {};
}

std::string_view systemImage(DrawingTool tool) {
    switch (tool) {
    case DrawingTool::pen:
        return "pencil.tip";
    case DrawingTool::highlighter:
        return "highlighter";
    case DrawingTool::eraser:
        return "eraser";
    case DrawingTool::text:
        return "textformat";
    case DrawingTool::rectangle:
        return "rectangle";
    case DrawingTool::circle:
        return "circle";
    case DrawingTool::line:
        return "line.diagonal";
    case DrawingTool::arrow:
        return "arrow.up.right";
    }
    return {};
}

} // namespace quillon
