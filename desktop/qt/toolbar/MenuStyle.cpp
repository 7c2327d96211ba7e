#include "desktop/qt/toolbar/MenuStyle.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/PopupSurface.h"
#include "desktop/qt/SymbolPicture.h"
#include "desktop/qt/widgets/Divider.h"
#include "toolbar/FloatingToolbarView.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

namespace quillon::desktop {

namespace {

constexpr qreal kPanelRadius = 10;
constexpr qreal kEntryRadius = 6;
constexpr int kEntryHeight = 28;
constexpr int kSeparatorHeight = 9;
constexpr int kMargin = 5;
constexpr int kIconSide = 18;
/// Between the edge, the glyph, the text and the check mark.
constexpr int kGap = 8;
constexpr int kCheckmarkSide = 14;

void drawSeparator(const QStyleOptionMenuItem& option, QPainter& painter) {
    const QRectF line(option.rect.left() + kGap, QRectF(option.rect).center().y() - 0.5,
                      option.rect.width() - 2 * kGap, 1);
    Divider::paint(painter, line, option.palette);
}

void drawEntry(const QStyleOptionMenuItem& option, QPainter& painter) {
    const bool isCurrent = option.state.testFlag(QStyle::State_Selected) &&
                           option.state.testFlag(QStyle::State_Enabled);
    const QColor foreground = isCurrent ? option.palette.color(QPalette::HighlightedText)
                                        : toQColor(SystemColor::labelColor, option.palette);
    const qreal scale = painter.device()->devicePixelRatio();
    const QRect rect = option.rect;
    if (isCurrent) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(option.palette.color(QPalette::Highlight));
        painter.drawRoundedRect(rect, kEntryRadius, kEntryRadius);
    }
    QRect text = rect.adjusted(kGap, 0, -kGap, 0);
    if (!option.icon.isNull()) {
        const QPoint place(text.left(), rect.center().y() + 1 - kIconSide / 2);
        const auto mode = isCurrent ? QIcon::Selected : QIcon::Normal;
        option.icon.paint(&painter, {place, QSize(kIconSide, kIconSide)}, Qt::AlignCenter, mode);
        text.setLeft(text.left() + kIconSide + kGap);
    }
    painter.setFont(option.font);
    painter.setPen(foreground);
    painter.drawText(text, Qt::AlignVCenter | Qt::TextShowMnemonic, option.text);
    if (option.checked) {
        const QPointF place(rect.right() - kGap - kCheckmarkSide,
                            rect.center().y() + 1 - kCheckmarkSide / 2.0);
        painter.drawImage(place,
                          symbolPicture(ToolMenu::checkmark, kCheckmarkSide, scale, foreground));
    }
}

} // namespace

MenuStyle::MenuStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
    if (element == PE_PanelMenu && widget) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const QRectF panel = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        painter->setPen(panelEdge(option->palette));
        painter->setBrush(popupMaterial(option->palette));
        painter->drawPath(surfaceOutline(*widget, panel, kPanelRadius));
        painter->restore();
    } else if (element != PE_FrameMenu) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    if (element == CE_MenuEmptyArea) {
        return;
    }
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element != CE_MenuItem || !entry) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (entry->menuItemType == QStyleOptionMenuItem::Separator) {
        drawSeparator(*entry, *painter);
    } else {
        drawEntry(*entry, *painter);
    }
    painter->restore();
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                  const QSize& contents, const QWidget* widget) const {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || !entry) {
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    }
    if (entry->menuItemType == QStyleOptionMenuItem::Separator) {
        return {contents.width(), kSeparatorHeight};
    }
    const int text = entry->fontMetrics.horizontalAdvance(entry->text);
    const int icon = entry->icon.isNull() ? 0 : kIconSide + kGap;
    const int checkmark =
        entry->checkType == QStyleOptionMenuItem::NotCheckable ? 0 : 2 * kGap + kCheckmarkSide;
    return {kGap + icon + text + checkmark + kGap, kEntryHeight};
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
    switch (metric) {
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return kMargin;
    case PM_MenuPanelWidth:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

} // namespace quillon::desktop
