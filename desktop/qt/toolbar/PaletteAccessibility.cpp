#include "desktop/qt/toolbar/PaletteAccessibility.h"

#include "desktop/qt/toolbar/BoundSlider.h"
#include "desktop/qt/toolbar/HueSaturationWidget.h"
#include "desktop/qt/toolbar/PaletteWidget.h"
#include "desktop/qt/toolbar/ToolbarButtonWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace quillon::desktop {

namespace {

/// A slider with its own range and value instead of its positions.
class SliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SliderAccessible(BoundSlider& slider)
        : QAccessibleWidget(&slider, QAccessible::Slider)
        , m_slider(slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return m_slider.boundValue(); }
    void setCurrentValue(const QVariant& value) override {
        m_slider.setBoundValue(value.toDouble());
    }
    QVariant maximumValue() const override { return m_slider.range().maximum; }
    QVariant minimumValue() const override { return m_slider.range().minimum; }
    QVariant minimumStepSize() const override { return m_slider.range().step; }

private:
    BoundSlider& m_slider;
};

/// A button that says by its role and its state that it opens a menu.
class MenuButtonAccessible : public QAccessibleWidget {
public:
    explicit MenuButtonAccessible(ToolbarButtonWidget& button)
        : QAccessibleWidget(&button, QAccessible::ButtonMenu)
        , m_button(button) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        return state;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction()) {
            m_button.click();
        }
    }

private:
    ToolbarButtonWidget& m_button;
};

QAccessibleInterface* describe(const QString& /*className*/, QObject* object) {
    if (auto* slider = dynamic_cast<BoundSlider*>(object)) {
        return new SliderAccessible(*slider);
    }
    if (auto* wheel = dynamic_cast<HueSaturationWidget*>(object)) {
        return new QAccessibleWidget(wheel, QAccessible::ColorChooser);
    }
    if (auto* palette = dynamic_cast<PaletteWidget*>(object)) {
        return new QAccessibleWidget(palette, QAccessible::ToolBar);
    }
    auto* button = dynamic_cast<ToolbarButtonWidget*>(object);
    return button && button->hasMenu() ? new MenuButtonAccessible(*button) : nullptr;
}

} // namespace

void describePaletteToAssistiveTools() {
    // The toolkit keeps one entry for each function, however often it is added.
    QAccessible::installFactory(describe);
}

} // namespace quillon::desktop
