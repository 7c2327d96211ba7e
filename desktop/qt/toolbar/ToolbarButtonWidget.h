#pragma once

#include "desktop/qt/toolbar/PaletteMenuWidget.h"
#include "foundation/Spring.h"
#include "toolbar/FloatingToolbarView.h"

#include <QAbstractButton>
#include <QBasicTimer>
#include <QElapsedTimer>

#include <memory>

namespace quillon::desktop {

/// A button of the palette on the screen. One with a menu opens it at the press, and runs its own
/// action by the secondary button; any other runs its action by a click.
///
/// While its menu is open the button neither loses nor regains the pointer, though the toolkit says
/// so; where the pointer is then comes to be known when the menu closes.
class ToolbarButtonWidget : public QAbstractButton {
public:
    ToolbarButtonWidget(PaletteControl control, QWidget& parent);
    ~ToolbarButtonWidget() override;

    /// Takes over a newer description of the same control.
    void follow(PaletteControl control);

    bool hasMenu() const { return m_control.menu.has_value(); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    enum class OpenedBy { pointer, keyboard };
    void showMenu(OpenedBy by);
    QPoint menuPlace() const;
    void menuClosed();
    void press();
    void release();
    void followPress();
    double now() const;
    void paintFace(QPainter& painter) const;
    QFont captionFont(const QString& caption) const;

    PaletteControl m_control;
    std::unique_ptr<PaletteMenuWidget> m_menu;
    Spring m_scale{ToolbarButton::springResponse, ToolbarButton::springDampingFraction, 1};
    QElapsedTimer m_clock;
    QBasicTimer m_frames;
    /// The keyboard was brought here with keys, and not by the window system.
    bool m_showsFocus = false;
    bool m_isPointerInside = false;
};

} // namespace quillon::desktop
