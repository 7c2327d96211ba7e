#pragma once

#include "desktop/qt/ControlsWidget.h"
#include "platform/ContentView.h"

#include <QRect>
#include <QRegion>

#include <functional>
#include <memory>

class QKeyEvent;

namespace quillon::desktop {

class TextFieldWidget;

/// The widgets that stand on a content widget: the text field and the controls of its view. They
/// come, go and change as the view says.
class PlacedChildren {
public:
    /// `bodyDrag` hears of the drags beside the controls.
    PlacedChildren(QWidget& parent, ControlsWidget::BodyDrag bodyDrag);
    ~PlacedChildren();

    void bringUpToDate(ContentView& view);

    /// Where nothing can be translucent, the controls are drawn opaque.
    void setComposited(bool composited);
    /// What is to be seen of all of them where nothing can be translucent, in points of the parent.
    QRegion outline() const;
    /// Whether one of them is to be seen in the region, in points of the parent.
    bool reachInto(const QRegion& region) const;

    /// Whether a text field has the keyboard or is about to get it.
    bool hasTextField() const { return m_textField != nullptr; }
    /// Called after each change of `hasTextField`.
    std::function<void()> onTextFieldCameOrWent;
    /// Makes text of what an input method is still composing.
    void finishComposing();
    /// False for a key that is not meant for the text field. One that came before the field had the
    /// keyboard is.
    bool takeKey(QKeyEvent& event);

    /// Called with the place of the controls' body, in device pixels, after each change; empty when
    /// there are none.
    std::function<void(const QRect&)> onControlsPlaced;

private:
    void updateTextField(ContentView& view);
    void updateControls(ContentView& view);
    void tellControlsPlace();

    QWidget& m_parent;
    ControlsWidget::BodyDrag m_bodyDrag;
    std::unique_ptr<TextFieldWidget> m_textField;
    std::unique_ptr<ControlsWidget> m_controls;
    QRect m_controlsPlace;
    bool m_isComposited = true;
};

} // namespace quillon::desktop
