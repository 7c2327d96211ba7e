#pragma once

#include "platform/Application.h"

namespace quillon::desktop {

/// The program on Qt's application object, which must exist.
class QtApplication : public Application {
public:
    /// Nothing to do on X11: a window decides for itself whether a task bar lists it, and the
    /// program has no menu bar.
    void setActivationPolicy(ActivationPolicy policy) override;
    /// Raises the program's ordinary windows. The keyboard is for the window alone that asks for it
    /// next: a window manager that was asked here as well would answer in the middle of the text
    /// that is being typed over the desktop.
    void activate(bool ignoringOtherApps) override;
    void terminate() override;
};

} // namespace quillon::desktop
