#pragma once

#include "desktop/support/VirtualDesktop.h"

#include <sys/types.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillon::bench {

/// A program that can draw where the pointer moves, running on a desktop. It ends with its holder.
class Pen {
public:
    virtual ~Pen() = default;
    virtual pid_t process() const = 0;
    /// Takes the pointer to draw with; done when the call returns. Called once.
    virtual void switchOn() = 0;
    /// Takes away all that was drawn.
    virtual void clear() = 0;
};

struct PenProgram {
    enum class Role { floor, own, peer };

    std::string name;
    Role role;
    /// Done when the program can be switched on.
    std::function<std::unique_ptr<Pen>(test::VirtualDesktop&)> start;
};

/// The programs that can be measured here: the bare pen first, the one of this project, and of
/// others those that are installed.
std::vector<PenProgram> penPrograms();

/// The one of this project with its palette hidden.
PenProgram penWithoutPalette();

} // namespace quillon::bench
