#include "desktop/qt/PlacedChildren.h"

#include "desktop/qt/QtConversions.h"
#include "desktop/qt/TextFieldWidget.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <utility>

namespace quillon::desktop {

PlacedChildren::PlacedChildren(QWidget& parent, ControlsWidget::BodyDrag bodyDrag)
    : m_parent(parent)
    , m_bodyDrag(std::move(bodyDrag)) {}

PlacedChildren::~PlacedChildren() = default;

void PlacedChildren::bringUpToDate(ContentView& view) {
    updateTextField(view);
    updateControls(view);
}

void PlacedChildren::setComposited(bool composited) {
    m_isComposited = composited;
    if (m_controls) {
        m_controls->setComposited(composited);
    }
}

QRegion PlacedChildren::outline() const {
    QRegion outline;
    if (m_controls) {
        outline += m_controls->outline().translated(m_controls->pos());
    }
    if (m_textField) {
        outline += m_textField->geometry();
    }
    return outline;
}

bool PlacedChildren::reachInto(const QRegion& region) const {
    const auto stands = [&region](const QWidget* widget) {
        return widget && widget->isVisible() && region.intersects(widget->geometry());
    };
    return stands(m_controls.get()) || stands(m_textField.get());
}

void PlacedChildren::finishComposing() {
    if (m_textField) {
        m_textField->finishComposing();
    }
}

bool PlacedChildren::takeKey(QKeyEvent& event) {
    if (!m_textField || m_textField->hasFocus()) {
        return false;
    }
    m_textField->setFocus(Qt::OtherFocusReason);
    if (!m_textField->hasFocus()) {
        return false;
    }
    QCoreApplication::sendEvent(m_textField.get(), &event);
    return true;
}

void PlacedChildren::updateTextField(ContentView& view) {
    auto field = view.textField();
    const bool stood = hasTextField();
    if (m_textField && (!field || field->identity != m_textField->identity())) {
        m_textField.reset();
    }
    if (field) {
        if (m_textField) {
            m_textField->follow(*std::move(field));
        } else {
            m_textField = std::make_unique<TextFieldWidget>(*std::move(field), m_parent);
        }
    }
    if (onTextFieldCameOrWent && stood != hasTextField()) {
        onTextFieldCameOrWent();
    }
}

void PlacedChildren::updateControls(ContentView& view) {
    const auto placed = view.placedControls();
    if (m_controls && (!placed || placed->view.get() != m_controls->view())) {
        m_controls.reset();
    }
    if (placed && !m_controls) {
        m_controls = ControlsWidget::make(placed->view, m_parent);
        m_controls->setComposited(m_isComposited);
        m_controls->bodyDrag = m_bodyDrag;
    }
    if (placed) {
        m_controls->place(toQPointF(placed->center));
    }
    tellControlsPlace();
}

void PlacedChildren::tellControlsPlace() {
    const QRect place =
        m_controls ? devicePixels(fromQRectF(m_controls->body().translated(m_controls->pos())),
                                  m_parent.devicePixelRatio())
                   : QRect();
    if (std::exchange(m_controlsPlace, place) != place && onControlsPlaced) {
        onControlsPlaced(place);
    }
}

} // namespace quillon::desktop
