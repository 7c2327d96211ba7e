#pragma once

#include "platform/TextField.h"

#include <QLineEdit>

namespace quillon::desktop {

/// The edit field of a content view: a line edit with the toolkit's own styling, sized and placed
/// as described.
class TextFieldWidget : public QLineEdit {
public:
    TextFieldWidget(TextField field, QWidget& parent);
    ~TextFieldWidget() override;

    int identity() const { return m_field.identity; }
    /// Takes over a newer description of the same field.
    void follow(TextField field);
    /// Makes text of what an input method is still composing.
    void finishComposing();

protected:
    void inputMethodEvent(QInputMethodEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void place();
    void takeFocusIfWanted();

    TextField m_field;
    /// Shown in the field, and no part of its text yet.
    QString m_composed;
    /// While the field goes away, the loss of its focus means nothing.
    bool m_isLeaving = false;
};

} // namespace quillon::desktop
