#pragma once

#include "annotation/StrokeList.h"
#include "annotation/StrokeRenderer.h"

#include <vector>

namespace quillon {

/// The strokes that auto-erase has removed and that are still to be seen for a moment, ever
/// fainter.
class StrokeFades {
public:
    bool isEmpty() const { return m_fades.empty(); }

    /// `now`, in seconds, is the moment in which the stroke begins to fade.
    void add(const StrokeRef& stroke, double now);

    /// What is still to be seen at `now`, in the order in which it lies among `strokes`. What has
    /// faded is let go of, and so is what stands in the list again.
    FadingStrokes at(double now, const StrokeList& strokes);

private:
    struct Fade {
        StrokeRef stroke;
        double start = 0;
    };

    std::vector<Fade> m_fades;
};

} // namespace quillon
