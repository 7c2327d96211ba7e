#include "desktop/support/DesktopScale.h"

#include <bit>
#include <string_view>
#include <vector>

namespace quillon::test {

namespace {

constexpr std::string_view kName = "Xft/DPI";
constexpr int kDotsPerInch = 96;
/// The unit in which the service tells dots per inch.
constexpr int kFractions = 1024;

/// The bytes of the one setting, in this machine's order.
class Settings {
public:
    Settings(std::uint32_t serial, int percent) {
        constexpr std::uint8_t integerType = 0;
        add8(std::endian::native == std::endian::little ? 0 : 1);
        m_bytes.resize(4);
        add32(serial);
        add32(1);
        add8(integerType);
        add8(0);
        add16(kName.size());
        m_bytes.insert(m_bytes.end(), kName.begin(), kName.end());
        m_bytes.resize((m_bytes.size() + 3) / 4 * 4);
        add32(serial);
        add32(static_cast<std::uint32_t>(kDotsPerInch * percent / 100 * kFractions));
    }

    const std::vector<std::uint8_t>& bytes() const { return m_bytes; }

private:
    void add8(std::uint8_t value) { m_bytes.push_back(value); }
    void add16(std::size_t value) { addBytes(static_cast<std::uint16_t>(value)); }
    void add32(std::uint32_t value) { addBytes(value); }
    template <typename T>
    void addBytes(T value) {
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(&value);
        m_bytes.insert(m_bytes.end(), bytes, bytes + sizeof value);
    }

    std::vector<std::uint8_t> m_bytes;
};

} // namespace

DesktopScale::DesktopScale(const std::string& display, int percent)
    : m_connection(display)
    , m_window(xcb_generate_id(m_connection.get())) {
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_window, m_connection.root(), -1,
                      -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    change(percent);
    xcb_set_selection_owner(m_connection.get(), m_window, m_connection.atom("_XSETTINGS_S0"),
                            XCB_CURRENT_TIME);
    m_connection.synchronise();
}

void DesktopScale::change(int percent) {
    const Settings settings(++m_serial, percent);
    const auto name = m_connection.atom("_XSETTINGS_SETTINGS");
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, m_window, name, name, 8,
                        static_cast<std::uint32_t>(settings.bytes().size()),
                        settings.bytes().data());
    m_connection.synchronise();
}

} // namespace quillon::test
