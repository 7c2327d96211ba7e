#pragma once

#include "desktop/x11/PointerMotion.h"

#include <QAbstractNativeEventFilter>
#include <QPointF>

#include <cstdint>
#include <functional>
#include <optional>

class QMouseEvent;
class QWidget;

namespace quillon::desktop {

/// Takes the motions of a drag over a widget that fills its window straight from the server's
/// events, before the toolkit brings them its long way round.
///
/// No motion overtakes other input:
/// 1. a press that the toolkit has delivered opens the short way, since all input before it has
///    then been delivered;
/// 2. anything but a motion of the drag closes it, and goes the toolkit's way;
/// 3. so does the next motion, and with its delivery the short way is open again;
/// 4. the release ends the drag.
///
/// Where a motion still comes twice, of the pointer and of the device that moves it, the toolkit
/// would drop the second, and so does this.
class DirectDrag : public QAbstractNativeEventFilter {
public:
    /// Takes a place in coordinates of the widget.
    using Move = std::function<void(QPointF)>;

    /// `inputExtension` is the number by which the server's events name it; with 0, every motion
    /// goes the toolkit's way.
    DirectDrag(const QWidget& widget, std::uint8_t inputExtension, Move move);
    ~DirectDrag() override;
    DirectDrag(const DirectDrag&) = delete;
    DirectDrag& operator=(const DirectDrag&) = delete;

    /// The toolkit has delivered the press, or a motion, of a drag.
    void delivered(const QMouseEvent& event);
    void end();

    /// Before a release the toolkit makes up a motion to its place when it has not seen the last
    /// ones itself.
    bool isMadeUp(const QMouseEvent& motion) const;

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    bool isOfDrag(const PointerMotion& motion) const;

    const QWidget& m_widget;
    std::uint8_t m_inputExtension;
    Move m_move;
    bool m_isInstalled = false;
    bool m_isOpen = false;
    /// The place of the last motion that came the short way.
    std::optional<QPointF> m_lastPlace;
};

} // namespace quillon::desktop
