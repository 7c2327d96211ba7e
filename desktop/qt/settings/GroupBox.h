#pragma once

#include <QWidget>

class QVBoxLayout;

namespace quillon::desktop {

/// Rows on a rounded ground, with a line between each two.
class GroupBox : public QWidget {
public:
    explicit GroupBox(QWidget* parent = nullptr);

    void addRow(QWidget* row);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* m_rows;
};

} // namespace quillon::desktop
