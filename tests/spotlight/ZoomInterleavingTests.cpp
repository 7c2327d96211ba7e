#include "spotlight/StreamDelegate.h"
#include "spotlight/ZoomTest.h"

#include <functional>

namespace quillon::test {
namespace {

/// One of `count` shares of all ways. Ways that begin alike belong to the same share.
struct Share {
    std::size_t number = 0;
    std::size_t count = 1;
};

/// Goes through every way of a share to take a row of decisions, one way at a time.
class Decisions {
public:
    explicit Decisions(Share share)
        : m_share(share) {}

    /// Which of `count` possibilities is taken now.
    std::size_t choose(std::size_t count) {
        if (m_position == m_taken.size()) {
            m_taken.push_back({0, count});
        }
        return m_taken[m_position++].choice;
    }
    /// Whether the way, by the decisions taken so far, belongs to another share. There is no need
    /// to go on with it then.
    bool isElsewhere() const {
        return m_position >= kBeginning && m_beginnings % m_share.count != m_share.number;
    }
    /// False when every way was gone.
    bool moveToNextWay() {
        m_position = 0;
        while (!m_taken.empty() && m_taken.back().choice + 1 == m_taken.back().count) {
            m_taken.pop_back();
        }
        if (m_taken.empty()) {
            return false;
        }
        ++m_taken.back().choice;
        m_beginnings += m_taken.size() <= kBeginning ? 1 : 0;
        return true;
    }

private:
    struct Decision {
        std::size_t choice;
        std::size_t count;
    };
    /// How many decisions make a beginning: enough for shares of about the same size. A way that
    /// ends sooner is taken by all.
    static constexpr std::size_t kBeginning = 12;

    Share m_share;
    /// How many beginnings were gone.
    std::size_t m_beginnings = 0;
    std::vector<Decision> m_taken;
    std::size_t m_position = 0;
};

enum class Outcomes { successAlone, successAndRefusal };

struct Scenario {
    /// What the user assigns to the switch, in order.
    std::vector<bool> switches;
    Outcomes outcomes = Outcomes::successAlone;
    /// How often the system may stop a stream that is kept.
    int systemStops = 0;
};

/// One way through a scenario on a host of its own.
class Way {
public:
    Way(const Scenario& scenario, Decisions& decisions)
        : m_scenario(scenario)
        , m_decisions(decisions)
        , m_systemStops(scenario.systemStops) {
        m_host.screens.all.front().deviceDescription["NSScreenNumber"] = std::int64_t{1};
        while (!decisions.isElsewhere() && takeStep()) {
            checkThatNothingStaleIsKept();
        }
    }

    SpotlightManager& manager() { return SpotlightManager::shared(); }
    FakeScreenCapture& capture() { return m_host.screenCapture; }
    std::size_t openedSettings() const { return m_host.workspace.openedURLs.size(); }
    bool wasRefused() const { return m_wasRefused; }

private:
    using Step = std::function<void()>;

    bool takeStep() {
        std::vector<Step> steps;
        if (m_nextSwitch < m_scenario.switches.size()) {
            steps.emplace_back([this] {
                m_wasRefused = false;
                const bool enabled = m_scenario.switches[m_nextSwitch++];
                manager().isZoomEnabled = enabled;
                if (!enabled) {
                    m_lastOff = manager().zoomGeneration();
                }
            });
        }
        if (!m_host.mainQueue.isIdle()) {
            steps.emplace_back([this] { m_host.mainQueue.turn(); });
        }
        addCompletions(steps, capture().probes, ScreenCapture::ContentOutcome(SCShareableContent{}),
                       ScreenCapture::ContentOutcome(kRefusal));
        addCompletions(steps, capture().lookups, ScreenCapture::ContentOutcome(capture().content),
                       ScreenCapture::ContentOutcome(kRefusal));
        addCompletions(steps, capture().starts, CaptureOutcome(), CaptureOutcome(kRefusal));
        addCompletions(steps, capture().stops, CaptureOutcome(), CaptureOutcome(kRefusal));
        if (const auto stream = manager().screenCaptureStream(); stream && m_systemStops > 0) {
            steps.emplace_back([this, stream] {
                --m_systemStops;
                std::dynamic_pointer_cast<FakeStream>(stream)->die(kMishap);
            });
        }
        if (steps.empty()) {
            return false;
        }
        steps[m_decisions.choose(steps.size())]();
        return true;
    }

    template <typename Outcome>
    void addCompletions(std::vector<Step>& steps, HeldCompletions<Outcome>& waiting,
                        const Outcome& success, const Outcome& refusal) {
        for (std::size_t place = 0; place < waiting.count(); ++place) {
            steps.emplace_back([&waiting, success, place] { waiting.complete(success, place); });
            if (m_scenario.outcomes == Outcomes::successAndRefusal) {
                steps.emplace_back(
                    [this, &waiting, refusal, place] { refuse(waiting, refusal, place); });
            }
        }
    }

    template <typename Outcome>
    void refuse(HeldCompletions<Outcome>& waiting, const Outcome& refusal, std::size_t place) {
        const auto before = openedSettings();
        waiting.complete(refusal, place);
        const bool wasOfConcern = openedSettings() > before;
        if (wasOfConcern) {
            EXPECT_TRUE(manager().isZoomEnabled);
            m_wasRefused = true;
        }
    }

    void checkThatNothingStaleIsKept() {
        if (const auto stream = manager().screenCaptureStream()) {
            EXPECT_TRUE(manager().isZoomEnabled);
            EXPECT_GT(generationOf(dynamic_cast<FakeStream&>(*stream)), m_lastOff);
        }
        const auto output = manager().zoomStreamOutput();
        for (const auto& weak : capture().streams) {
            const auto stream = weak.lock();
            if (output && stream && !stream->outputs.empty() &&
                stream->outputs[0].output == output) {
                EXPECT_GT(generationOf(*stream), m_lastOff);
            }
        }
    }

    static Int generationOf(const FakeStream& stream) {
        return dynamic_cast<const StreamDelegate&>(*stream.delegate).generation();
    }

    const Scenario& m_scenario;
    Decisions& m_decisions;
    FakeHost m_host;
    std::size_t m_nextSwitch = 0;
    /// The generation of the last switching off; what belongs to it or came before is stale.
    Int m_lastOff = 0;
    int m_systemStops;
    bool m_wasRefused = false;
};

/// Takes every way of a share through the scenario, and answers how many there are.
long forEveryInterleaving(const Scenario& scenario, const std::function<void(Way&)>& atTheEnd,
                          Share share = {}) {
    long ways = 0;
    Decisions decisions(share);
    testing::internal::CaptureStdout();
    do {
        Way way(scenario, decisions);
        if (!decisions.isElsewhere()) {
            atTheEnd(way);
            ++ways;
        }
    } while (!testing::Test::HasFailure() && decisions.moveToNextWay());
    testing::internal::GetCapturedStdout();
    testing::Test::RecordProperty("ways", std::to_string(ways));
    return ways;
}

void expectOneStreamThatIsKept(Way& way) {
    EXPECT_EQ(way.capture().runningStreams(), 1);
    ASSERT_TRUE(way.manager().screenCaptureStream());
    EXPECT_TRUE(dynamic_cast<FakeStream&>(*way.manager().screenCaptureStream()).isRunning);
    EXPECT_TRUE(way.manager().zoomStreamOutput());
}

void expectNoStream(Way& way) {
    EXPECT_EQ(way.capture().runningStreams(), 0);
    EXPECT_FALSE(way.manager().screenCaptureStream());
    EXPECT_FALSE(way.manager().zoomStreamOutput());
}

TEST(ZoomInterleavings, on_ends_in_one_stream) {
    EXPECT_GE(forEveryInterleaving({{true}}, expectOneStreamThatIsKept), 1);
}

TEST(ZoomInterleavings, on_and_off_end_with_no_stream) {
    EXPECT_GT(forEveryInterleaving({{true, false}}, expectNoStream), 5);
}

TEST(ZoomInterleavings, on_off_and_on_end_in_one_stream) {
    EXPECT_GT(forEveryInterleaving({{true, false, true}}, expectOneStreamThatIsKept), 50);
}

TEST(ZoomInterleavings, on_off_on_and_off_end_with_no_stream) {
    EXPECT_GT(forEveryInterleaving({{true, false, true, false}}, expectNoStream), 400);
}

constexpr std::size_t kShares = 8;

/// In shares, which can be taken at the same time.
class ZoomInterleavingsInShares : public testing::TestWithParam<std::size_t> {};

TEST_P(ZoomInterleavingsInShares, a_switch_pressed_five_times_ends_in_one_stream) {
    EXPECT_GT(forEveryInterleaving({{true, false, true, false, true}}, expectOneStreamThatIsKept,
                                   {GetParam(), kShares}),
              1000);
}

INSTANTIATE_TEST_SUITE_P(Each, ZoomInterleavingsInShares, testing::Range<std::size_t>(0, kShares));

TEST(ZoomInterleavings, on_and_on_again_end_in_one_stream) {
    EXPECT_GT(forEveryInterleaving({{true, true}},
                                   [](Way& way) { EXPECT_EQ(way.capture().runningStreams(), 1); }),
              20);
}

TEST(ZoomInterleavings,
     with_any_step_refused_a_stream_is_kept_exactly_if_the_last_wish_met_no_refusal) {
    const Scenario scenario{{true, false, true}, Outcomes::successAndRefusal};
    EXPECT_GT(forEveryInterleaving(scenario,
                                   [](Way& way) {
                                       EXPECT_LE(way.openedSettings(), 2U) << "once for each wish";
                                       if (way.wasRefused()) {
                                           expectNoStream(way);
                                       } else {
                                           expectOneStreamThatIsKept(way);
                                       }
                                   }),
              400);
}

TEST(ZoomInterleavings, a_stream_stopped_by_the_system_at_any_time_is_replaced_while_it_is_wanted) {
    EXPECT_GT(forEveryInterleaving({{true, false, true}, Outcomes::successAlone, 1},
                                   expectOneStreamThatIsKept),
              200);
}

TEST(ZoomInterleavings, a_stream_stopped_by_the_system_at_any_time_stays_gone_once_it_is_unwanted) {
    EXPECT_GT(forEveryInterleaving({{true, false}, Outcomes::successAlone, 1}, expectNoStream), 8);
}

} // namespace
} // namespace quillon::test
