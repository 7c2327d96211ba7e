// What a program costs that nobody uses at the moment: how often it wakes up, its time on the
// processor, and its memory.
//
//     idle-wakeups [--rounds 3] [--seconds 30] [--rows]

#include "benchmarks/Pens.h"
#include "benchmarks/ProcessUsage.h"
#include "benchmarks/Projecteur.h"
#include "benchmarks/Report.h"
#include "benchmarks/ScreenPart.h"
#include "benchmarks/Statistics.h"

#include "desktop/support/InputDriver.h"
#include "desktop/support/Program.h"
#include "desktop/support/VirtualDesktop.h"

#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <thread>

using namespace quillon;
using namespace quillon::bench;

namespace {

/// What follows a start is no idleness.
constexpr std::chrono::seconds kSettling{3};
constexpr std::chrono::milliseconds kSwitching{700};
constexpr test::Pixel kPointer{960, 500};
constexpr int kHeightOfPanel = 30;
constexpr double kMostResident = 45;
constexpr double kMostUnique = 20;

/// A program that rests on a desktop with a tray. They can all rest at the same time.
class Sleeper {
public:
    explicit Sleeper(std::string name)
        : m_name(std::move(name)) {
        m_desktop.startTray();
        m_input.moveTo(kPointer);
    }
    virtual ~Sleeper() = default;

    const std::string& name() const { return m_name; }
    virtual pid_t process() = 0;
    virtual bool isPeer() const { return true; }
    /// Whether it is the program of this project, with nothing switched on.
    virtual bool hasTargets() const { return false; }

protected:
    test::VirtualDesktop& desktop() { return m_desktop; }
    test::InputDriver& input() { return m_input; }

private:
    std::string m_name;
    /// Without a pointer in its picture, which then tells by itself what was switched.
    test::VirtualDesktop m_desktop{{.hasCursor = false}};
    test::InputDriver m_input{m_desktop.connection()};
};

class QuillonMark : public Sleeper {
public:
    explicit QuillonMark(const std::string& state)
        : Sleeper("quillon-mark, " + state)
        , m_program(desktop()) {
        std::this_thread::sleep_for(kSwitching);
    }

    pid_t process() override { return m_program.process().pid(); }
    bool isPeer() const override { return false; }
    bool hasTargets() const override { return m_isOff; }

    /// Switches a feature on or off by the last key of its shortcut.
    void toggle(std::string_view key) {
        const auto before = screen();
        input().chord({"Super_L", "Shift_L", key});
        m_isOff = !m_isOff;
        std::this_thread::sleep_for(kSwitching);
        // What follows the pointer comes with its next move.
        input().moveTo({kPointer.x + 1, kPointer.y});
        input().moveTo(kPointer);
        std::this_thread::sleep_for(kSwitching);
        if (screen() == before) {
            throw std::runtime_error(name() + ": nothing is switched");
        }
    }

    void draw() { input().drag({{300, 300}, {900, 700}, {1500, 400}}); }

private:
    /// All of it below the panel.
    std::vector<std::uint8_t> screen() {
        const auto& root = desktop().connection().screen();
        return screenPart(desktop().connection(), 0, kHeightOfPanel, root.width_in_pixels,
                          root.height_in_pixels - kHeightOfPanel);
    }

    test::Program m_program;
    bool m_isOff = true;
};

std::unique_ptr<Sleeper> trayOnly() {
    return std::make_unique<QuillonMark>("tray only");
}

/// Switched on and off again by the last key of a shortcut.
std::unique_ptr<Sleeper> usedBefore(const std::string& feature, std::string_view key) {
    auto program = std::make_unique<QuillonMark>("after " + feature);
    program->toggle(key);
    program->toggle(key);
    return program;
}

class Peer : public Sleeper {
public:
    explicit Peer(const PenProgram& program)
        : Sleeper(program.name + ", tray only")
        , m_pen(program.start(desktop())) {}

    pid_t process() override { return m_pen->process(); }

private:
    std::unique_ptr<Pen> m_pen;
};

class SleepingProjecteur : public Sleeper {
public:
    SleepingProjecteur()
        : Sleeper("projecteur, tray only") {}

    pid_t process() override { return m_projecteur.process(); }

private:
    Projecteur m_projecteur{desktop()};
};

/// With a drawing on the screen and the pen in the hand.
std::unique_ptr<Sleeper> drawing() {
    auto program = std::make_unique<QuillonMark>("drawing");
    program->toggle("s");
    program->draw();
    return program;
}

using Make = std::function<std::unique_ptr<Sleeper>()>;

std::vector<Make> peers() {
    std::vector<Make> all;
    for (const PenProgram& program : penPrograms()) {
        if (program.role == PenProgram::Role::peer) {
            all.emplace_back([program] { return std::make_unique<Peer>(program); });
        }
    }
    if (Projecteur::isInstalled()) {
        all.emplace_back([] { return std::make_unique<SleepingProjecteur>(); });
    }
    return all;
}

/// What a program held in memory in each round, in megabytes.
struct Held {
    std::string name;
    bool hasTargets = false;
    bool isPeer = false;
    std::vector<double> resident = {};
    std::vector<double> unique = {};

    void add(const ProcessMemory& memory) {
        constexpr double kilobytes = 1024;
        resident.push_back(static_cast<double>(memory.resident) / kilobytes);
        unique.push_back(static_cast<double>(memory.unique) / kilobytes);
    }
};

/// Peers stand beside `own` as well.
void print(Report& report, const Held& held, const Held& own) {
    const auto add = [&](const std::string& kind, const std::vector<double>& amounts,
                         const std::vector<double>& base, double most) {
        const std::string figure = held.name + ": " + kind;
        report.add({"memory", figure, "MB", amounts,
                    held.hasTargets ? std::optional(atMost(most)) : std::nullopt});
        if (held.isPeer) {
            report.add({"memory", figure + " ÷ " + own.name, "×", ratios(amounts, base)});
        }
    };
    add("RSS", held.resident, own.resident, kMostResident);
    add("USS", held.unique, own.unique, kMostUnique);
}

/// One after the other: what two programs share counts for neither as its own. The first one is
/// what its peers are compared with.
void measureMemory(Report& report, const std::vector<Make>& programs, int rounds) {
    std::vector<Held> all(programs.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t index = 0; index < programs.size(); ++index) {
            const auto sleeper = programs[index]();
            std::this_thread::sleep_for(kSettling);
            all[index].name = sleeper->name();
            all[index].hasTargets = sleeper->hasTargets();
            all[index].isPeer = sleeper->isPeer();
            all[index].add(ProcessMemory::of(sleeper->process()));
        }
    }
    for (const Held& each : all) {
        print(report, each, all.front());
    }
}

/// All at the same time: who sleeps is not disturbed by others that do. They are started once: a
/// program that rests goes on resting from round to round.
void countWakeUps(Report& report, const std::vector<Make>& programs, int rounds, int seconds) {
    struct Counted {
        std::unique_ptr<Sleeper> sleeper;
        std::vector<double> wakeUps = {};
        std::vector<double> ticks = {};
    };
    std::vector<Counted> all;
    for (const Make& make : programs) {
        all.push_back({make()});
    }
    for (int round = 0; round < rounds; ++round) {
        std::this_thread::sleep_for(kSettling);
        std::vector<ProcessUsage> before;
        for (const auto& each : all) {
            before.push_back(ProcessUsage::of(each.sleeper->process()));
        }
        std::this_thread::sleep_for(std::chrono::seconds(seconds));
        for (std::size_t index = 0; index < all.size(); ++index) {
            Counted& each = all[index];
            const ProcessUsage used =
                ProcessUsage::of(each.sleeper->process()).since(before[index]);
            each.wakeUps.push_back(static_cast<double>(used.contextSwitches));
            each.ticks.push_back(static_cast<double>(used.processorTicks));
        }
    }
    const std::string span = " in " + std::to_string(seconds) + " s";
    for (const auto& [sleeper, wakeUps, ticks] : all) {
        const auto none = sleeper->hasTargets() ? std::optional(atMost(0)) : std::nullopt;
        report.add({"idle", sleeper->name() + ": wake-ups" + span, "", wakeUps, none});
        report.add({"idle", sleeper->name() + ": processor ticks" + span, "", ticks, none});
    }
}

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        const int rounds = option(options, "--rounds", 3);
        const int seconds = option(options, "--seconds", 30);
        Report report(options);
        auto programs = peers();
        programs.insert(programs.begin(), {trayOnly, drawing});
        measureMemory(report, programs, rounds);
        programs.insert(programs.begin() + 1, {[] { return usedBefore("annotation", "s"); },
                                               [] { return usedBefore("the halo", "h"); },
                                               [] { return usedBefore("the spotlight", "l"); },
                                               [] { return usedBefore("the lens", "x"); }});
        countWakeUps(report, programs, rounds, seconds);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "idle-wakeups: " << error.what() << '\n';
        return 1;
    }
}
