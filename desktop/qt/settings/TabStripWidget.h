#pragma once

#include "settings/SettingsView.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace quillon::desktop {

class TabButtonWidget;

/// The strip of tabs: equally wide buttons with a line between each two, and one below them all.
class TabStripWidget : public QWidget {
public:
    TabStripWidget(const TabStrip& strip, std::function<void(SettingsTab)> onSelect,
                   QWidget* parent = nullptr);

    void follow(const TabStrip& strip);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<TabButtonWidget*> m_buttons;
};

} // namespace quillon::desktop
