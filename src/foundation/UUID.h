#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// A 128-bit identity (RFC 4122).
class UUID {
public:
    /// A new random one, version 4.
    static UUID random();

    /// Reads the canonical text form, in either letter case; anything else yields nothing.
    static std::optional<UUID> fromString(std::string_view text);

    /// The canonical text form, in capitals.
    std::string uuidString() const;

    friend auto operator<=>(const UUID&, const UUID&) = default;

private:
    using Bytes = std::array<std::uint8_t, 16>;
    explicit UUID(const Bytes& bytes)
        : m_bytes(bytes) {}

    Bytes m_bytes;
};

} // namespace quillon
