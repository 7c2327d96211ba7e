#include "desktop/qt/toolbar/ColorPopover.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/PopupSurface.h"
#include "desktop/qt/toolbar/ColorPickerWidget.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <utility>

namespace quillon::desktop {

namespace {

constexpr qreal kRadius = 12;
constexpr int kArrowHeight = 9;
constexpr qreal kArrowHalfWidth = 10;
/// Between the panel and the edges of the screen.
constexpr int kScreenMargin = 6;

} // namespace

ColorPopover::ColorPopover(std::unique_ptr<ColorPickerView> picker, QWidget& parent)
    : QWidget(&parent, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint) {
    prepareSurface(*this);
    setAccessibleName(tr("Colour"));
    m_content = new ColorPickerWidget(std::move(picker), *this);
    m_content->setMinimumHeight(qRound(FloatingToolbarView::popoverFrame.height));
    auto* layout = new QVBoxLayout(this);
    // Room for the arrow on either edge, so that turning it over changes no size.
    layout->setContentsMargins(0, kArrowHeight, 0, kArrowHeight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_content);
}

ColorPopover::~ColorPopover() = default;

void ColorPopover::follow() {
    m_content->follow();
}

void ColorPopover::showBelow(const QRectF& anchor) {
    adjustSize();
    const QScreen* screen = QGuiApplication::screenAt(anchor.center().toPoint());
    const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->geometry();
    int top = qRound(anchor.bottom());
    if (top + height() > area.bottom() && qRound(anchor.top()) - height() >= area.top()) {
        top = qRound(anchor.top()) - height();
        m_arrowEdge = ArrowEdge::bottom;
    }
    // With room on neither side it lies over the palette rather than beyond the screen.
    top = qBound(area.top(), top, qMax(area.bottom() + 1 - height(), area.top()));
    const int left = qBound(area.left() + kScreenMargin, qRound(anchor.center().x()) - width() / 2,
                            qMax(area.right() - kScreenMargin - width(), area.left()));
    const qreal corner = kRadius + kArrowHalfWidth;
    m_arrowX = qBound(corner, anchor.center().x() - left, width() - corner);
    move(left, top);
    show();
}

QRectF ColorPopover::panelRect() const {
    return QRectF(rect()).adjusted(0.5, kArrowHeight + 0.5, -0.5, -kArrowHeight - 0.5);
}

void ColorPopover::paintEvent(QPaintEvent* /*event*/) {
    const QRectF panel = panelRect();
    const bool pointsUp = m_arrowEdge == ArrowEdge::top;
    const qreal base = pointsUp ? panel.top() : panel.bottom();
    const qreal tip = pointsUp ? base - kArrowHeight : base + kArrowHeight;
    QPainterPath arrow;
    arrow.addPolygon(QPolygonF({{m_arrowX - kArrowHalfWidth, base},
                                {m_arrowX, tip},
                                {m_arrowX + kArrowHalfWidth, base},
                                {m_arrowX, panel.center().y()}}));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(panelEdge(palette()));
    painter.setBrush(popupMaterial(palette()));
    painter.drawPath(surfaceOutline(*this, panel, kRadius).united(arrow));
}

void ColorPopover::hideEvent(QHideEvent* /*event*/) {
    if (onDismissed) {
        onDismissed();
    }
}

} // namespace quillon::desktop
