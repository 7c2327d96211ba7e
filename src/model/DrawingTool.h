#pragma once

#include "model/RawRepresentable.h"

namespace quillon {

/// What a drag or a click on the canvas makes. A stroke keeps the tool that made it.
///
/// Pen and highlighter leave a freehand line, the highlighter above all else; the eraser takes
/// points from the strokes that it meets and leaves nothing; a click with the text tool opens a
/// field; the others span a shape from where the drag begins to where it ends.
enum class DrawingTool { pen, highlighter, eraser, text, rectangle, circle, line, arrow };

template <>
struct RawValues<DrawingTool> {
    static constexpr RawValue<DrawingTool> table[] = {
        {DrawingTool::pen, "pen"},
        {DrawingTool::highlighter, "highlighter"},
        {DrawingTool::eraser, "eraser"},
        {DrawingTool::text, "text"},
        {DrawingTool::rectangle, "rectangle"},
        {DrawingTool::circle, "circle"},
        {DrawingTool::line, "line"},
        {DrawingTool::arrow, "arrow"},
    };
};

/// As menus show it.
std::string_view displayName(DrawingTool tool);

/// The name of the symbol glyph that stands for the tool.
std::string_view systemImage(DrawingTool tool);

} // namespace quillon
