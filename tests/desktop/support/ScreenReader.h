#pragma once

#include "desktop/support/Eventually.h"
#include "desktop/support/InputDriver.h"
#include "desktop/support/XConnection.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace quillon::test {

struct Rgb {
    int red = 0;
    int green = 0;
    int blue = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;
};

/// True when no component differs by more than `tolerance`.
bool isNear(Rgb a, Rgb b, int tolerance = 12);
std::ostream& operator<<(std::ostream& stream, Rgb color);

/// What a person would see: the pixels of the root window, with everything composed over it.
class ScreenReader {
public:
    explicit ScreenReader(XConnection& connection)
        : m_connection(connection) {}

    Rgb pixel(Pixel place) const;
    bool waitForPixel(Pixel place, const std::function<bool(Rgb)>& condition,
                      std::chrono::milliseconds bound = defaultBound) const;
    bool waitForColor(Pixel place, Rgb color, std::chrono::milliseconds bound = defaultBound) const;

    /// The whole screen as a PNG file.
    void save(const std::string& file) const;

private:
    /// Rows from the top, four bytes a pixel: blue, green, red, unused.
    std::vector<std::uint8_t> read(Pixel corner, int width, int height) const;

    XConnection& m_connection;
};

} // namespace quillon::test
