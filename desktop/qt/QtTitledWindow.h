#pragma once

#include "platform/Application.h"
#include "platform/Window.h"
#include "platform/WindowBackend.h"

#include <QWidget>

#include <functional>
#include <memory>

class QVBoxLayout;

namespace quillon::desktop {

/// Lays out a root view made of controls, as a widget that the window then owns. The widget's
/// actions are the buttons of the window's tool bar.
using ControlsLayout = std::function<std::unique_ptr<QWidget>(ControlsView&)>;

/// A titled window of the system, in the window manager's hands. Above its content it has one line
/// with the program's menu and the tool bar; the window's frame is that of the content alone.
///
/// When the user closes it, the system hears of it and may destroy it at once.
class QtTitledWindow : public WindowBackend {
public:
    /// All outlive this.
    QtTitledWindow(Window& window, Application& application, const ControlsLayout& layOut);
    ~QtTitledWindow() override;

    void setFrame(const CGRect& frame) override;
    void display() override;
    /// A titled window always takes the mouse.
    void setIgnoresMouseEvents(bool /*ignores*/) override {}
    /// A titled window has controls for its content.
    void setContentView(const std::shared_ptr<HostingView>& /*view*/) override {}
    void setContentViewController(const std::shared_ptr<HostingController>& controller) override;
    void orderFrontRegardless() override;
    void makeKeyAndOrderFront() override;
    void orderOut() override;

private:
    class Widget;

    /// The fixed properties of the window, which may be set up to its first showing.
    void prepare();
    QWidget* makeHeader(const QWidget& content);

    Window& m_window;
    Application& m_application;
    const ControlsLayout& m_layOut;
    std::unique_ptr<Widget> m_widget;
    int m_headerHeight = 0;
    bool m_isPrepared = false;
};

} // namespace quillon::desktop
