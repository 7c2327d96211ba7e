#pragma once

#include "benchmarks/Statistics.h"

#include "desktop/support/Canvas.h"
#include "desktop/support/InputDriver.h"
#include "desktop/support/Program.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/VirtualDesktop.h"

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillon::bench {

/// A program that shows a part of the screen, twice as large.
struct Magnifier {
    std::string name;
    /// Empty for the lens of this project.
    std::vector<std::string> command = {};
    /// Pressed once its window is there.
    std::vector<std::string> keys = {};
};

/// A window that plays a film, with the pointer on it, and a magnifier that shows it elsewhere.
class FilmScene {
public:
    enum class Pointer {
        atRest,
        /// By a pixel with each frame of the film.
        moving,
    };

    FilmScene(const test::VirtualDesktop::Options& screen, const Magnifier& magnifier);

    /// From a change below the pointer to its pixel in the magnifier, in milliseconds.
    Samples timeChanges(int changes);

    struct Film {
        /// Frames a second that stood on the screen, of sixty.
        double played = 0;
        /// Those that stood in the magnifier.
        double shown = 0;
        /// Of one core, in percent.
        double load = 0;

        /// Milliseconds of a core for a frame in the magnifier.
        double cost() const { return 10 * load / shown; }
    };
    /// Plays and looks on.
    Film playFilm(int seconds, Pointer pointer);

    /// Of the magnifier, in a time in which nothing happens.
    long wakeUpsAtRest(int seconds);

private:
    using Clock = std::chrono::steady_clock;

    void startLens();
    void startOther(const Magnifier& magnifier);
    std::vector<xcb_window_t> windows();
    void moveWindowAside();
    bool showsChange();

    void show(std::uint32_t frame);
    void movePointer(std::uint32_t frame);
    void play(int seconds, Clock::time_point start, Pointer pointer);
    test::Rgb seen() const;

    test::VirtualDesktop m_desktop;
    test::Canvas m_film;
    std::optional<test::Program> m_program;
    /// Of its own: the film is played beside the looks at it.
    test::XConnection m_handConnection{m_desktop.display()};
    test::InputDriver m_hand{m_handConnection};
    test::ScreenReader m_screen{m_desktop.connection()};
    pid_t m_process = 0;
    std::uint32_t m_frame = 0;
};

} // namespace quillon::bench
