#include "desktop/qt/toolbar/PaletteMenuWidget.h"

#include "desktop/qt/QtImages.h"
#include "desktop/qt/TextStyles.h"
#include "desktop/qt/toolbar/BoundSlider.h"
#include "desktop/qt/toolbar/PresetButton.h"
#include "desktop/qt/toolbar/SwatchButton.h"
#include "desktop/qt/widgets/Label.h"
#include "desktop/qt/widgets/Picture.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <QWidgetAction>

#include <utility>

namespace quillon::desktop {

namespace {

/// The colours of a section stand in rows of this many.
constexpr int kColumns = 7;
constexpr int kSectionMargin = 8;

QIcon symbolIcon(const std::string& symbol) {
    return QtImages::icon({Image::Kind::symbol, symbol, {}, {}}, SymbolTint::foreground);
}

} // namespace

PaletteMenuWidget::PaletteMenuWidget(const PaletteMenu& menu, QWidget& parent)
    : PopupMenu(parent) {
    std::visit([this](const auto& kind) { build(kind); }, menu);
}

std::function<void()> PaletteMenuWidget::choosing(std::function<void()> action) {
    return [this, action = std::move(action)] {
        close();
        action();
    };
}

void PaletteMenuWidget::addWidget(QWidget* widget) {
    auto* entry = new QWidgetAction(this);
    entry->setDefaultWidget(widget);
    addAction(entry);
}

void PaletteMenuWidget::build(const ToolMenu& menu) {
    for (const ToolMenuEntry& entry : menu.entries) {
        QAction* action = addAction(symbolIcon(entry.icon), QString::fromStdString(entry.label));
        action->setCheckable(true);
        action->setChecked(entry.hasCheckmark);
        connect(action, &QAction::triggered, this, entry.action);
        if (entry.hasCheckmark) {
            m_firstEntry = action;
        }
    }
}

void PaletteMenuWidget::build(const ColorMenu& menu) {
    bool startsWithSelected = false;
    for (const SwatchSection& section : menu.sections) {
        auto* widget = new QWidget;
        auto* column = new QVBoxLayout(widget);
        const int padding = qRound(SwatchSection::verticalPadding);
        column->setContentsMargins(kSectionMargin, padding, kSectionMargin, padding);
        column->setSpacing(padding);
        column->addWidget(Label::caption(section.title));
        auto* grid = new QGridLayout;
        grid->setVerticalSpacing(qRound(SwatchSection::rowSpacing));
        grid->setHorizontalSpacing(0);
        column->addLayout(grid);
        qreal columnWidth = SwatchSection::minimumColumnWidth;
        int index = 0;
        std::vector<QWidget*> row;
        for (const auto& swatch : section.swatches) {
            if (index % kColumns == 0) {
                m_focus.addRow(std::exchange(row, {}));
            }
            auto* button = new SwatchButton(swatch.face, *widget);
            connect(button, &QAbstractButton::clicked, this, choosing(swatch.action));
            grid->addWidget(button, index / kColumns, index % kColumns, Qt::AlignCenter);
            columnWidth = qMax(columnWidth, QSizeF(button->size()).width());
            row.push_back(button);
            const bool startsHere = swatch.face.isSelected && !startsWithSelected;
            if (startsHere || !m_firstControl) {
                m_firstControl = button;
            }
            startsWithSelected = startsWithSelected || startsHere;
            ++index;
        }
        m_focus.addRow(row);
        for (int gridColumn = 0; gridColumn < kColumns; ++gridColumn) {
            grid->setColumnMinimumWidth(gridColumn, qRound(columnWidth));
        }
        addWidget(widget);
    }
    addSeparator();
    connect(addAction(symbolIcon(menu.customIcon), QString::fromStdString(menu.customLabel)),
            &QAction::triggered, this, menu.customAction);
}

void PaletteMenuWidget::build(const LineWidthMenu& menu) {
    auto* widget = new QWidget;
    auto* column = new QVBoxLayout(widget);
    const int padding = qRound(LineWidthMenu::padding);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(qRound(LineWidthMenu::spacing));
    m_heading = Label::caption(menu.heading);
    column->addWidget(m_heading, 0, Qt::AlignLeft);
    m_slider = new BoundSlider({menu.slider.minimum, menu.slider.maximum, menu.slider.step},
                               menu.slider.value, *widget);
    m_slider->setAccessibleName(QString::fromStdString(menu.slider.accessibilityLabel));
    m_slider->setFixedWidth(qRound(menu.slider.width));

    auto* sliderRow = new QHBoxLayout;
    sliderRow->addWidget(Picture::ofSymbol(menu.slider.minimumIcon, textStyle::captionSize));
    sliderRow->addStretch();
    sliderRow->addWidget(m_slider);
    sliderRow->addStretch();
    sliderRow->addWidget(Picture::ofSymbol(menu.slider.maximumIcon, textStyle::title2Size));
    column->addLayout(sliderRow);

    m_focus.addRow({m_slider});
    m_firstControl = m_slider;

    auto* presets = new QHBoxLayout;
    std::vector<QWidget*> presetRow;
    for (const LineWidthPreset& preset : menu.presets) {
        auto* button = new PresetButton(preset, *widget);
        connect(button, &QAbstractButton::clicked, this, choosing(preset.action));
        presets->addWidget(button);
        presetRow.push_back(button);
    }
    m_focus.addRow(presetRow);
    column->addLayout(presets);
    addWidget(widget);
}

void PaletteMenuWidget::startWithKeyboard() {
    if (m_firstControl) {
        m_focus.goTo(*m_firstControl);
    } else if (m_firstEntry) {
        setActiveAction(m_firstEntry);
    }
}

void PaletteMenuWidget::keyPressEvent(QKeyEvent* event) {
    if (!m_focus.handleKey(*event)) {
        PopupMenu::keyPressEvent(event);
    }
}

void PaletteMenuWidget::follow(const PaletteMenu& menu) {
    if (const auto* lineWidth = std::get_if<LineWidthMenu>(&menu); lineWidth && m_slider) {
        m_heading->setText(QString::fromStdString(lineWidth->heading));
        m_slider->follow();
    }
}

} // namespace quillon::desktop
