#include "desktop/qt/PopupWatch.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace quillon::desktop {

PopupWatch::PopupWatch(std::function<void()> onClosed)
    : m_onClosed(std::move(onClosed)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool PopupWatch::isPopupOpen() {
    return QApplication::activePopupWidget() != nullptr;
}

bool PopupWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide && watched->isWidgetType() &&
        static_cast<QWidget*>(watched)->windowType() == Qt::Popup) {
        QTimer::singleShot(0, this, [this] {
            if (!isPopupOpen()) {
                m_onClosed();
            }
        });
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillon::desktop
