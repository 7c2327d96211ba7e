#pragma once

#include <QObject>

#include <functional>

namespace quillon::desktop {

/// Tells when a menu or another popup of the program has closed and none is left. It sees every
/// event of the program, so it should not live longer than somebody wants to know.
class PopupWatch : public QObject {
public:
    /// `onClosed` is called in a later turn.
    explicit PopupWatch(std::function<void()> onClosed);

    static bool isPopupOpen();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_onClosed;
};

} // namespace quillon::desktop
