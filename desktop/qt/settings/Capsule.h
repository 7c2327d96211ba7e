#pragma once

#include "desktop/qt/widgets/Label.h"

namespace quillon::desktop {

/// A text on a capsule, or the text alone.
class Capsule : public Label {
public:
    using Label::Label;

    void setFilled(bool filled);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isFilled = false;
};

} // namespace quillon::desktop
