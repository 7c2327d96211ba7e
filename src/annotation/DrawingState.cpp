#include "annotation/DrawingState.h"

namespace quillon {

namespace {

StrokeList takeLast(Published<std::vector<StrokeList>>& stack) {
    StrokeList last = stack->back();
    stack.modify([](auto& snapshots) { snapshots.pop_back(); });
    return last;
}

} // namespace

void DrawingState::addStroke(const DrawingStroke& stroke) {
    saveStateForUndo();
    strokes.modify([&](StrokeList& list) { list.append(stroke); });
    redoStack = {};
    trimUndoStack();
}

void DrawingState::removeStroke(const UUID& id) {
    saveStateForUndo();
    strokes.modify([&](StrokeList& list) {
        list.removeIf([&](const DrawingStroke& stroke) { return stroke.id() == id; });
    });
    redoStack = {};
    trimUndoStack();
}

void DrawingState::clearAll() {
    saveStateForUndo();
    strokes = {};
    redoStack = {};
    trimUndoStack();
}

void DrawingState::undo() {
    if (!canUndo()) {
        return;
    }
    redoStack.modify([&](auto& snapshots) { snapshots.push_back(strokes); });
    strokes = takeLast(undoStack);
}

void DrawingState::redo() {
    if (!canRedo()) {
        return;
    }
    undoStack.modify([&](auto& snapshots) { snapshots.push_back(strokes); });
    strokes = takeLast(redoStack);
}

void DrawingState::cancelCurrentStroke() {
    currentStroke = std::nullopt;
}

void DrawingState::saveStateForUndo() {
    undoStack.modify([&](auto& snapshots) { snapshots.push_back(strokes); });
    trimUndoStack();
}

void DrawingState::trimUndoStack() {
    if (undoStack->size() <= maxUndoSteps) {
        return;
    }
    undoStack.modify([](auto& snapshots) {
        const auto excess = static_cast<std::ptrdiff_t>(snapshots.size() - maxUndoSteps);
        snapshots.erase(snapshots.begin(), snapshots.begin() + excess);
    });
}

} // namespace quillon
