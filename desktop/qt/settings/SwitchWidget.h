#pragma once

#include <QCheckBox>

namespace quillon::desktop {

/// A sliding switch: a knob in a track, which is of the accent colour while it is on.
class SwitchWidget : public QCheckBox {
public:
    explicit SwitchWidget(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    bool hitButton(const QPoint& place) const override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon::desktop
