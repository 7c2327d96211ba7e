#include "desktop/qt/widgets/Label.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/TextStyles.h"

#include <QEvent>
#include <QGuiApplication>

namespace quillon::desktop {

Label::Label(const std::string& text, const QFont& font, const SystemColor& color)
    : m_color(color) {
    setTextFormat(Qt::PlainText);
    setFont(font);
    setText(QString::fromStdString(text));
    applyColor();
}

Label* Label::caption(const std::string& text) {
    return new Label(text, textStyle::caption(), SystemColor::secondaryLabelColor);
}

void Label::setColor(const SystemColor& color) {
    m_color = color;
    applyColor();
}

void Label::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        applyColor();
    }
}

void Label::applyColor() {
    const QColor color = toQColor(m_color, QGuiApplication::palette());
    // To set a palette is a change of the palette in its turn.
    if (palette().color(QPalette::WindowText) != color) {
        QPalette own;
        own.setColor(QPalette::WindowText, color);
        setPalette(own);
    }
}

} // namespace quillon::desktop
