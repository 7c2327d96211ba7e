#pragma once

#include <QComboBox>
#include <QWheelEvent>

namespace quillon::desktop {

/// A menu of entries that shows the chosen one. The wheel leaves it alone.
class PickerWidget : public QComboBox {
public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

} // namespace quillon::desktop
