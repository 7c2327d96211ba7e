#pragma once

#include "settings/SettingsView.h"

#include <QAbstractButton>

namespace quillon::desktop {

/// The button of a tab. The arrow keys go from one to the next.
class TabButtonWidget : public QAbstractButton {
public:
    explicit TabButtonWidget(const TabButton& button, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_symbol;
    QString m_label;
};

} // namespace quillon::desktop
