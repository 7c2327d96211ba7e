#pragma once

#include "settings/SettingsView.h"

#include <QAbstractButton>

#include <string>

namespace quillon::desktop {

/// The button of a tab. The arrow keys go from one to the next.
class TabButtonWidget : public QAbstractButton {
public:
    explicit TabButtonWidget(const TabButton& button, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::string m_symbol;
    QString m_label;
};

} // namespace quillon::desktop
