#pragma once

#include "desktop/qt/settings/RoleLabel.h"

namespace quillon::desktop {

/// A text on a capsule, or the text alone.
class Capsule : public RoleLabel {
public:
    using RoleLabel::RoleLabel;

    void setFilled(bool filled);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isFilled = false;
};

} // namespace quillon::desktop
