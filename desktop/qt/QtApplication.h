#pragma once

#include "platform/Application.h"

namespace quillon::desktop {

/// The program on Qt's application object, which must exist.
class QtApplication : public Application {
public:
    /// Nothing to do on X11: a window decides for itself whether a task bar lists it, and the
    /// program has no menu bar.
    void setActivationPolicy(ActivationPolicy policy) override;
    /// Asks for the keyboard for the program's ordinary windows; the window manager decides in
    /// either case.
    void activate(bool ignoringOtherApps) override;
    void terminate() override;
};

} // namespace quillon::desktop
