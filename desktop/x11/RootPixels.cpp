#include "desktop/x11/RootPixels.h"

#include "desktop/x11/XcbHandles.h"

#include <xcb/shm.h>

#include <algorithm>
#include <cstddef>

namespace quillon::desktop {

namespace {

/// Enough for a square of 512 pixels, which few lenses exceed.
constexpr std::size_t initialBytes = std::size_t{512} * 512 * 4;
constexpr std::uint32_t allPlanes = ~std::uint32_t{0};

bool offersSharedMemory(xcb_connection_t* connection) {
    if (!xcb_get_extension_data(connection, &xcb_shm_id)->present) {
        return false;
    }
    const XcbOwned<xcb_shm_query_version_reply_t> version(
        xcb_shm_query_version_reply(connection, xcb_shm_query_version(connection), nullptr));
    return version != nullptr;
}

} // namespace

RootPixels::RootPixels(xcb_connection_t* connection, xcb_window_t root, const PixelLayout& layout)
    : m_connection(connection)
    , m_root(root)
    , m_layout(layout) {
    if (offersSharedMemory(connection)) {
        prepareMemory(initialBytes);
    }
}

std::shared_ptr<const PixelRows> RootPixels::read(const xcb_rectangle_t& rect) {
    const std::size_t bytes = m_layout.bytesPerRow(rect.width) * rect.height;
    if (m_memory && prepareMemory(bytes)) {
        const auto request =
            xcb_shm_get_image(m_connection, m_root, rect.x, rect.y, rect.width, rect.height,
                              allPlanes, XCB_IMAGE_FORMAT_Z_PIXMAP, m_segment, 0);
        const XcbOwned<xcb_shm_get_image_reply_t> reply(
            xcb_shm_get_image_reply(m_connection, request, nullptr));
        return reply ? rowsOf(m_memory->bytes(), rect) : nullptr;
    }
    const auto request = xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, rect.x,
                                       rect.y, rect.width, rect.height, allPlanes);
    const XcbOwned<xcb_get_image_reply_t> reply(
        xcb_get_image_reply(m_connection, request, nullptr));
    if (!reply) {
        return nullptr;
    }
    const auto length = static_cast<std::size_t>(xcb_get_image_data_length(reply.get()));
    return rowsOf({xcb_get_image_data(reply.get()), length}, rect);
}

std::shared_ptr<const PixelRows> RootPixels::rowsOf(std::span<const std::uint8_t> bytes,
                                                    const xcb_rectangle_t& rect) const {
    if (bytes.size() < m_layout.bytesPerRow(rect.width) * rect.height) {
        return nullptr;
    }
    return std::make_shared<PixelRows>(m_layout.convert(bytes, rect.width, rect.height));
}

bool RootPixels::prepareMemory(std::size_t bytes) {
    if (m_memory && m_memory->bytes().size() >= bytes) {
        return true;
    }
    if (m_memory) {
        xcb_shm_detach(m_connection, m_segment);
    }
    m_memory.reset();
    if (auto memory = SharedMemory::ofSize(bytes)) {
        const std::uint32_t segment = xcb_generate_id(m_connection);
        const bool readOnly = false;
        const auto request = xcb_shm_attach_checked(m_connection, segment, memory->id(), readOnly);
        if (!requestError(m_connection, request) && xcb_connection_has_error(m_connection) == 0) {
            memory->freeAfterLastUse();
            m_memory.emplace(std::move(*memory));
            m_segment = segment;
        }
    }
    return m_memory.has_value();
}

} // namespace quillon::desktop
