#include "desktop/qt/toolbar/QuickColorsWidget.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/SymbolPicture.h"
#include "desktop/qt/toolbar/PaintedButton.h"
#include "desktop/qt/toolbar/PopupMenu.h"
#include "desktop/qt/toolbar/Ring.h"
#include "desktop/qt/toolbar/SwatchButton.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QtMath>

#include <utility>

namespace quillon::desktop {

namespace {

using View = ColorPickerView;

/// The button that lies over the last colour.
class AddColorButton : public PaintedButton {
public:
    AddColorButton(QSize size, QWidget& parent)
        : PaintedButton(size, tr("Add the current colour"), parent) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal width = View::AddButton::borderLineWidth;
        QPen border(toQColor(SystemColor::labelColor, palette()), width);
        border.setDashPattern(
            {View::AddButton::dashLength / width, View::AddButton::dashLength / width});
        const QPointF center = QRectF(rect()).center();
        painter.strokePath(circle(center, View::AddButton::diameter - width), border);
        const qreal side = View::AddButton::fontSize * 1.15;
        painter.drawImage(center - QPointF(side, side) / 2,
                          symbolPicture(View::AddButton::icon, side, devicePixelRatioF(),
                                        toQColor(SystemColor::secondaryLabelColor, palette())));
        if (isPointedAt()) {
            FocusRing::stroke(
                painter, circle(center, View::AddButton::diameter + ColorSwatchView::ringMargin),
                palette());
        }
    }
};

/// One colour, with its context menu, and perhaps the add button on top.
class Cell : public QWidget {
public:
    Cell(View::QuickColorCell cell, QWidget& parent)
        : QWidget(&parent)
        , m_cell(std::move(cell)) {
        auto* swatch = new SwatchButton(m_cell.swatch, *this);
        resize(swatch->size());
        swatch->installEventFilter(this);
        connect(swatch, &QAbstractButton::clicked, this, m_cell.action);
        setFocusProxy(swatch);
        if (m_cell.addButton) {
            // The face is smaller; round it goes the ring of the focus.
            auto* add = new AddColorButton(size(), *this);
            add->installEventFilter(this);
            // The swatch cannot be reached below it.
            swatch->setFocusPolicy(Qt::NoFocus);
            connect(add, &QAbstractButton::clicked, this, m_cell.addButton->action);
            setFocusProxy(add);
        }
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        // The cells overlap: the ring of this one is to be seen whole.
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::Enter) {
            raise();
        }
        return QWidget::eventFilter(watched, event);
    }
    void contextMenuEvent(QContextMenuEvent* event) override {
        auto* menu = new PopupMenu(*this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        for (const auto& entry : m_cell.contextMenu) {
            const QAction* action =
                menu->addAction(QString::fromStdString(entry.title), this, entry.action);
            if (entry.role == View::ContextMenuEntry::Role::destructive) {
                menu->setDestructive(action);
            }
        }
        menu->popup(event->globalPos());
    }

private:
    View::QuickColorCell m_cell;
};

} // namespace

QuickColorsWidget::QuickColorsWidget(QWidget& parent)
    : QWidget(&parent) {}

void QuickColorsWidget::follow(const std::vector<ColorPickerView::QuickColorCell>& cells) {
    std::vector<Color> colors;
    for (const auto& cell : cells) {
        colors.push_back(cell.swatch.color);
    }
    if (!m_children.empty() && colors == m_colors) {
        return;
    }
    const int focused = focusedCell();
    const bool isLonger = colors.size() > m_colors.size();
    for (QWidget* child : std::exchange(m_children, {})) {
        child->hide();
        child->deleteLater();
    }
    m_colors = std::move(colors);
    int index = 0;
    for (const auto& cell : cells) {
        addCell(cell, index++);
    }
    const int rows = (index + View::columnCount - 1) / View::columnCount;
    const qreal height = rows * View::quickSwatchSize + qMax(rows - 1, 0) * View::rowSpacing;
    setFixedHeight(qCeil(height) + 2 * overhang);
    if (focused >= 0 && !m_children.empty()) {
        // The keyboard stays with the add button, or goes to what moved up.
        const std::size_t last = m_children.size() - 1;
        m_children[isLonger ? last : qMin(static_cast<std::size_t>(focused), last)]->setFocus(
            Qt::TabFocusReason);
    }
}

int QuickColorsWidget::focusedCell() const {
    const QWidget* focus = window()->focusWidget();
    for (std::size_t index = 0; focus && index < m_children.size(); ++index) {
        if (m_children[index]->isAncestorOf(focus)) {
            return static_cast<int>(index);
        }
    }
    return -1;
}

void QuickColorsWidget::addCell(const ColorPickerView::QuickColorCell& cell, int index) {
    auto* child = new Cell(cell, *this);
    const qreal columnWidth =
        (width() - overhang - (View::columnCount - 1) * View::columnSpacing) / View::columnCount;
    const int column = index % View::columnCount;
    const int row = index / View::columnCount;
    const QPointF center(overhang + column * (columnWidth + View::columnSpacing) + columnWidth / 2,
                         overhang + row * (View::quickSwatchSize + View::rowSpacing) +
                             View::quickSwatchSize / 2);
    child->move((center - QPointF(child->width(), child->height()) / 2).toPoint());
    child->show();
    m_children.push_back(child);
}

} // namespace quillon::desktop
