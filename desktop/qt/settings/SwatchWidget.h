#pragma once

#include "settings/SettingsView.h"

#include <QAbstractButton>
#include <QPointer>

class QColorDialog;

namespace quillon::desktop {

/// A well that shows a colour. A click opens the colour panel, which edits it as it is moved.
class SwatchWidget : public QAbstractButton {
public:
    explicit SwatchWidget(ColorPickerSwatch swatch, QWidget* parent = nullptr);

    /// Shows the present colour, also in an open panel.
    void refresh();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void openPanel();

    ColorPickerSwatch m_swatch;
    Color m_shown;
    QPointer<QColorDialog> m_panel;
};

} // namespace quillon::desktop
