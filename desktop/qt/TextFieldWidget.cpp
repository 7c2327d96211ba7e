#include "desktop/qt/TextFieldWidget.h"

#include "desktop/qt/QtConversions.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include <utility>

namespace quillon::desktop {

TextFieldWidget::TextFieldWidget(TextField field, QWidget& parent)
    : QLineEdit(&parent)
    , m_field(std::move(field)) {
    setAccessibleName(tr("Annotation text"));
    setFont(systemFont(m_field.fontSize));
    setFixedWidth(qRound(m_field.width));
    setText(QString::fromStdString(m_field.text.get()));
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_field.text.set(text.toStdString()); });
    place();
    show();
    m_field.onAppear();
}

TextFieldWidget::~TextFieldWidget() {
    m_isLeaving = true;
}

void TextFieldWidget::follow(TextField field) {
    m_field = std::move(field);
    place();
    takeFocusIfWanted();
}

void TextFieldWidget::finishComposing() {
    // Most input methods hand their text over when they are asked to; of the others it is taken.
    QGuiApplication::inputMethod()->commit();
    if (!m_composed.isEmpty()) {
        QInputMethodEvent taken;
        taken.setCommitString(std::exchange(m_composed, {}));
        QCoreApplication::sendEvent(this, &taken);
        QGuiApplication::inputMethod()->reset();
    }
}

void TextFieldWidget::inputMethodEvent(QInputMethodEvent* event) {
    m_composed = event->preeditString();
    QLineEdit::inputMethodEvent(event);
}

void TextFieldWidget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_field.onSubmit();
        break;
    case Qt::Key_Escape:
        m_field.onExitCommand();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void TextFieldWidget::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (!m_field.isFocused.get()) {
        m_field.isFocused.set(true);
    }
}

void TextFieldWidget::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // The field's own context menu only borrows the keyboard.
    if (!m_isLeaving && event->reason() != Qt::PopupFocusReason && m_field.isFocused.get()) {
        m_field.isFocused.set(false);
    }
}

void TextFieldWidget::place() {
    QPalette colors = palette();
    colors.setColor(QPalette::Text, toQColor(m_field.textColor));
    setPalette(colors);
    const QSize natural(qRound(m_field.width), sizeHint().height());
    const QPointF center = toQPointF(m_field.center);
    setGeometry(
        QRectF(center - QPointF(natural.width(), natural.height()) / 2, natural).toAlignedRect());
    setFixedSize(natural);
}

void TextFieldWidget::takeFocusIfWanted() {
    if (m_field.isFocused.get() && !hasFocus()) {
        setFocus(Qt::OtherFocusReason);
    }
}

} // namespace quillon::desktop
