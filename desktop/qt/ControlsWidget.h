#pragma once

#include "foundation/Cancellable.h"
#include "platform/ControlsView.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace quillon::desktop {

/// The widget of a view of controls. It reads the view's description anew, one turn after the view
/// said that it may have changed.
class ControlsWidget : public QWidget {
public:
    /// The widget for that kind of view.
    static std::unique_ptr<ControlsWidget> make(const std::shared_ptr<ControlsView>& view,
                                                QWidget& parent);

    ControlsWidget(const std::shared_ptr<ControlsView>& view, QWidget& parent);

    const ControlsView* view() const { return m_view.get(); }
    /// Where the view's body is to be seen, in the widget's coordinates. A press beside the
    /// controls and outside of the body goes on to what lies below.
    virtual QRectF body() const = 0;
    /// Where nothing can be translucent, the body is drawn opaque and without what lies round it.
    void setComposited(bool composited);
    bool isComposited() const { return m_isComposited; }
    /// What is to be seen of the widget then, in its coordinates.
    virtual QRegion outline() const = 0;
    /// `center` in the parent's coordinates.
    void place(QPointF center);

    /// A press, moves and a release beside the controls, in the parent's coordinates.
    struct BodyDrag {
        std::function<void(QPointF)> pressed;
        std::function<void(QPointF)> moved;
        std::function<void(QPointF)> released;
    };
    BodyDrag bodyDrag;

protected:
    bool event(QEvent* event) override;
    /// Brings the controls in line with the description.
    virtual void bringUpToDate() = 0;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void scheduleUpdate();
    void tell(const std::function<void(QPointF)>& listener, const QMouseEvent& event);

    std::shared_ptr<ControlsView> m_view;
    bool m_isUpdatePending = false;
    bool m_isDragging = false;
    bool m_isComposited = true;
    Cancellable m_subscription;
};

} // namespace quillon::desktop
