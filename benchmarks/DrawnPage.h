#pragma once

#include "desktop/support/InputDriver.h"
#include "desktop/support/ProbeWindow.h"
#include "desktop/support/Program.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/VirtualDesktop.h"

#include <random>

namespace quillon::bench {

/// The program with annotation on and a page of finished strokes, all drawn by hand: by events of
/// the pointer, as fast as they are taken. The upper part of the screen stays free of them.
class DrawnPage {
public:
    DrawnPage();

    test::VirtualDesktop& desktop() { return m_desktop; }
    pid_t process() { return m_program.process().pid(); }

    /// Draws short strokes until there are so many.
    void fillUpTo(int strokes);
    /// Draws a stroke across the whole page.
    void drawLongStroke();

    /// These return at once, while the program may be about to start.
    void undo();
    void clear();
    /// Goes over the page with the eraser and takes up the pen again. Nothing brings back what it
    /// takes; each of the first five passes goes where none has gone.
    void erase();

    /// The whiteboard begins blank.
    void turnToWhiteboard();

    /// Waits until the program has nothing left to do.
    void settle();

private:
    void drawShortStroke();
    void chooseTool(int entry);
    /// Sends a stroke without a look at what becomes of it.
    void sendStroke(const std::vector<test::Pixel>& places);
    void send(std::uint8_t type, std::uint8_t button, test::Pixel place = {});

    test::VirtualDesktop m_desktop;
    test::ProbeWindow m_paper;
    test::InputDriver m_input{m_desktop.connection()};
    test::ScreenReader m_screen{m_desktop.connection()};
    test::Program m_program;
    std::mt19937 m_random{1};
    int m_strokes = 0;
    int m_passesOfEraser = 0;
};

} // namespace quillon::bench
