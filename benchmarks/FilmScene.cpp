#include "benchmarks/FilmScene.h"

#include "benchmarks/ProcessUsage.h"

#include "desktop/support/StoredSettings.h"

#include <unistd.h>

#include <atomic>
#include <stdexcept>
#include <thread>

namespace quillon::bench {

namespace {

constexpr test::Canvas::Frame kFilm{300, 300, 400, 400};
/// Of the film, out of the reach of every magnifier's window.
constexpr test::Pixel kPlaceInFilm{320, 320};
constexpr test::Pixel kPointer{500, 500};
/// Within the window of every magnifier, clear of the film.
constexpr test::Pixel kPlaceInMagnifier{kPointer.x + 350, kPointer.y};
constexpr int kFramesPerSecond = 60;
constexpr std::chrono::milliseconds kPatience{500};
constexpr std::chrono::seconds kPatienceForStart{15};
constexpr std::chrono::seconds kTimeToSettle{1};
constexpr std::chrono::milliseconds kFirstLook{300};
constexpr std::chrono::microseconds kPauseBetweenLooks{100};
/// Short beside a frame, and long enough to leave the server to those that draw.
constexpr std::chrono::microseconds kPauseBetweenFilmLooks{700};
/// Not a multiple of a frame, so that changes fall anywhere between two frames.
constexpr std::chrono::milliseconds kRest{53};

std::uint32_t rgbOf(std::uint32_t frame) {
    // Neighbouring frames differ in every component.
    return (frame * 7 & 0xFF) << 16 | (frame * 13 & 0xFF) << 8 | (frame & 0xFF);
}

test::Rgb colorOf(std::uint32_t frame) {
    const std::uint32_t color = rgbOf(frame);
    return {static_cast<int>(color >> 16), static_cast<int>(color >> 8 & 0xFF),
            static_cast<int>(color & 0xFF)};
}

double loadSince(pid_t process, const ProcessUsage& before, double seconds) {
    const ProcessUsage used = ProcessUsage::of(process).since(before);
    const auto ticksPerSecond = static_cast<double>(sysconf(_SC_CLK_TCK));
    return 100 * static_cast<double>(used.processorTicks) / ticksPerSecond / seconds;
}

/// Counts how often what is looked at is another colour than before.
class Changes {
public:
    explicit Changes(test::Rgb first)
        : m_last(first) {}

    void look(test::Rgb color) {
        m_count += color == m_last ? 0 : 1;
        m_last = color;
    }
    int count() const { return m_count; }

private:
    test::Rgb m_last;
    int m_count = 0;
};

} // namespace

FilmScene::FilmScene(const test::VirtualDesktop::Options& screen, const Magnifier& magnifier)
    : m_desktop(screen)
    , m_film(m_desktop.display(), kFilm) {
    m_hand.moveTo(kPointer);
    if (magnifier.command.empty()) {
        startLens();
    } else {
        startOther(magnifier);
    }
    if (!test::eventually([this] { return showsChange(); }, kPatienceForStart)) {
        throw std::runtime_error(magnifier.name + " did not come up");
    }
}

bool FilmScene::showsChange() {
    show(m_frame + 1);
    std::this_thread::sleep_for(kFirstLook);
    // One that looks when the pointer moves finds the change composed.
    movePointer(m_frame);
    std::this_thread::sleep_for(kFirstLook);
    return seen() == colorOf(m_frame);
}

void FilmScene::startLens() {
    test::withStoredSettings(m_desktop.configFolder(), [](AppSettings& settings) {
        settings.showZoomCrosshair = false;
        settings.zoomWindowOffsetX = 250;
        settings.zoomWindowOffsetY = -100;
    });
    m_program.emplace(m_desktop);
    m_hand.chord({"Super_L", "Shift_L", "x"});
    m_process = m_program->process().pid();
}

void FilmScene::startOther(const Magnifier& magnifier) {
    m_process = m_desktop.start(magnifier.command).pid();
    if (!test::eventually([this] { return !windows().empty(); }, kPatienceForStart)) {
        throw std::runtime_error(magnifier.name + " has no window");
    }
    std::this_thread::sleep_for(kTimeToSettle);
    moveWindowAside();
    // It has the keyboard.
    for (const std::string& key : magnifier.keys) {
        m_hand.tap(key);
    }
}

std::vector<xcb_window_t> FilmScene::windows() {
    const auto& connection = m_desktop.connection();
    return connection.property(connection.root(), "_NET_CLIENT_LIST");
}

/// The magnifier has the only window that the window manager knows of.
void FilmScene::moveWindowAside() {
    xcb_connection_t* connection = m_desktop.connection().get();
    for (const xcb_window_t window : windows()) {
        const std::uint32_t place[] = {750, 400};
        xcb_configure_window(connection, window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, place);
    }
    m_desktop.connection().synchronise();
}

Samples FilmScene::timeChanges(int changes) {
    Samples times;
    for (int change = 0; change < changes; ++change) {
        const auto start = Clock::now();
        show(m_frame + 1);
        while (seen() != colorOf(m_frame)) {
            if (Clock::now() - start > kPatience) {
                throw std::runtime_error("a change was not shown");
            }
            std::this_thread::sleep_for(kPauseBetweenLooks);
        }
        times.add(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
        std::this_thread::sleep_for(kRest);
    }
    return times;
}

FilmScene::Film FilmScene::playFilm(int seconds, Pointer pointer) {
    const ProcessUsage before = ProcessUsage::of(m_process);
    Changes film(m_screen.pixel(kPlaceInFilm));
    Changes picture(seen());
    const auto start = Clock::now();
    std::atomic<bool> isOver = false;
    std::thread player([&] {
        play(seconds, start, pointer);
        isOver = true;
    });
    while (!isOver) {
        film.look(m_screen.pixel(kPlaceInFilm));
        picture.look(seen());
        std::this_thread::sleep_for(kPauseBetweenFilmLooks);
    }
    player.join();
    const std::chrono::duration<double> elapsed = Clock::now() - start;
    return {film.count() / elapsed.count(), picture.count() / elapsed.count(),
            loadSince(m_process, before, elapsed.count())};
}

void FilmScene::play(int seconds, Clock::time_point start, Pointer pointer) {
    for (int frame = 1; frame <= seconds * kFramesPerSecond; ++frame) {
        show(m_frame + 1);
        if (pointer == Pointer::moving) {
            movePointer(m_frame);
        }
        std::this_thread::sleep_until(start + frame * std::chrono::microseconds(1000000) /
                                                  kFramesPerSecond);
    }
}

long FilmScene::wakeUpsAtRest(int seconds) {
    std::this_thread::sleep_for(kTimeToSettle);
    const ProcessUsage before = ProcessUsage::of(m_process);
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    return ProcessUsage::of(m_process).since(before).contextSwitches;
}

void FilmScene::show(std::uint32_t frame) {
    m_frame = frame;
    m_film.fill({0, 0, kFilm.width, kFilm.height}, rgbOf(frame));
}

void FilmScene::movePointer(std::uint32_t frame) {
    m_hand.moveTo({kPointer.x + static_cast<int>(frame % 2), kPointer.y});
}

test::Rgb FilmScene::seen() const {
    return m_screen.pixel(kPlaceInMagnifier);
}

} // namespace quillon::bench
