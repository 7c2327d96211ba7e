#pragma once

#include "foundation/Geometry.h"
#include "platform/ControlsView.h"
#include "platform/Damage.h"
#include "platform/GraphicsContext.h"
#include "platform/StampedPicture.h"
#include "platform/TextField.h"

#include <functional>
#include <optional>
#include <utility>

namespace quillon {

/// The root view of a window: state that paints itself, takes the pointer and may hold a text
/// field. Coordinates are view coordinates, in points.
///
/// One direction: an event changes state, the view asks for an update, and one turn later the host
/// takes the damage, paints it, and brings the text field up to date.
class ContentView {
public:
    virtual ~ContentView() = default;

    /// The host hands in how it wants to be asked for an update; it coalesces requests.
    void setUpdateRequest(std::function<void()> request) { m_updateRequest = std::move(request); }

    /// The window has come on the screen.
    virtual void onAppear() {}
    /// How far the picture reaches beyond the window's frame on every side, in points. The host
    /// makes room for it on the screen, and the view's size is larger by it.
    virtual CGFloat overflow() const { return 0; }
    /// The view's size, and the device pixels to a point.
    virtual void layout(CGSize size, CGFloat scale) = 0;

    /// A press, moves and a release of the primary button. A press that the view does not take is
    /// followed by moves and a release all the same.
    virtual void mouseDown(CGPoint /*location*/) {}
    virtual void mouseDragged(CGPoint /*location*/) {}
    virtual void mouseUp(CGPoint /*location*/) {}

    /// Where the picture has changed since the last call: what `setNeedsDisplay` was told, unless
    /// the view finds it out only now.
    virtual Damage takeDamage() { return std::exchange(m_damage, {}); }
    /// Paints what stands in `rect`, over full transparency. `rect` is made of whole device pixels
    /// and clips the context.
    virtual void paint(GraphicsContext& context, const CGRect& rect) = 0;
    /// The whole picture, pixel for pixel what `paint` paints, where it is as plain as this: a host
    /// may put it together in less time than it takes to paint.
    virtual std::optional<StampedPicture> stampedPicture() { return std::nullopt; }

    virtual std::optional<TextField> textField() { return std::nullopt; }

    /// A view of controls that stands on this one, and takes the pointer where it stands.
    virtual std::optional<PlacedControls> placedControls() { return std::nullopt; }
    /// A press, moves and a release on that view, beside its controls. In this view's coordinates.
    virtual void controlsMouseDown(CGPoint /*location*/) {}
    virtual void controlsMouseDragged(CGPoint /*location*/) {}
    virtual void controlsMouseUp(CGPoint /*location*/) {}

protected:
    /// The picture has changed in that rectangle, or in that damage.
    template <typename Area>
    void setNeedsDisplay(const Area& area) {
        m_damage.add(area);
        setNeedsUpdate();
    }
    void setNeedsUpdate() const {
        if (m_updateRequest) {
            m_updateRequest();
        }
    }

private:
    std::function<void()> m_updateRequest;
    Damage m_damage;
};

} // namespace quillon
