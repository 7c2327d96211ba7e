#pragma once

#include <string>

namespace quillon {

/// The desktop's services around the program.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Opens an address in whatever program is in charge of its scheme; false when none is.
    virtual bool openURL(const std::string& url) = 0;
};

} // namespace quillon
