#pragma once

#include "platform/Application.h"
#include "platform/Window.h"
#include "platform/WindowBackend.h"

#include <memory>
#include <string>
#include <vector>

namespace quillon::test {

/// Makes windows that note what was asked of them, in order: "orderFront", "frame", ...
class FakeWindows : public Windows {
public:
    std::unique_ptr<WindowBackend> makeWindow(Window& /*window*/) override {
        return std::make_unique<Backend>(calls);
    }

    std::vector<std::string> calls;

private:
    class Backend : public WindowBackend {
    public:
        explicit Backend(std::vector<std::string>& calls)
            : m_calls(calls) {}
        void setFrame(const CGRect&) override { m_calls.emplace_back("frame"); }
        void display() override { m_calls.emplace_back("display"); }
        void setIgnoresMouseEvents(bool ignores) override {
            m_calls.emplace_back(ignores ? "ignoresMouse" : "takesMouse");
        }
        void setContentView(const std::shared_ptr<HostingView>&) override {
            m_calls.emplace_back("contentView");
        }
        void setContentViewController(const std::shared_ptr<HostingController>&) override {
            m_calls.emplace_back("contentViewController");
        }
        void orderFrontRegardless() override { m_calls.emplace_back("orderFront"); }
        void makeKeyAndOrderFront() override { m_calls.emplace_back("makeKeyAndOrderFront"); }
        void orderOut() override { m_calls.emplace_back("orderOut"); }

    private:
        std::vector<std::string>& m_calls;
    };
};

class FakeApplication : public Application {
public:
    void setActivationPolicy(ActivationPolicy newPolicy) override { policy = newPolicy; }
    void activate(bool ignoringOtherApps) override {
        ++activations;
        ignoredOtherApps = ignoringOtherApps;
    }
    void terminate() override { ++terminations; }

    ActivationPolicy policy = ActivationPolicy::regular;
    int activations = 0;
    /// Of the last activation.
    bool ignoredOtherApps = false;
    int terminations = 0;
};

} // namespace quillon::test
