#pragma once

#include <QComboBox>

namespace quillon::desktop {

/// A menu of entries that shows the chosen one.
class PickerWidget : public QComboBox {
public:
    explicit PickerWidget(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// Opens the menu, its chosen entry over this face of it.
    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon::desktop
