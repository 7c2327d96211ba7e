#include "desktop/qt/settings/TabStripWidget.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/settings/TabButtonWidget.h"
#include "desktop/qt/widgets/Divider.h"

#include <QHBoxLayout>
#include <QPainter>

namespace quillon::desktop {

TabStripWidget::TabStripWidget(const TabStrip& strip, std::function<void(SettingsTab)> onSelect,
                               QWidget* parent)
    : QWidget(parent) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (const auto& item : strip.items) {
        const auto* button = std::get_if<TabButton>(&item);
        if (!button) {
            layout->addWidget(Divider::upright(TabDivider::height), 0, Qt::AlignVCenter);
            continue;
        }
        auto* widget = new TabButtonWidget(*button);
        connect(widget, &QAbstractButton::clicked, this,
                [onSelect, tab = button->tab] { onSelect(tab); });
        layout->addWidget(widget, 1);
        m_buttons.push_back(widget);
    }
}

void TabStripWidget::follow(const TabStrip& strip) {
    auto widget = m_buttons.begin();
    for (const auto& item : strip.items) {
        if (const auto* button = std::get_if<TabButton>(&item)) {
            (*widget++)->setChecked(button->isSelected);
        }
    }
}

void TabStripWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), toQColor(SystemColor::windowBackgroundColor, palette()));
    Divider::paint(painter, QRectF(0, height() - 1, width(), 1), palette());
}

} // namespace quillon::desktop
