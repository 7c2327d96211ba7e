#include "shortcuts/HotkeyIDCounter.h"

#include "foundation/FatalError.h"

#include <limits>

namespace quillon {

std::uint32_t HotkeyIDCounter::take() {
    if (m_next == std::numeric_limits<std::uint32_t>::max()) {
        fatalError("the hot-key ids are used up");
    }
    return m_next++;
}

} // namespace quillon
