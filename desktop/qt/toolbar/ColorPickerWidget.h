#pragma once

#include "desktop/qt/toolbar/BoundSlider.h"
#include "toolbar/FloatingToolbarView.h"

#include <QLabel>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QVBoxLayout;

namespace quillon::desktop {

class HueSaturationWidget;
class QuickColorsWidget;
class Swatch;

/// The content of the colour popover on the screen.
class ColorPickerWidget : public QWidget {
public:
    ColorPickerWidget(std::unique_ptr<ColorPickerView> picker, QWidget& parent);
    ~ColorPickerWidget() override;

    /// Brings every control in line with the colour and the quick colours.
    void follow();

private:
    using Channel = ColorPickerView::Channel;
    struct ChannelControls {
        std::function<Channel()> channel;
        QLabel* percentage;
        BoundSlider* slider;
    };

    void addChannel(std::function<Channel()> channel, QVBoxLayout& column);
    void addQuickColors(QVBoxLayout& column);
    void addCurrentColor(QVBoxLayout& column);

    std::unique_ptr<ColorPickerView> m_picker;
    HueSaturationWidget* m_wheel;
    std::vector<ChannelControls> m_channels;
    QuickColorsWidget* m_quickColors = nullptr;
    Swatch* m_current = nullptr;
    QLabel* m_hex = nullptr;
};

} // namespace quillon::desktop
