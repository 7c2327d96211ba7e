#pragma once

#include "desktop/qt/toolbar/MenuFocus.h"
#include "desktop/qt/toolbar/PopupMenu.h"
#include "toolbar/FloatingToolbarView.h"

#include <functional>

class QLabel;

namespace quillon::desktop {

class BoundSlider;

/// One of the palette's menus on the screen. A choice closes it; the slider leaves it open.
class PaletteMenuWidget : public PopupMenu {
public:
    PaletteMenuWidget(const PaletteMenu& menu, QWidget& parent);

    /// Takes over a newer description of the same menu, while it is open.
    void follow(const PaletteMenu& menu);

    /// Brings the keyboard to what is chosen now, or to the first control.
    void startWithKeyboard();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build(const ToolMenu& menu);
    void build(const ColorMenu& menu);
    void build(const LineWidthMenu& menu);
    void addWidget(QWidget* widget);
    /// Closes the menu and then acts, so that nothing new opens below it.
    std::function<void()> choosing(std::function<void()> action);

    MenuFocus m_focus{*this};
    /// The control, or the entry, with which the keyboard starts.
    QWidget* m_firstControl = nullptr;
    QAction* m_firstEntry = nullptr;
    QLabel* m_heading = nullptr;
    BoundSlider* m_slider = nullptr;
};

} // namespace quillon::desktop
