#pragma once

#include "desktop/support/ChildProcess.h"
#include "desktop/support/VirtualDesktop.h"

namespace quillon::bench {

/// A spotlight of another project, with no device but the pointer.
class Projecteur {
public:
    /// Ready to be switched on when the constructor returns.
    explicit Projecteur(test::VirtualDesktop& desktop);
    ~Projecteur();
    Projecteur(const Projecteur&) = delete;
    Projecteur& operator=(const Projecteur&) = delete;

    pid_t process() const { return m_process.pid(); }
    void switchOn();

private:
    /// A second start hands its order to the running program.
    bool takes(const std::string& command) const;
    void order(const std::string& command) const;

    test::ChildProcess::Environment m_environment;
    test::ChildProcess m_process;
};

} // namespace quillon::bench
