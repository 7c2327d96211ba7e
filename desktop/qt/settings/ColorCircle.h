#pragma once

#include "settings/SettingsView.h"

#include <QWidget>

namespace quillon::desktop {

/// A circle that shows a colour and takes no click.
class ColorCircle : public QWidget {
public:
    explicit ColorCircle(ColorPickerRow row, QWidget* parent = nullptr);

    void refresh();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ColorPickerRow m_row;
    Color m_shown;
};

} // namespace quillon::desktop
