#pragma once

#include "platform/Screens.h"

#include <QObject>
#include <QRect>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

class QScreen;

namespace quillon::desktop {

/// The screens as Qt knows them from RandR. The application object must exist.
class QtScreens : public QObject, public Screens {
public:
    /// Where the window with the keyboard stands, in device pixels; nothing when there is none.
    using ActiveWindowFrame = std::function<std::optional<QRect>()>;

    /// The number of the display that a screen is, by the screen's name.
    using DisplayNumber = std::function<std::optional<std::uint32_t>(const std::string& name)>;

    /// Without `displayNumber` no screen tells its number.
    explicit QtScreens(ActiveWindowFrame activeWindowFrame, DisplayNumber displayNumber = {});

    std::vector<NSScreen> screens() const override;
    std::optional<NSScreen> mainScreen() const override;

    /// The global place of a device pixel, counted from the desktop's top left.
    CGPoint globalFromDevicePixel(QPoint pixel) const;

    /// Called in a later turn of the loop than the change, once for all changes of one turn.
    void setChangeHandler(std::function<void()> changed) { m_changed = std::move(changed); }

protected:
    bool event(QEvent* event) override;

private:
    void watch(QScreen* screen);
    void noteChange();
    QScreen* screenWithKeyboard() const;
    NSScreen describe(const QScreen& screen) const;

    ActiveWindowFrame m_activeWindowFrame;
    DisplayNumber m_displayNumber;
    std::function<void()> m_changed;
    bool m_isChangePending = false;
};

} // namespace quillon::desktop
