#include "benchmarks/Pens.h"

#include "benchmarks/Peers.h"

#include "desktop/support/InputDriver.h"
#include "desktop/support/Program.h"
#include "desktop/support/StoredSettings.h"

#include <fstream>
#include <stdexcept>

namespace quillon::bench {

namespace {

using test::InputDriver;
using test::VirtualDesktop;
using test::XOwned;

xcb_window_t windowUnderPointer(VirtualDesktop& desktop) {
    const auto& connection = desktop.connection();
    const XOwned<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
        connection.get(), xcb_query_pointer(connection.get(), connection.root()), nullptr));
    return pointer ? pointer->child : XCB_NONE;
}

/// Whether a client has grabbed the pointer. Nobody sees the try come and go.
bool isPointerGrabbed(VirtualDesktop& desktop) {
    const auto& connection = desktop.connection();
    xcb_grab_server(connection.get());
    const XOwned<xcb_grab_pointer_reply_t> answer(xcb_grab_pointer_reply(
        connection.get(),
        xcb_grab_pointer(connection.get(), 0, connection.root(), 0, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    if (answer && answer->status == XCB_GRAB_STATUS_SUCCESS) {
        xcb_ungrab_pointer(connection.get(), XCB_CURRENT_TIME);
    }
    xcb_ungrab_server(connection.get());
    connection.synchronise();
    return answer && answer->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

/// Who has the pointer, as seen from outside.
struct PointerHolder {
    xcb_window_t window = XCB_NONE;
    bool isGrabbed = false;

    static PointerHolder of(VirtualDesktop& desktop) {
        return {windowUnderPointer(desktop), isPointerGrabbed(desktop)};
    }
    friend bool operator==(const PointerHolder&, const PointerHolder&) = default;
};

/// What all pens have in common: another than before has the pointer once they have taken it.
class PointerTaker : public Pen {
protected:
    explicit PointerTaker(VirtualDesktop& desktop)
        : m_desktop(desktop)
        , m_before(PointerHolder::of(desktop)) {}

    VirtualDesktop& desktop() const { return m_desktop; }
    void waitUntilTaken() {
        if (!test::eventually([this] { return PointerHolder::of(m_desktop) != m_before; })) {
            throw std::runtime_error("the pen does not take the pointer");
        }
    }

private:
    VirtualDesktop& m_desktop;
    PointerHolder m_before;
};

class BarePen : public PointerTaker {
public:
    explicit BarePen(VirtualDesktop& desktop)
        : PointerTaker(desktop)
        , m_input(desktop.connection())
        , m_process({QUILLON_BARE_PEN_PATH}, desktop.environment()) {}

    pid_t process() const override { return m_process.pid(); }
    void clear() override {
        m_input.press(3);
        m_input.release(3);
    }
    void switchOn() override { waitUntilTaken(); }

private:
    InputDriver m_input;
    test::ChildProcess m_process;
};

enum class Palette { shown, hidden };

template <Palette palette>
class QuillonMark : public PointerTaker {
public:
    explicit QuillonMark(VirtualDesktop& desktop)
        : PointerTaker(desktop)
        , m_input(desktop.connection()) {
        test::withStoredSettings(desktop.configFolder(), [](AppSettings& settings) {
            settings.showFloatingToolbar = palette == Palette::shown;
            settings.selectedTool = DrawingTool::pen;
            settings.selectedColor = Color(1, 0, 0);
            settings.lineWidth = 5;
        });
        m_program = std::make_unique<test::Program>(desktop);
    }

    pid_t process() const override { return m_program->process().pid(); }
    void clear() override { m_input.chord({"Super_L", "Shift_L", "c"}); }
    void switchOn() override {
        m_input.chord({"Super_L", "Shift_L", "s"});
        waitUntilTaken();
    }

private:
    InputDriver m_input;
    std::unique_ptr<test::Program> m_program;
};

class Gromit : public PointerTaker {
public:
    explicit Gromit(VirtualDesktop& desktop)
        : PointerTaker(desktop) {
        std::ofstream(desktop.configFolder() + "/gromit-mpx.ini")
            << "[General]\nShowIntroOnStartup=false\n";
        m_process = std::make_unique<test::ChildProcess>(std::vector<std::string>{"gromit-mpx"},
                                                         desktop.environment());
        const auto listens = [&] {
            return desktop.connection().selectionOwner("Gromit/control") != XCB_NONE;
        };
        if (!test::eventually(listens)) {
            throw std::runtime_error("gromit-mpx does not start");
        }
    }

    pid_t process() const override { return m_process->pid(); }
    void clear() override { tell("-c"); }
    void switchOn() override {
        tell("-t");
        waitUntilTaken();
    }

private:
    /// A second start hands its option to the running program.
    void tell(const std::string& option) {
        test::ChildProcess({"gromit-mpx", option}, desktop().environment()).waitForExit();
    }

    std::unique_ptr<test::ChildProcess> m_process;
};

template <typename T>
PenProgram program(const std::string& name, PenProgram::Role role) {
    return {name, role, [](VirtualDesktop& desktop) { return std::make_unique<T>(desktop); }};
}

} // namespace

std::vector<PenProgram> penPrograms() {
    std::vector<PenProgram> programs = {
        program<BarePen>("bare pen", PenProgram::Role::floor),
        program<QuillonMark<Palette::shown>>("quillon-mark", PenProgram::Role::own)};
    if (isInstalled("gromit-mpx")) {
        programs.push_back(program<Gromit>("gromit-mpx", PenProgram::Role::peer));
    }
    return programs;
}

PenProgram penWithoutPalette() {
    return program<QuillonMark<Palette::hidden>>("quillon-mark without its palette",
                                                 PenProgram::Role::own);
}

} // namespace quillon::bench
