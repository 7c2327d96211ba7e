#pragma once

#include <QAbstractButton>

namespace quillon::desktop {

/// A button that is nothing but what it paints. It keeps its size, can be reached by the tab key,
/// and is painted anew when the pointer or the keyboard comes or goes.
class PaintedButton : public QAbstractButton {
public:
    QSize sizeHint() const override { return minimumSize(); }

protected:
    /// `name` is read out.
    PaintedButton(QSize size, const QString& name, QWidget& parent);

    /// Whether the pointer is over it, or the ring of the keyboard round it.
    bool isPointedAt() const;
};

} // namespace quillon::desktop
