#pragma once

#include <xcb/xproto.h>

namespace quillon::desktop {

inline bool equal(const xcb_rectangle_t& a, const xcb_rectangle_t& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

/// True when no pixel of `inner` lies outside of `outer`.
inline bool contains(const xcb_rectangle_t& outer, const xcb_rectangle_t& inner) {
    return outer.x <= inner.x && outer.y <= inner.y &&
           inner.x + inner.width <= outer.x + outer.width &&
           inner.y + inner.height <= outer.y + outer.height;
}

/// True when they have a pixel in common.
inline bool overlap(const xcb_rectangle_t& a, const xcb_rectangle_t& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height &&
           b.y < a.y + a.height;
}

} // namespace quillon::desktop
