#include "shell/OrvalisCloneApp.h"

#include "platform/Host.h"
#include "shell/StatusMenu.h"

namespace quillon {

OrvalisCloneApp::OrvalisCloneApp()
    : m_appSettings(AppSettings::shared()) {
    Host::current().application().setDelegate(&m_appDelegate);
    Host::current().application().setMainMenu(commandMenu());
}

OrvalisCloneApp::~OrvalisCloneApp() {
    Host::current().application().setDelegate(nullptr);
}

Menu OrvalisCloneApp::commandMenu() const {
    return annotationCommandMenu();
}

} // namespace quillon
