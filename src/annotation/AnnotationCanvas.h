#pragma once

/// The annotation engine, as other parts of the system meet it: the history of strokes, the canvas
/// that turns drags and typing into strokes, and the overlay's root view that puts them together.
#include "annotation/DrawingCanvasView.h"
#include "annotation/DrawingState.h"
#include "annotation/OverlayContainerView.h"
