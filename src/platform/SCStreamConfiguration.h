#pragma once

#include <cstdint>

namespace quillon {

/// A time as a fraction of seconds.
struct CMTime {
    std::int64_t value = 0;
    std::int32_t timescale = 1;

    double seconds() const { return static_cast<double>(value) / timescale; }

    friend bool operator==(const CMTime&, const CMTime&) = default;
};

/// The four-character code "BGRA".
inline constexpr std::uint32_t kCVPixelFormatType_32BGRA = 0x42475241;

/// How a stream shows its display. What a host cannot do makes the start of the stream fail.
class SCStreamConfiguration {
public:
    /// The size of a frame in pixels. Without scaling a frame has the size of its display, and
    /// these only say what is expected.
    void setWidth(std::int64_t width) { m_width = width; }
    void setHeight(std::int64_t height) { m_height = height; }
    /// At least this long between two frames.
    void setMinimumFrameInterval(CMTime interval) { m_minimumFrameInterval = interval; }
    void setShowsCursor(bool showsCursor) { m_showsCursor = showsCursor; }
    /// How many frames may wait for their receiver at most.
    void setQueueDepth(int depth) { m_queueDepth = depth; }
    void setPixelFormat(std::uint32_t format) { m_pixelFormat = format; }
    void setScalesToFit(bool scalesToFit) { m_scalesToFit = scalesToFit; }

    std::int64_t width() const { return m_width; }
    std::int64_t height() const { return m_height; }
    CMTime minimumFrameInterval() const { return m_minimumFrameInterval; }
    bool showsCursor() const { return m_showsCursor; }
    int queueDepth() const { return m_queueDepth; }
    std::uint32_t pixelFormat() const { return m_pixelFormat; }
    bool scalesToFit() const { return m_scalesToFit; }

    friend bool operator==(const SCStreamConfiguration&, const SCStreamConfiguration&) = default;

private:
    std::int64_t m_width = 0;
    std::int64_t m_height = 0;
    CMTime m_minimumFrameInterval{1, 60};
    bool m_showsCursor = true;
    int m_queueDepth = 8;
    std::uint32_t m_pixelFormat = kCVPixelFormatType_32BGRA;
    bool m_scalesToFit = true;
};

} // namespace quillon
