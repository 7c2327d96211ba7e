#include "desktop/qt/settings/RecorderWidget.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/QtConversions.h"
#include "desktop/qt/widgets/FocusRing.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWindow>

#include <chrono>
#include <utility>

namespace quillon::desktop {

namespace {

constexpr std::chrono::milliseconds kGrabAgain{30};

} // namespace

RecorderWidget::RecorderWidget(const ShortcutRecorderView& view, KeyReader readKey, QWidget* parent)
    : QAbstractButton(parent)
    , m_control(view.makeControl())
    , m_readKey(std::move(readKey)) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QString::fromUtf8(
        ShortcutRecorderControl::accessibilityLabel.data(),
        static_cast<qsizetype>(ShortcutRecorderControl::accessibilityLabel.size())));
    m_control->makeFirstResponder = [this] { setFocus(Qt::MouseFocusReason); };
    connect(this, &QAbstractButton::clicked, this, [this] {
        // An assistive tool reaches no more than the pointer does.
        if (!testAttribute(Qt::WA_TransparentForMouseEvents)) {
            m_control->mouseDown();
        }
    });
    m_control->setNeedsDisplay = [this] { update(); };
}

RecorderWidget::~RecorderWidget() {
    setGrabbed(false);
}

void RecorderWidget::follow(const ShortcutRecorderView& view) {
    view.updateControl(*m_control);
    updateGrab();
}

bool RecorderWidget::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // A combination that means something to the window is to be recorded, not carried out.
        event->setAccepted(m_control->isRecording());
        return true;
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
        updateGrab();
        break;
    default:
        break;
    }
    return QAbstractButton::event(event);
}

bool RecorderWidget::focusNextPrevChild(bool next) {
    return !m_control->isRecording() && QAbstractButton::focusNextPrevChild(next);
}

void RecorderWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal radius = ShortcutRecorderControl::cornerRadius;
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(m_control->fill(), palette()));
    painter.drawRoundedRect(rect(), radius, radius);

    const auto& title = m_control->titleField();
    QFont font = systemFont(ShortcutRecorderControl::TitleField::fontSize);
    font.setWeight(QFont::Medium);
    painter.setFont(font);
    painter.setPen(toQColor(title.textColor, palette()));
    painter.drawText(rect(), Qt::AlignCenter, QString::fromStdString(title.stringValue));
    if (FocusRing::isShown(*this) && !m_control->isRecording()) {
        FocusRing::paintInside(painter, rect(), radius, palette());
    }
}

void RecorderWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_control->mouseDown();
    }
}

void RecorderWidget::mouseReleaseEvent(QMouseEvent* event) {
    // The press was the click.
    event->accept();
}

void RecorderWidget::keyPressEvent(QKeyEvent* event) {
    // Whatever the control makes of it, the key goes no further.
    event->accept();
    if (isPressedBy(*event)) {
        click();
    } else if (const auto key = m_readKey(*event)) {
        m_control->keyDown(*key);
    }
}

bool RecorderWidget::isPressedBy(const QKeyEvent& key) const {
    return !m_control->isRecording() && FocusRing::isShown(*this) && key.key() == Qt::Key_Space &&
           key.modifiers() == Qt::NoModifier && !key.isAutoRepeat();
}

void RecorderWidget::keyReleaseEvent(QKeyEvent* event) {
    event->accept();
}

void RecorderWidget::focusInEvent(QFocusEvent* event) {
    QAbstractButton::focusInEvent(event);
    updateGrab();
}

void RecorderWidget::focusOutEvent(QFocusEvent* event) {
    QAbstractButton::focusOutEvent(event);
    updateGrab();
}

void RecorderWidget::hideEvent(QHideEvent* event) {
    QAbstractButton::hideEvent(event);
    setGrabbed(false);
}

void RecorderWidget::updateGrab() {
    setGrabbed(m_control->isRecording() && hasFocus() && isActiveWindow() && isVisible());
}

void RecorderWidget::setGrabbed(bool grabbed) {
    if (m_hasGrab == grabbed) {
        return;
    }
    QWindow* shown = window()->windowHandle();
    const bool done = shown && shown->setKeyboardGrabEnabled(grabbed);
    m_hasGrab = grabbed && done;
    if (grabbed && !done) {
        // Another program holds the keyboard at the moment; that passes.
        QTimer::singleShot(kGrabAgain, this, [this] { updateGrab(); });
    }
}

} // namespace quillon::desktop
