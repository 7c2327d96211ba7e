#include "desktop/qt/settings/PickerWidget.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/TextStyles.h"
#include "desktop/qt/toolbar/PopupMenu.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace quillon::desktop {

namespace {

constexpr int kFaceHeight = 24;
constexpr qreal kCornerRadius = 5;
constexpr int kPadding = 10;
/// The angle that points down to the menu, and what lies between it and the text.
constexpr QSizeF kAngle(7, 3.5);
constexpr qreal kAngleWidth = 1.5;
constexpr int kGap = 8;

} // namespace

PickerWidget::PickerWidget(QWidget* parent)
    : QComboBox(parent) {
    setFont(textStyle::body());
}

QSize PickerWidget::sizeHint() const {
    int text = 0;
    for (int index = 0; index < count(); ++index) {
        text = std::max(text, fontMetrics().horizontalAdvance(itemText(index)));
    }
    const int face = kPadding + text + kGap + qCeil(kAngle.width()) + kPadding;
    return QSize(face, kFaceHeight) + QSize(2, 2) * FocusRing::room;
}

QSize PickerWidget::minimumSizeHint() const {
    return sizeHint();
}

void PickerWidget::showPopup() {
    auto* menu = new PopupMenu(*this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setFont(font());
    menu->setMinimumWidth(width());
    QAction* chosen = nullptr;
    for (int index = 0; index < count(); ++index) {
        QAction* entry = menu->addAction(itemText(index));
        entry->setCheckable(true);
        entry->setChecked(index == currentIndex());
        connect(entry, &QAction::triggered, this, [this, index] { setCurrentIndex(index); });
        if (entry->isChecked()) {
            chosen = entry;
        }
    }
    const int over = chosen ? menu->actionGeometry(chosen).center().y() : 0;
    menu->popup(mapToGlobal(QPoint(0, rect().center().y() - over)));
    menu->setActiveAction(chosen);
}

void PickerWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr qreal room = FocusRing::room;
    const QRectF face = QRectF(rect()).adjusted(room, room, -room, -room);
    painter.setPen(QPen(outline(palette()), 1));
    painter.setBrush(toQColor(SystemColor::controlBackgroundColor, palette()));
    painter.drawRoundedRect(face.adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius - 0.5,
                            kCornerRadius - 0.5);

    QRectF angle(QPointF(), kAngle);
    angle.moveCenter(face.center());
    angle.moveRight(face.right() - kPadding);
    painter.setPen(QPen(toQColor(SystemColor::secondaryLabelColor, palette()), kAngleWidth,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF tip(angle.center().x(), angle.bottom());
    painter.drawPolyline(QPolygonF({angle.topLeft(), tip, angle.topRight()}));

    painter.setPen(toQColor(SystemColor::labelColor, palette()));
    const QRectF text(face.left() + kPadding, face.top(), angle.left() - kGap - face.left(),
                      face.height());
    painter.drawText(text, Qt::AlignVCenter | Qt::TextSingleLine, currentText());
    if (FocusRing::isShown(*this)) {
        FocusRing::paint(painter, face, kCornerRadius, palette());
    }
}

} // namespace quillon::desktop
