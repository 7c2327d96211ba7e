#include "desktop/qt/settings/FormRows.h"

#include "desktop/qt/QtConversions.h"
#include "desktop/qt/TextStyles.h"
#include "desktop/qt/settings/PickerWidget.h"
#include "desktop/qt/settings/ShortcutRowWidget.h"
#include "desktop/qt/settings/SwatchWidget.h"
#include "desktop/qt/settings/SwitchWidget.h"
#include "desktop/qt/settings/Unscrolled.h"
#include "desktop/qt/widgets/FocusRing.h"
#include "desktop/qt/widgets/Label.h"
#include "desktop/qt/widgets/Picture.h"
#include "desktop/qt/widgets/Slider.h"
#include "desktop/qt/widgets/Swatch.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <initializer_list>
#include <variant>

namespace quillon::desktop {

namespace {

constexpr int kRowHeight = 37;
constexpr int kSpacing = 8;
/// What a glyph leaves free in its square.
constexpr qreal kGlyphMargin = 2;

QString text(const std::string& string) {
    return QString::fromStdString(string);
}

/// What the last widget of a row leaves free at its right edge.
enum class RowEnd { roomForRing, nothing };

/// A label at the left, widgets at the right.
QWidget* makeRow(const std::string& label, std::initializer_list<QWidget*> controls,
                 RowEnd end = RowEnd::roomForRing) {
    auto* row = new QWidget;
    row->setMinimumHeight(kRowHeight);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, end == RowEnd::nothing ? FocusRing::room : 0, 0);
    layout->setSpacing(kSpacing);
    layout->addWidget(new Label(label, textStyle::body()));
    layout->addStretch();
    for (QWidget* control : controls) {
        layout->addWidget(control);
    }
    return row;
}

/// Makes a row of each kind.
struct RowMaker {
    const KeyReader& readKey;

    FormRowWidgets operator()(const ToggleRow& row) const {
        auto* toggle = new SwitchWidget;
        toggle->setAccessibleName(text(row.label));
        toggle->setChecked(row.isOn.get());
        QObject::connect(toggle, &QCheckBox::toggled, toggle,
                         [isOn = row.isOn](bool checked) { isOn.set(checked); });
        return {makeRow(row.label, {toggle}), [toggle, isOn = row.isOn] {
                    const QSignalBlocker silence(toggle);
                    toggle->setChecked(isOn.get());
                }};
    }

    FormRowWidgets operator()(const PickerRow& row) const {
        auto* picker = new Unscrolled<PickerWidget>;
        picker->setAccessibleName(text(row.title));
        for (const auto& entry : row.entries) {
            picker->addItem(text(entry));
        }
        picker->setCurrentIndex(static_cast<int>(row.selection()));
        QObject::connect(
            picker, &QComboBox::currentIndexChanged, picker,
            [select = row.select](int index) { select(static_cast<std::size_t>(index)); });
        return {makeRow(row.title, {picker}), [picker, selection = row.selection] {
                    const QSignalBlocker silence(picker);
                    picker->setCurrentIndex(static_cast<int>(selection()));
                }};
    }

    FormRowWidgets operator()(const SliderRow& row) const {
        auto* slider = new Unscrolled<Slider>(row.lastStop());
        slider->setAccessibleName(text(row.label));
        slider->setFixedWidth(qRound(row.sliderWidth));
        slider->setValue(row.stop());
        auto* value = new Label(row.text(), textStyle::monospacedCaption());
        value->setFixedWidth(qRound(row.valueWidth));
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QObject::connect(slider, &QSlider::valueChanged, slider,
                         [row](int stop) { row.moveTo(stop); });

        const auto refresh = [slider, value, row] {
            const QSignalBlocker silence(slider);
            slider->setValue(row.stop());
            value->setText(text(row.text()));
            slider->setAccessibleDescription(value->text());
        };
        if (!row.ends) {
            return {makeRow(row.label, {slider, value}, RowEnd::nothing), refresh};
        }
        auto* minimum = Picture::ofSymbol(row.ends->symbol, textStyle::captionSize + kGlyphMargin);
        auto* maximum = Picture::ofSymbol(row.ends->symbol, textStyle::title2Size + kGlyphMargin);
        return {makeRow(row.label, {minimum, slider, maximum, value}, RowEnd::nothing), refresh};
    }

    FormRowWidgets operator()(const SwatchRow& row) const {
        auto* swatch = new SwatchWidget(row.swatch);
        swatch->setAccessibleName(text(row.label));
        return {makeRow(row.label, {swatch}), [swatch] { swatch->refresh(); }};
    }

    FormRowWidgets operator()(const ColorPickerRow& row) const {
        const QSizeF size(ColorPickerRow::circleSize.width, ColorPickerRow::circleSize.height);
        auto* circle = new Swatch({size, size.width() / 2,
                                   toQColor(Color::white.opacity(ColorPickerRow::ringOpacity)),
                                   ColorPickerRow::ringWidth});
        circle->setAccessibleName(text(row.title));
        const auto refresh = [circle, color = row.color] {
            circle->setColor(toQColor(color.get()));
        };
        refresh();
        return {makeRow(row.title, {circle}, RowEnd::nothing), refresh};
    }

    FormRowWidgets operator()(const ShortcutRow& row) const {
        auto* shortcut = new ShortcutRowWidget(row, readKey);
        return {makeRow(row.label, {shortcut}), [shortcut] { shortcut->refresh(); }};
    }
};

} // namespace

FormRowWidgets makeFormRow(const FormRow& row, const KeyReader& readKey) {
    return std::visit(RowMaker{readKey}, row);
}

} // namespace quillon::desktop
