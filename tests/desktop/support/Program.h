#pragma once

#include "desktop/support/ChildProcess.h"
#include "desktop/support/VirtualDesktop.h"

#include <memory>

namespace quillon::test {

/// The real program on a desktop. It is ready once its shortcuts are live, of which the store must
/// have left the one that clears at its default.
class Program {
public:
    /// Starts it and waits until it is ready.
    explicit Program(VirtualDesktop& desktop);
    /// Where the program stands that is tested.
    static std::string path();

    ChildProcess& process() { return *m_process; }
    bool isReady() const;

    /// Ends it as a session would, and answers its exit status.
    std::optional<int> terminate();
    /// Ends it with no chance to do anything.
    void kill();

private:
    VirtualDesktop& m_desktop;
    std::unique_ptr<ChildProcess> m_process;
};

} // namespace quillon::test
