#pragma once

#include "desktop/qt/Appearance.h"
#include "desktop/qt/TextStyles.h"

#include <QLabel>

namespace quillon::desktop {

/// A small text in the secondary colour.
class CaptionLabel : public QLabel {
public:
    explicit CaptionLabel(const QString& text)
        : QLabel(text) {
        setFont(textStyle::caption());
        QPalette look = palette();
        look.setColor(QPalette::WindowText, toQColor(SystemColor::secondaryLabelColor, look));
        setPalette(look);
    }
};

} // namespace quillon::desktop
