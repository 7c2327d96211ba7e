#pragma once

#include "platform/SystemColor.h"

#include <QLabel>

#include <string>

namespace quillon::desktop {

/// A plain text in a colour by its role, also when the desktop turns light or dark.
class Label : public QLabel {
public:
    Label(const std::string& text, const QFont& font,
          const SystemColor& color = SystemColor::labelColor);

    /// A small text in the secondary colour.
    static Label* caption(const std::string& text);

    void setColor(const SystemColor& color);

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyColor();

    SystemColor m_color;
};

} // namespace quillon::desktop
