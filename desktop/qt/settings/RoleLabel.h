#pragma once

#include "platform/SystemColor.h"

#include <QLabel>

namespace quillon::desktop {

/// A plain text in the colour of its part, also when the desktop turns light or dark.
class RoleLabel : public QLabel {
public:
    explicit RoleLabel(SystemColor role, QWidget* parent = nullptr);

    void setRole(SystemColor role);

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyRole();

    SystemColor m_role;
};

} // namespace quillon::desktop
