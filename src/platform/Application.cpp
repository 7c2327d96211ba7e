#include "platform/Application.h"

namespace quillon {

bool Application::sendAction(std::string_view selector) {
    if (m_delegate && m_delegate->perform(selector)) {
        return true;
    }
    if (selector == "terminate:") {
        terminate();
        return true;
    }
    return false;
}

void Application::addWindow(Window& window) {
    m_windows.push_back(&window);
}

void Application::removeWindow(Window& window) {
    std::erase(m_windows, &window);
}

} // namespace quillon
