#include "desktop/qt/toolbar/ColorPickerWidget.h"

#include "desktop/qt/QtConversions.h"
#include "desktop/qt/TextStyles.h"
#include "desktop/qt/toolbar/HueSaturationWidget.h"
#include "desktop/qt/toolbar/QuickColorsWidget.h"
#include "desktop/qt/widgets/Divider.h"
#include "desktop/qt/widgets/Label.h"
#include "desktop/qt/widgets/Swatch.h"

#include <QVBoxLayout>

#include <utility>

namespace quillon::desktop {

namespace {

using View = ColorPickerView;

} // namespace

ColorPickerWidget::ColorPickerWidget(std::unique_ptr<ColorPickerView> picker, QWidget& parent)
    : QWidget(&parent)
    , m_picker(std::move(picker)) {
    m_picker->appeared();
    setFixedWidth(qRound(FloatingToolbarView::popoverFrame.width));
    auto* column = new QVBoxLayout(this);
    const int padding = qRound(View::padding);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(qRound(View::spacing));

    m_wheel = new HueSaturationWidget(m_picker->wheel(), *this);
    m_wheel->setFixedHeight(qRound(View::wheelHeight));
    column->addWidget(m_wheel);
    addChannel([this] { return m_picker->brightnessChannel(); }, *column);
    addChannel([this] { return m_picker->opacityChannel(); }, *column);
    column->addWidget(Divider::across());
    addQuickColors(*column);
    addCurrentColor(*column);
    follow();
}

ColorPickerWidget::~ColorPickerWidget() = default;

void ColorPickerWidget::addChannel(std::function<Channel()> channel, QVBoxLayout& column) {
    const Channel first = channel();
    auto* group = new QVBoxLayout;
    group->setSpacing(qRound(View::groupSpacing));
    auto* row = new QHBoxLayout;
    row->addWidget(Label::caption(first.title));
    row->addStretch();
    auto* percentage = Label::caption({});
    row->addWidget(percentage);
    group->addLayout(row);
    auto* slider = new BoundSlider({0, 1, 0}, first.value, *this);
    slider->setAccessibleName(QString::fromStdString(first.title));
    group->addWidget(slider);
    column.addLayout(group);
    m_channels.push_back({std::move(channel), percentage, slider});
}

void ColorPickerWidget::addQuickColors(QVBoxLayout& column) {
    auto* group = new QVBoxLayout;
    constexpr int overhang = QuickColorsWidget::overhang;
    group->setSpacing(qRound(View::quickColorsSpacing) - overhang);
    group->setContentsMargins(0, 0, 0, -overhang);
    group->addWidget(Label::caption(View::quickColorsTitle));
    m_quickColors = new QuickColorsWidget(*this);
    m_quickColors->setFixedWidth(width() - 2 * qRound(View::padding) + overhang);
    group->addWidget(m_quickColors);
    column.addLayout(group);
}

void ColorPickerWidget::addCurrentColor(QVBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->addWidget(Label::caption(View::currentTitle));
    row->addStretch();
    m_current = new Swatch({{View::currentSwatchSize.width, View::currentSwatchSize.height},
                            View::currentSwatchCornerRadius,
                            toQColor(View::currentSwatchBorder),
                            View::currentSwatchBorderWidth});
    row->addWidget(m_current);
    m_hex = new Label({}, textStyle::monospacedCaption(), SystemColor::secondaryLabelColor);
    row->addWidget(m_hex);
    column.addLayout(row);
}

void ColorPickerWidget::follow() {
    m_picker->followSelectedColor();
    m_wheel->update();
    for (const ChannelControls& controls : m_channels) {
        const Channel channel = controls.channel();
        controls.percentage->setText(QString::fromStdString(channel.percentage));
        controls.slider->follow();
        if (channel.accent) {
            controls.slider->setAccent(toQColor(*channel.accent));
        }
    }
    m_quickColors->follow(m_picker->quickColorCells());
    m_current->setColor(toQColor(m_picker->selectedColor()));
    m_hex->setText(QString::fromStdString(m_picker->selectedHex()));
}

} // namespace quillon::desktop
