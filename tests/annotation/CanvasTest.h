#pragma once

#include "annotation/DrawingCanvasView.h"
#include "annotation/DrawingState.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace quillon::test {

/// A canvas with a state of its own and a list of what it handed over.
class Canvas : public testing::Test {
protected:
    void drag(const std::vector<CGPoint>& places) {
        canvas.mouseDown(places.front());
        for (std::size_t index = 1; index + 1 < places.size(); ++index) {
            canvas.mouseDragged(places[index]);
        }
        canvas.mouseUp(places.back());
    }
    const std::optional<DrawingStroke>& current() { return state.currentStroke.get(); }

    FakeHost host;
    DrawingState state;
    std::vector<DrawingStroke> completed;
    std::vector<DrawingStroke> erased;
    DrawingCanvasView canvas{{
        .strokes = state.strokes.binding(),
        .currentStroke = state.currentStroke.binding(),
        .onStrokeCompleted = [this](const DrawingStroke& stroke) { completed.push_back(stroke); },
        .onEraserStroke = [this](const DrawingStroke& stroke) { erased.push_back(stroke); },
        .onTextFieldChanged = [this] { ++textFieldChanges; },
    }};
    int textFieldChanges = 0;
};

} // namespace quillon::test
