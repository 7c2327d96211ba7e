#include "Pens.h"

#include "desktop/support/Program.h"
#include "desktop/support/StoredSettings.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
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

/// Runs `begin`, and waits until the pointer is another window's than before, or grabbed.
void takePointer(VirtualDesktop& desktop, const std::string& name,
                 const std::function<void()>& begin) {
    const xcb_window_t before = windowUnderPointer(desktop);
    begin();
    const auto hasTaken = [&] {
        const xcb_window_t now = windowUnderPointer(desktop);
        return (now != XCB_NONE && now != before) || isPointerGrabbed(desktop);
    };
    if (!test::eventually(hasTaken)) {
        throw std::runtime_error(name + " does not take the pointer");
    }
}

class BarePen : public Pen {
public:
    explicit BarePen(VirtualDesktop& desktop)
        : m_input(desktop.connection()) {
        takePointer(desktop, "bare_pen", [&] {
            m_process = std::make_unique<test::ChildProcess>(
                std::vector<std::string>{QUILLON_BARE_PEN_PATH}, desktop.environment());
        });
    }

    void clear() override {
        m_input.press(3);
        m_input.release(3);
    }

private:
    InputDriver m_input;
    std::unique_ptr<test::ChildProcess> m_process;
};

class QuillonMark : public Pen {
public:
    explicit QuillonMark(VirtualDesktop& desktop)
        : m_input(desktop.connection()) {
        test::withStoredSettings(desktop.configFolder(), [](AppSettings& settings) {
            settings.selectedTool = DrawingTool::pen;
            settings.selectedColor = Color(1, 0, 0);
            settings.lineWidth = 5;
        });
        m_program = std::make_unique<test::Program>(desktop);
        takePointer(desktop, "quillon-mark", [this] {
            m_input.chord({"Super_L", "Shift_L", "s"});
        });
    }

    void clear() override { m_input.chord({"Super_L", "Shift_L", "c"}); }

private:
    InputDriver m_input;
    std::unique_ptr<test::Program> m_program;
};

class Gromit : public Pen {
public:
    explicit Gromit(VirtualDesktop& desktop)
        : m_desktop(desktop) {
        std::ofstream(desktop.configFolder() + "/gromit-mpx.ini")
            << "[General]\nShowIntroOnStartup=false\n";
        takePointer(desktop, "gromit-mpx", [&] {
            m_process = std::make_unique<test::ChildProcess>(
                std::vector<std::string>{"gromit-mpx", "-a"}, desktop.environment());
        });
    }

    void clear() override {
        test::ChildProcess({"gromit-mpx", "-c"}, m_desktop.environment()).waitForExit();
    }

private:
    VirtualDesktop& m_desktop;
    std::unique_ptr<test::ChildProcess> m_process;
};

template <typename T>
PenProgram program(const std::string& name) {
    return {name, [](VirtualDesktop& desktop) { return std::make_unique<T>(desktop); }};
}

bool isInstalled(const std::string& name) {
    const char* path = std::getenv("PATH");
    std::istringstream folders(path ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (access((folder + "/" + name).c_str(), X_OK) == 0) {
            return true;
        }
    }
    return false;
}

} // namespace

std::vector<PenProgram> penPrograms() {
    std::vector<PenProgram> programs = {program<BarePen>("bare_pen"),
                                        program<QuillonMark>("quillon-mark")};
    if (isInstalled("gromit-mpx")) {
        programs.push_back(program<Gromit>("gromit-mpx"));
    }
    return programs;
}

} // namespace quillon::bench
