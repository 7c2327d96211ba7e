#include "annotation/StrokeFades.h"

#include "annotation/FadeTransition.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr double kDuration = 0.5;

} // namespace

void StrokeFades::add(const StrokeRef& stroke, double now) {
    const auto place = std::ranges::upper_bound(
        m_fades, stroke->order(), {}, [](const Fade& fade) { return fade.stroke->order(); });
    m_fades.insert(place, {stroke, now});
}

FadingStrokes StrokeFades::at(double now, const StrokeList& strokes) {
    std::erase_if(m_fades, [&](const Fade& fade) {
        // An undo may have brought the stroke back in the meantime.
        const FinishedStroke* inItsPlace = strokes.withOrder(fade.stroke->order());
        const bool isBack = inItsPlace && inItsPlace->stroke().id() == fade.stroke->stroke().id();
        return isBack || now - fade.start >= kDuration;
    });
    FadingStrokes fading;
    for (const auto& fade : m_fades) {
        const double progress = TimingCurve::easeOut.progressAt((now - fade.start) / kDuration);
        fading.emplace_back(fade.stroke, 1 - progress);
    }
    return fading;
}

} // namespace quillon
