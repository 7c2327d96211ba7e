#include "desktop/qt/settings/SwatchWidget.h"

#include "desktop/qt/QtConversions.h"
#include "desktop/qt/widgets/FocusRing.h"
#include "desktop/qt/widgets/PaintSwatch.h"

#include <QColorDialog>
#include <QPainter>
#include <QSignalBlocker>

#include <utility>

namespace quillon::desktop {

namespace {

constexpr qreal kCornerRadius = 5;

/// In double precision: single falls short of the hundredths and of the steps of 255 that the
/// palette shows truncated.
Color fromQColor(const QColor& color) {
    const QRgba64 parts = color.rgba64();
    const auto part = [](quint16 value) { return value / 65535.0; };
    return {part(parts.red()), part(parts.green()), part(parts.blue()), part(parts.alpha())};
}

} // namespace

SwatchWidget::SwatchWidget(ColorPickerSwatch swatch, QWidget* parent)
    : QAbstractButton(parent)
    , m_swatch(std::move(swatch))
    , m_shown(m_swatch.color.get()) {
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(sizeHint());
    connect(this, &QAbstractButton::clicked, this, [this] { openPanel(); });
}

void SwatchWidget::refresh() {
    const Color present = m_swatch.color.get();
    if (present == m_shown) {
        return;
    }
    m_shown = present;
    update();
    if (m_panel && m_panel->currentColor() != toQColor(present)) {
        const QSignalBlocker silence(m_panel);
        m_panel->setCurrentColor(toQColor(present));
    }
}

QSize SwatchWidget::sizeHint() const {
    return (QSizeF(ColorPickerSwatch::size.width, ColorPickerSwatch::size.height) +
            QSizeF(2, 2) * FocusRing::room)
        .toSize();
}

void SwatchWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect well =
        rect().adjusted(FocusRing::room, FocusRing::room, -FocusRing::room, -FocusRing::room);
    paintSwatch(painter, well, kCornerRadius, toQColor(m_shown), palette());
    if (FocusRing::isShown(*this)) {
        FocusRing::paint(painter, well, kCornerRadius, palette());
    }
}

void SwatchWidget::openPanel() {
    if (!m_panel) {
        m_panel = new QColorDialog(toQColor(m_shown), this);
        m_panel->setAttribute(Qt::WA_DeleteOnClose);
        m_panel->setOption(QColorDialog::ShowAlphaChannel, ColorPickerSwatch::supportsOpacity);
        m_panel->setOption(QColorDialog::DontUseNativeDialog);
        // The colour changes as the panel is moved: there is nothing to confirm or to take back.
        m_panel->setOption(QColorDialog::NoButtons);
        m_panel->setWindowTitle(QStringLiteral("Colors"));
        connect(m_panel, &QColorDialog::currentColorChanged, this,
                [this](const QColor& color) { m_swatch.color.set(fromQColor(color)); });
    }
    m_panel->show();
    m_panel->raise();
    m_panel->activateWindow();
}

} // namespace quillon::desktop
