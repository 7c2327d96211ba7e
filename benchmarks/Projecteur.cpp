#include "benchmarks/Projecteur.h"

#include "desktop/support/Eventually.h"

#include <chrono>
#include <exception>
#include <stdexcept>

namespace quillon::bench {

namespace {

constexpr std::chrono::seconds kPatience{15};

/// The socket on which it takes orders stands among temporary files.
test::ChildProcess::Environment environmentOn(const test::VirtualDesktop& desktop) {
    auto environment = desktop.environment();
    environment["TMPDIR"] = environment["XDG_RUNTIME_DIR"];
    return environment;
}

} // namespace

Projecteur::Projecteur(test::VirtualDesktop& desktop)
    : m_environment(environmentOn(desktop))
    , m_process({"projecteur", "--disable-uinput"}, m_environment) {
    order("spot=off");
}

Projecteur::~Projecteur() {
    // Killed, it would leave behind what makes a later start believe that it already runs.
    try {
        takes("quit");
        m_process.waitForExit();
    } catch (const std::exception&) {
    }
}

void Projecteur::switchOn() {
    order("spot=on");
}

void Projecteur::order(const std::string& command) const {
    if (!test::eventually([&] { return takes(command); }, kPatience)) {
        throw std::runtime_error("projecteur takes no orders: " + m_process.standardError());
    }
}

bool Projecteur::takes(const std::string& command) const {
    test::ChildProcess messenger({"projecteur", "-c", command}, m_environment);
    messenger.waitForExit();
    // Its exit status does not tell.
    return messenger.standardError().find("Error") == std::string::npos;
}

} // namespace quillon::bench
