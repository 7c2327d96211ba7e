// What a program costs that nobody uses at the moment: how often it wakes up, its time on the
// processor, and its memory.
//
//     idle-wakeups [--rounds 3] [--seconds 30] [--rows]

#include "benchmarks/Peers.h"
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

/// What is measured, and how it is started.
struct Candidate {
    std::function<std::unique_ptr<Sleeper>()> start;
    /// The name under which it is installed; empty for the program of this project.
    std::string peer = {};

    /// A peer may fail, for this round; the program of this project may not.
    void attempt(const Round& round, const std::function<void()>& measure) const {
        if (peer.empty()) {
            measure();
        } else {
            measurePeer(peer, round, measure);
        }
    }
};

std::vector<Candidate> peers() {
    std::vector<Candidate> all;
    for (const PenProgram& program : penPrograms()) {
        if (program.role == PenProgram::Role::peer) {
            all.push_back({[program] { return std::make_unique<Peer>(program); }, program.name});
        }
    }
    all.push_back({[] { return std::make_unique<SleepingProjecteur>(); }, "projecteur"});
    return all;
}

/// What a program held in memory in each round.
class Held {
public:
    /// `own` is what the program of this project held in the same round.
    void add(const Sleeper& sleeper, const ProcessMemory& memory, const ProcessMemory& own) {
        m_name = sleeper.name();
        m_hasTargets = sleeper.hasTargets();
        m_resident.add(memory.resident, own.resident);
        m_unique.add(memory.unique, own.unique);
    }

    void report(Report& report, const std::string& peer) const {
        reportKind(report, peer, "RSS", m_resident, kMostResident);
        reportKind(report, peer, "USS", m_unique, kMostUnique);
    }

private:
    struct Amounts {
        std::vector<double> megabytes = {};
        std::vector<double> timesOwn = {};

        void add(long kilobytes, long own) {
            megabytes.push_back(static_cast<double>(kilobytes) / 1024);
            timesOwn.push_back(static_cast<double>(kilobytes) / static_cast<double>(own));
        }
    };

    void reportKind(Report& report, const std::string& peer, const std::string& kind,
                    const Amounts& amounts, double most) const {
        if (amounts.megabytes.empty()) {
            return;
        }
        const std::string figure = m_name + ": " + kind;
        report.add({"memory", figure, "MB", amounts.megabytes,
                    m_hasTargets ? std::optional(atMost(most)) : std::nullopt});
        if (!peer.empty()) {
            report.add({"memory", figure + " ÷ quillon-mark, tray only", "×", amounts.timesOwn});
        }
    }

    std::string m_name;
    bool m_hasTargets = false;
    Amounts m_resident;
    Amounts m_unique;
};

/// One after the other: what two programs share counts for neither as its own. The first one is
/// what its peers are compared with.
void measureMemory(Report& report, const std::vector<Candidate>& candidates, int rounds) {
    std::vector<Held> all(candidates.size());
    for (int round = 1; round <= rounds; ++round) {
        std::optional<ProcessMemory> own;
        for (std::size_t index = 0; index < candidates.size(); ++index) {
            candidates[index].attempt({"memory", round}, [&] {
                const auto sleeper = candidates[index].start();
                std::this_thread::sleep_for(kSettling);
                const auto memory = ProcessMemory::of(sleeper->process());
                if (!own) {
                    own = memory;
                }
                all[index].add(*sleeper, memory, *own);
            });
        }
    }
    for (std::size_t index = 0; index < candidates.size(); ++index) {
        all[index].report(report, candidates[index].peer);
    }
}

/// What a program at rest did in each round. It is started once: it goes on resting from round to
/// round.
class Counted {
public:
    explicit Counted(Candidate candidate)
        : m_candidate(std::move(candidate)) {
        m_candidate.attempt({kSubject, 1}, [this] { m_sleeper = m_candidate.start(); });
    }

    void beginRound(int round) {
        m_before.reset();
        if (m_sleeper) {
            m_candidate.attempt({kSubject, round},
                                [this] { m_before = ProcessUsage::of(m_sleeper->process()); });
        }
    }

    void endRound(int round) {
        if (m_before) {
            m_candidate.attempt({kSubject, round}, [this] {
                const auto used = ProcessUsage::of(m_sleeper->process()).since(*m_before);
                m_wakeUps.push_back(static_cast<double>(used.contextSwitches));
                m_ticks.push_back(static_cast<double>(used.processorTicks));
            });
        }
    }

    void report(Report& report, const std::string& span) const {
        if (m_wakeUps.empty()) {
            return;
        }
        const auto none = m_sleeper->hasTargets() ? std::optional(atMost(0)) : std::nullopt;
        report.add({kSubject, m_sleeper->name() + ": wake-ups" + span, "", m_wakeUps, none});
        report.add({kSubject, m_sleeper->name() + ": processor ticks" + span, "", m_ticks, none});
    }

private:
    static constexpr const char* kSubject = "idle";

    Candidate m_candidate;
    std::unique_ptr<Sleeper> m_sleeper;
    std::optional<ProcessUsage> m_before;
    std::vector<double> m_wakeUps;
    std::vector<double> m_ticks;
};

/// All at the same time: who sleeps is not disturbed by others that do.
void countWakeUps(Report& report, const std::vector<Candidate>& candidates, int rounds,
                  int seconds) {
    std::vector<std::unique_ptr<Counted>> all;
    for (const Candidate& candidate : candidates) {
        all.push_back(std::make_unique<Counted>(candidate));
    }
    for (int round = 1; round <= rounds; ++round) {
        std::this_thread::sleep_for(kSettling);
        for (const auto& each : all) {
            each->beginRound(round);
        }
        std::this_thread::sleep_for(std::chrono::seconds(seconds));
        for (const auto& each : all) {
            each->endRound(round);
        }
    }
    for (const auto& each : all) {
        each->report(report, " in " + std::to_string(seconds) + " s");
    }
}

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> options(arguments + 1, arguments + count);
        const int rounds = option(options, "--rounds", 3);
        const int seconds = option(options, "--seconds", 30);
        Report report(options);
        auto candidates = peers();
        candidates.insert(candidates.begin(), {{trayOnly}, {drawing}});
        measureMemory(report, candidates, rounds);
        candidates.insert(candidates.begin() + 1,
                          {{[] { return usedBefore("annotation", "s"); }},
                           {[] { return usedBefore("the halo", "h"); }},
                           {[] { return usedBefore("the spotlight", "l"); }},
                           {[] { return usedBefore("the lens", "x"); }}});
        countWakeUps(report, candidates, rounds, seconds);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "idle-wakeups: " << error.what() << '\n';
        return 1;
    }
}
