#include "desktop/qt/QtFileWatch.h"

#include <QSocketNotifier>

#include <memory>
#include <utility>

namespace quillon::desktop {

namespace {

/// The watch may be dropped from inside of its own call.
struct DeleteLater {
    void operator()(QSocketNotifier* notifier) const {
        notifier->setEnabled(false);
        notifier->deleteLater();
    }
};

} // namespace

FileWatch qtFileWatch() {
    return [](int file, std::function<void()> whenReadable) {
        std::shared_ptr<QSocketNotifier> notifier(new QSocketNotifier(file, QSocketNotifier::Read),
                                                  DeleteLater());
        QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                         [whenReadable = std::move(whenReadable)] { whenReadable(); });
        return Cancellable([notifier = std::move(notifier)]() mutable { notifier.reset(); });
    };
}

} // namespace quillon::desktop
