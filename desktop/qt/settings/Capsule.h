#pragma once

#include <QLabel>

namespace quillon::desktop {

/// A text on a capsule, or the text alone.
class Capsule : public QLabel {
public:
    using QLabel::QLabel;

    void setFilled(bool filled);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isFilled = false;
};

} // namespace quillon::desktop
