#pragma once

#include "platform/Workspace.h"

namespace quillon::desktop {

/// The session's own choice of programs, by way of Qt.
class QtWorkspace : public Workspace {
public:
    bool openURL(const std::string& url) override;
};

} // namespace quillon::desktop
