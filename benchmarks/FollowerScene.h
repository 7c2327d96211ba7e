#pragma once

#include "benchmarks/Statistics.h"
#include "desktop/support/ChildProcess.h"
#include "desktop/support/InputDriver.h"
#include "desktop/support/ProbeWindow.h"
#include "desktop/support/Program.h"
#include "desktop/support/ScreenReader.h"
#include "desktop/support/VirtualDesktop.h"

#include <sys/types.h>

#include <string>
#include <string_view>

namespace quillon::bench {

/// The colour of the window all over the screen, which belongs to another program.
inline constexpr test::Rgb followedPaper{240, 240, 235};

/// A follower of the pointer on a desktop.
class FollowerScene {
public:
    /// Tells by the screen whether what follows has come to a place.
    using Look = bool (*)(const test::ScreenReader&, test::Pixel);
    /// A row of places.
    using Way = test::Pixel (*)(int move);

    virtual ~FollowerScene() = default;

    /// From the move of the pointer to the look that finds the picture there, in milliseconds.
    Samples timeMoves(Way way, int moves);
    /// The share of one core, in percent, while the pointer moves a thousand times a second.
    double loadOfBurst(int seconds);

protected:
    FollowerScene(const test::VirtualDesktop::Options& screen, Look isThere);

    /// Moves between two places, far apart, until the picture comes along.
    void waitUntilFollowed();
    virtual pid_t process() = 0;
    test::VirtualDesktop& desktop() { return m_desktop; }
    test::InputDriver& input() { return m_input; }

private:
    Look m_isThere;
    test::VirtualDesktop m_desktop;
    test::ProbeWindow m_paper;
    test::InputDriver m_input{m_desktop.connection()};
    test::ScreenReader m_screen{m_desktop.connection()};
};

/// The program of this project.
class ProgramScene : public FollowerScene {
public:
    /// `key` is that of the shortcut which switches on what is to follow.
    ProgramScene(const test::VirtualDesktop::Options& screen, std::string_view key, Look isThere);

    void toggle(std::string_view key);

protected:
    pid_t process() override { return m_program.process().pid(); }

private:
    test::Program m_program{desktop()};
};

/// The least that following can be.
class BareScene : public FollowerScene {
public:
    BareScene(const test::VirtualDesktop::Options& screen, const std::string& follower,
              Look isThere);

protected:
    pid_t process() override { return m_follower.pid(); }

private:
    test::ChildProcess m_follower;
};

} // namespace quillon::bench
