#pragma once

#include "desktop/support/InputDriver.h"
#include "desktop/support/VirtualDesktop.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillon::bench {

/// A program that draws where the pointer moves, running on a desktop.
///
/// It is made ready to draw by its constructor, and ends with its holder.
class Pen {
public:
    virtual ~Pen() = default;
    /// Takes away all that was drawn.
    virtual void clear() = 0;
};

struct PenProgram {
    std::string name;
    std::function<std::unique_ptr<Pen>(test::VirtualDesktop&)> start;
};

/// The programs that can be measured here, the bare pen first. A program of others is among them
/// only when it is installed.
std::vector<PenProgram> penPrograms();

} // namespace quillon::bench
