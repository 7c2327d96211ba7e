#include "desktop/qt/toolbar/PaletteWidget.h"

#include "desktop/qt/toolbar/ColorPopover.h"
#include "desktop/qt/toolbar/PaletteAccessibility.h"
#include "desktop/qt/toolbar/ToolbarButtonWidget.h"
#include "desktop/qt/widgets/Divider.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QShortcut>

#include <utility>

namespace quillon::desktop {

namespace {

/// The controls of one child of the row; a divider has none.
std::vector<PaletteControl> controlsOf(const PaletteChild& child) {
    if (const auto* control = std::get_if<PaletteControl>(&child)) {
        return {*control};
    }
    const auto* group = std::get_if<PaletteGroup>(&child);
    return group ? group->controls : std::vector<PaletteControl>();
}

} // namespace

PaletteWidget::PaletteWidget(std::shared_ptr<FloatingToolbarView> toolbar, QWidget& parent)
    : ControlsWidget(toolbar, parent)
    , m_toolbar(std::move(toolbar)) {
    describePaletteToAssistiveTools();
    setAccessibleName(tr("Annotation palette"));
    layOut(m_toolbar->row());
    adjustSize();
    show();
}

PaletteWidget::~PaletteWidget() = default;

void PaletteWidget::layOut(const PaletteRow& row) {
    auto* layout = new QHBoxLayout(this);
    const int reach = shadowReach(PalettePanel::shadow);
    const int horizontal = reach + qRound(PaletteRow::horizontalPadding);
    const int vertical = reach + qRound(PaletteRow::verticalPadding);
    layout->setContentsMargins(horizontal, vertical, horizontal, vertical);
    layout->setSpacing(qRound(PaletteRow::spacing));
    layout->setSizeConstraint(QLayout::SetFixedSize);

    for (const PaletteChild& child : row.children) {
        if (const auto* divider = std::get_if<PaletteDivider>(&child)) {
            layout->addWidget(Divider::upright(divider->height));
            continue;
        }
        const auto* group = std::get_if<PaletteGroup>(&child);
        auto* cell = new QHBoxLayout;
        cell->setSpacing(group ? qRound(group->spacing) : 0);
        layout->addLayout(cell);
        for (const PaletteControl& control : controlsOf(child)) {
            m_buttons.push_back(new ToolbarButtonWidget(control, *this));
            cell->addWidget(m_buttons.back());
            if (control.keyEquivalent) {
                addKeys(*control.keyEquivalent, *m_buttons.back());
            }
        }
    }
}

void PaletteWidget::addKeys(const KeyEquivalent& keys, ToolbarButtonWidget& button) {
    const QString key = QChar(keys.key).toUpper();
    const QString shift = keys.withShift ? "Shift+" : "";
    for (const char* command : {"Ctrl+", "Meta+"}) {
        // A key may come before the update that would have enabled its button.
        auto* shortcut = new QShortcut(QKeySequence(command + shift + key), this);
        connect(shortcut, &QShortcut::activated, &button, [this, &button] {
            bringUpToDate();
            button.click();
        });
    }
}

void PaletteWidget::bringUpToDate() {
    auto button = m_buttons.begin();
    for (const PaletteChild& child : m_toolbar->row().children) {
        for (const PaletteControl& control : controlsOf(child)) {
            (*button++)->follow(control);
        }
    }
    followPopover();
}

void PaletteWidget::followPopover() {
    if (!m_toolbar->showColorPicker()) {
        m_popover.reset();
        return;
    }
    if (!m_popover) {
        m_popover = std::make_unique<ColorPopover>(m_toolbar->makeColorPicker(), *this);
        m_popover->onDismissed = [this] { m_toolbar->setShowColorPicker(false); };
        m_popover->showBelow(body().translated(mapToGlobal(QPointF(0, 0))));
    }
    m_popover->follow();
}

QRectF PaletteWidget::body() const {
    const int reach = shadowReach(PalettePanel::shadow);
    return QRectF(rect()).adjusted(reach, reach, -reach, -reach);
}

void PaletteWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    m_panel.paint(painter, body(), palette(),
                  isComposited() ? Panel::Material::translucent : Panel::Material::opaque);
}

QRegion PaletteWidget::outline() const {
    const qreal radius = PalettePanel::cornerRadius;
    QPainterPath path;
    path.addRoundedRect(body(), radius, radius);
    return path.toFillPolygon().toPolygon();
}

} // namespace quillon::desktop
