#pragma once

#include "toolbar/FloatingToolbarView.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace quillon::desktop {

class ColorPickerWidget;

/// The colour popover: a panel with an arrow that points at the palette. A click outside of it or
/// Escape closes it.
class ColorPopover : public QWidget {
public:
    ColorPopover(std::unique_ptr<ColorPickerView> picker, QWidget& parent);
    ~ColorPopover() override;

    /// Shows it below `anchor`, or above where there is no room below. Global coordinates of the
    /// toolkit.
    void showBelow(const QRectF& anchor);
    void follow();

    std::function<void()> onDismissed;

protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QRectF panelRect() const;

    enum class ArrowEdge { top, bottom };
    ArrowEdge m_arrowEdge = ArrowEdge::top;
    /// The place of the arrow's point along its edge.
    qreal m_arrowX = 0;
    ColorPickerWidget* m_content;
};

} // namespace quillon::desktop
