#pragma once

#include <QPushButton>

namespace quillon::desktop {

/// A button that is its text alone, on a light ground while the pointer is over it.
class BorderlessButton : public QPushButton {
public:
    explicit BorderlessButton(const QString& text, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon::desktop
