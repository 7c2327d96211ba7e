#include "desktop/qt/QtWorkspace.h"

#include <QDesktopServices>
#include <QUrl>

namespace quillon::desktop {

bool QtWorkspace::openURL(const std::string& url) {
    return QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
}

} // namespace quillon::desktop
