#pragma once

#include <string_view>

/// The names of the notifications by which actions travel through the default notification centre.
/// The text of each is its constant's own name. None carries an object or a payload unless stated.
namespace quillon::NotificationName {

// Posted for a hot key, heard by the application delegate, which does what the name says.
inline constexpr std::string_view toggleAnnotation = "toggleAnnotation";
inline constexpr std::string_view toggleWhiteboard = "toggleWhiteboard";
inline constexpr std::string_view toggleCursorHalo = "toggleCursorHalo";
inline constexpr std::string_view toggleSpotlight = "toggleSpotlight";
inline constexpr std::string_view toggleZoom = "toggleZoom";

// Posted for a hot key or by the overlay window, heard by the overlay's root view. Until there is
// one they are lost.
inline constexpr std::string_view clearAnnotations = "clearAnnotations";
inline constexpr std::string_view undoAnnotation = "undoAnnotation";
inline constexpr std::string_view redoAnnotation = "redoAnnotation";

// Heard by the overlay's root view, which cancels the stroke in progress. Nothing posts them yet.
inline constexpr std::string_view toolChanged = "toolChanged";
inline constexpr std::string_view colorChanged = "colorChanged";
inline constexpr std::string_view lineWidthChanged = "lineWidthChanged";

/// Carries "isEnabled", a boolean. Nothing listens to it yet.
inline constexpr std::string_view annotationModeChanged = "annotationModeChanged";

} // namespace quillon::NotificationName
