#pragma once

#include "platform/SCStream.h"

#include <string>

namespace quillon::desktop {

/// Of every error of a capture on X11, where nobody can refuse one.
inline constexpr const char* x11ErrorDomain = "X11DisplayErrorDomain";

inline CaptureError captureError(const std::string& text) {
    return {x11ErrorDomain, text};
}

inline CaptureError noAnswerFrom(const std::string& displayName) {
    return captureError("The X server " + displayName + " does not answer.");
}

} // namespace quillon::desktop
