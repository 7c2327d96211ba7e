#pragma once

#include "model/RawRepresentable.h"

namespace quillon {

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

std::string_view displayName(DrawingTool tool);

/// The name of the symbol glyph that stands for the tool.
std::string_view systemImage(DrawingTool tool);

} // namespace quillon
