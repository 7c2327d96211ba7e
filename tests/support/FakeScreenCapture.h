#pragma once

#include "platform/ScreenCapture.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace quillon::test {

/// A buffer in which each pixel tells its place: 0xFF000000 and 1000 for each row from the bottom
/// and one for each column.
class FakeImageBuffer : public CVImageBuffer {
public:
    explicit FakeImageBuffer(CGSize size)
        : m_size(size) {}

    static std::uint32_t pixelAt(int x, int y) {
        return 0xFF000000U + 1000U * static_cast<std::uint32_t>(y) + static_cast<std::uint32_t>(x);
    }

    CGSize size() const override { return m_size; }
    std::shared_ptr<const PixelRows> read(const CGRect& rect) const override {
        reads.push_back(rect);
        if (!isReadable) {
            return nullptr;
        }
        auto rows = std::make_shared<PixelRows>();
        rows->width = static_cast<int>(rect.width);
        rows->height = static_cast<int>(rect.height);
        for (int row = rows->height - 1; row >= 0; --row) {
            for (int column = 0; column < rows->width; ++column) {
                rows->pixels.push_back(
                    pixelAt(static_cast<int>(rect.x) + column, static_cast<int>(rect.y) + row));
            }
        }
        return rows;
    }

    bool isReadable = true;
    /// Every rectangle that was asked for.
    mutable std::vector<CGRect> reads;

private:
    CGSize m_size;
};

/// Completions that wait until their test says how the step went, oldest first.
template <typename Outcome>
class HeldCompletions {
public:
    using Completion = std::function<void(const Outcome&)>;

    void hold(Completion completion) { m_waiting.push_back(std::move(completion)); }
    std::size_t count() const { return m_waiting.size(); }

    /// Completes the step that has waited longest, or the one at a place in the row.
    void complete(const Outcome& outcome, std::size_t place = 0) {
        const auto waiting = m_waiting.begin() + static_cast<std::ptrdiff_t>(place);
        const Completion completion = std::move(*waiting);
        m_waiting.erase(waiting);
        completion(outcome);
    }

private:
    std::vector<Completion> m_waiting;
};

using HeldOutcomes = HeldCompletions<CaptureOutcome>;

/// A stream whose steps wait for the test.
class FakeStream : public SCStream, public std::enable_shared_from_this<FakeStream> {
public:
    struct Output {
        std::shared_ptr<SCStreamOutput> output;
        SCStreamOutputType type = SCStreamOutputType::screen;
        MainQueue* queue = nullptr;
    };

    FakeStream(HeldOutcomes& starts, HeldOutcomes& stops)
        : m_starts(starts)
        , m_stops(stops) {}

    CaptureOutcome addStreamOutput(std::shared_ptr<SCStreamOutput> output, SCStreamOutputType type,
                                   MainQueue& sampleHandlerQueue) override {
        if (!errorOfAddition) {
            outputs.push_back({std::move(output), type, &sampleHandlerQueue});
        }
        return errorOfAddition;
    }
    void startCapture(CaptureCompletion completion) override {
        m_starts.hold([weak = weak_from_this(),
                       completion = std::move(completion)](const CaptureOutcome& outcome) {
            if (const auto stream = weak.lock(); stream && !outcome) {
                stream->isRunning = true;
            }
            completion(outcome);
        });
    }
    void stopCapture(CaptureCompletion completion) override {
        isRunning = false;
        m_stops.hold(std::move(completion));
    }

    /// A delivery to every output.
    void deliver(const CMSampleBuffer& sampleBuffer,
                 SCStreamOutputType type = SCStreamOutputType::screen) {
        const auto present = outputs;
        for (const Output& receiver : present) {
            receiver.output->streamDidOutputSampleBuffer(*this, sampleBuffer, type);
        }
    }
    /// The end that nobody asked for, told on the calling thread.
    void die(const CaptureError& error) {
        isRunning = false;
        if (delegate) {
            delegate->streamDidStopWithError(*this, error);
        }
    }

    SCContentFilter filter;
    SCStreamConfiguration configuration;
    std::shared_ptr<SCStreamDelegate> delegate;
    std::vector<Output> outputs;
    CaptureOutcome errorOfAddition;
    /// From a start that succeeded until it is asked to stop or dies.
    bool isRunning = false;

private:
    HeldOutcomes& m_starts;
    HeldOutcomes& m_stops;
};

class FakeSharingPicker : public SCContentSharingPicker {
public:
    void setActive(bool isActive) override { activations.push_back(isActive); }

    std::vector<bool> activations;
};

/// A capture in which every step waits until the test completes it, in any order and with any
/// outcome. It holds no stream, so that a stream lives only as long as the system holds it.
class FakeScreenCapture : public ScreenCapture {
public:
    void getShareableContentExcludingDesktopWindows(WindowsToList windows,
                                                    ContentCompletion completion) override {
        probedWindows = windows;
        probes.hold(std::move(completion));
    }
    void getShareableContent(ContentCompletion completion) override {
        lookups.hold(std::move(completion));
    }
    std::shared_ptr<SCStream> makeStream(const SCContentFilter& filter,
                                         const SCStreamConfiguration& configuration,
                                         std::shared_ptr<SCStreamDelegate> delegate) override {
        auto stream = std::make_shared<FakeStream>(starts, stops);
        stream->filter = filter;
        stream->configuration = configuration;
        stream->delegate = std::move(delegate);
        stream->errorOfAddition = errorOfAddition;
        streams.push_back(stream);
        return stream;
    }
    SCContentSharingPicker& sharedPicker() override { return picker; }
    ActiveDisplayList getActiveDisplayList(int maxDisplays) override {
        askedMaxDisplays = maxDisplays;
        return activeDisplays;
    }
    CGRect displayBounds(CGDirectDisplayID display) override {
        const auto found = bounds.find(display);
        return found == bounds.end() ? CGRect{} : found->second;
    }

    /// The content that a lookup is completed with when all is well.
    SCShareableContent content{{{1, 1920, 1080}}};

    /// The stream that was made at that place in the row; null once it has gone.
    std::shared_ptr<FakeStream> stream(std::size_t place) const { return streams[place].lock(); }
    long runningStreams() const {
        return std::count_if(streams.begin(), streams.end(), [](const auto& weak) {
            const auto stream = weak.lock();
            return stream && stream->isRunning;
        });
    }

    HeldCompletions<ContentOutcome> probes;
    HeldCompletions<ContentOutcome> lookups;
    /// Of all streams, in the order in which they were asked for.
    HeldOutcomes starts;
    HeldOutcomes stops;
    std::vector<std::weak_ptr<FakeStream>> streams;
    /// What adding an output to a stream made from now on answers.
    CaptureOutcome errorOfAddition;
    WindowsToList probedWindows;
    FakeSharingPicker picker;
    ActiveDisplayList activeDisplays{kCGErrorSuccess, {1}};
    std::map<CGDirectDisplayID, CGRect> bounds{{1, {0, 0, 1920, 1080}}};
    int askedMaxDisplays = 0;
};

} // namespace quillon::test
