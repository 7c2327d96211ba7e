#pragma once

namespace quillon::desktop {

/// Tells assistive programs what the palette's own controls are, which the toolkit cannot know: the
/// palette a tool bar, its buttons buttons or buttons with a menu, the wheel a colour chooser, and
/// the value of a slider in the terms of what it is bound to. Does it once, however often it is
/// called.
void describePaletteToAssistiveTools();

} // namespace quillon::desktop
