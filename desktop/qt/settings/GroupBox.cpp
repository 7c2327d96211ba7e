#include "desktop/qt/settings/GroupBox.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/widgets/Divider.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QPainter>
#include <QVBoxLayout>

namespace quillon::desktop {

namespace {

constexpr qreal kCornerRadius = 8;
constexpr int kRowInset = 12;

} // namespace

GroupBox::GroupBox(QWidget* parent)
    : QWidget(parent)
    , m_rows(new QVBoxLayout(this)) {
    // A control keeps room for its ring, and stands in line with the text for all that.
    m_rows->setContentsMargins(kRowInset, 0, kRowInset - FocusRing::room, 0);
    m_rows->setSpacing(0);
}

void GroupBox::addRow(QWidget* row) {
    m_rows->addWidget(row);
}

void GroupBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(separator(palette()), 1));
    painter.setBrush(groupGround(palette()));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius,
                            kCornerRadius);
    for (int index = 1; index < m_rows->count(); ++index) {
        const int y = m_rows->itemAt(index)->geometry().top();
        Divider::paint(painter, QRectF(kRowInset, y, width() - 2 * kRowInset, 1), palette());
    }
}

} // namespace quillon::desktop
