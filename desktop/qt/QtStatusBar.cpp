#include "desktop/qt/QtStatusBar.h"

#include "desktop/qt/QtStatusItem.h"

namespace quillon::desktop {

std::unique_ptr<StatusItem> QtStatusBar::statusItemWithLength(CGFloat /*length*/) {
    return std::make_unique<QtStatusItem>(m_area, m_application);
}

} // namespace quillon::desktop
