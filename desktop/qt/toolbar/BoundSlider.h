#pragma once

#include "desktop/qt/widgets/Slider.h"
#include "foundation/Binding.h"
#include "foundation/Geometry.h"

namespace quillon::desktop {

/// A slider bound to a number.
class BoundSlider : public Slider {
public:
    struct Range {
        double minimum = 0;
        double maximum = 1;
        /// Nothing when it is 0: the slider is continuous.
        double step = 0;
    };

    BoundSlider(Range range, Binding<CGFloat> value, QWidget& parent);

    /// Shows the bound number, whoever changed it.
    void follow();

    const Range& range() const { return m_range; }
    double boundValue() const { return m_binding.get(); }
    /// Goes to the place nearest to `value`.
    void setBoundValue(double value);

private:
    double valueAt(int position) const;
    int positionOf(double value) const;

    Range m_range;
    Binding<CGFloat> m_binding;
};

} // namespace quillon::desktop
