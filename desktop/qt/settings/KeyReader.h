#pragma once

#include "platform/KeyEvent.h"

#include <functional>
#include <optional>

class QKeyEvent;

namespace quillon::desktop {

struct KeyboardMap;

/// Tells what a key event of the toolkit is by its place on the keyboard, or nothing for a key that
/// has no virtual key code, as a modifier key alone.
using KeyReader = std::function<std::optional<KeyEvent>(const QKeyEvent&)>;

/// Reads a key event by the keyboard at hand.
std::optional<KeyEvent> readKey(const QKeyEvent& event, const KeyboardMap& keyboard);

} // namespace quillon::desktop
