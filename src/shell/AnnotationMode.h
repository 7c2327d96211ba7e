#pragma once

namespace quillon {

/// A word for each state that the overlay can be in. It belongs to the system's vocabulary; the
/// live state is the pair of settings `isAnnotationEnabled` and `isWhiteboardMode`, and nothing
/// consults this type.
enum class AnnotationMode { disabled, drawing, whiteboard };

constexpr bool isDrawingEnabled(AnnotationMode mode) {
    return mode != AnnotationMode::disabled;
}
constexpr bool isWhiteboard(AnnotationMode mode) {
    return mode == AnnotationMode::whiteboard;
}

} // namespace quillon
