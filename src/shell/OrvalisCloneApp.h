#pragma once

#include "annotation/AnnotationCanvas.h"
#include "model/AppSettings.h"
#include "platform/Menu.h"
#include "shell/AppDelegate.h"

namespace quillon {

/// The entry of the program: what the host makes once its ports stand, and keeps to the end.
class OrvalisCloneApp {
public:
    OrvalisCloneApp();
    ~OrvalisCloneApp();
    OrvalisCloneApp(const OrvalisCloneApp&) = delete;
    OrvalisCloneApp& operator=(const OrvalisCloneApp&) = delete;

    AppDelegate& appDelegate() { return m_appDelegate; }
    AppSettings& appSettings() { return m_appSettings; }
    /// Not the one that is drawn in, which the overlay's root view holds. Nothing reads it.
    DrawingState& drawingState() { return m_drawingState; }

    /// The menu "Annotation" for windows that carry a menu bar.
    Menu commandMenu() const;

private:
    AppDelegate m_appDelegate;
    AppSettings& m_appSettings;
    DrawingState m_drawingState;
};

} // namespace quillon
