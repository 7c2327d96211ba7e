#pragma once

#include "annotation/StrokeList.h"
#include "foundation/Published.h"
#include "foundation/UUID.h"
#include "model/DrawingStroke.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quillon {

/// The annotations and their history.
///
/// History works by whole snapshots: an entry of a stack is a complete list of strokes. There are
/// no commands and no merging of entries. Every mutating operation
/// 1. puts the present list on the undo stack,
/// 2. changes the list,
/// 3. empties the redo stack,
/// 4. drops the oldest snapshots above `maxUndoSteps`,
/// whether or not it finds anything to change. The eraser is the exception: it edits `strokes` in
/// place and leaves both stacks alone, so that the next undo brings back what it took.
class DrawingState : public ObservableObject {
public:
    static constexpr std::size_t maxUndoSteps = 50;

    /// Finished annotations in order of completion; later ones are drawn later.
    Published<StrokeList> strokes{*this, {}};
    /// The stroke under the pointer; part of no snapshot.
    Published<std::optional<DrawingStroke>> currentStroke{*this, {}};
    /// The last element is the most recent.
    Published<std::vector<StrokeList>> undoStack{*this, {}};
    Published<std::vector<StrokeList>> redoStack{*this, {}};

    bool canUndo() const { return !undoStack->empty(); }
    bool canRedo() const { return !redoStack->empty(); }

    void addStroke(const DrawingStroke& stroke);
    void removeStroke(const UUID& id);
    void clearAll();
    void undo();
    void redo();
    void cancelCurrentStroke();

private:
    void saveStateForUndo();
    void trimUndoStack();
};

} // namespace quillon
