#pragma once

#include "settings/SettingsView.h"

#include <QWidget>

namespace quillon::desktop {

/// Lays the page out that tells about the program.
class AboutWidget : public QWidget {
public:
    explicit AboutWidget(const AboutPage& page, QWidget* parent = nullptr);
};

} // namespace quillon::desktop
