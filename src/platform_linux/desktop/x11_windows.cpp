// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/desktop/x11_windows.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <unistd.h>
#include <xcb/xcb.h>

namespace platform_linux
{

namespace
{

constexpr std::uint32_t kMostValues = 4096;
constexpr int kMostLevels = 32;

template <typename Answer> using Held = std::unique_ptr<Answer, decltype(&std::free)>;
template <typename Answer> Held<Answer> Hold(Answer* answer)
{
    return {answer, &std::free};
}

bool Contains(const std::vector<std::uint32_t>& values, std::uint32_t value)
{
    return std::ranges::find(values, value) != values.end();
}

platform::BitmapHandle BitmapOf(const xcb_get_image_reply_t& image, int width, int height)
{
    // Every display of today has 32 bits a pixel, blue in the lowest byte.
    const std::size_t pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if ((image.depth != 24 && image.depth != 32) ||
        static_cast<std::size_t>(xcb_get_image_data_length(&image)) < pixels * 4)
        return nullptr;
    auto bitmap = std::make_shared<platform::Bitmap>();
    bitmap->width = width;
    bitmap->height = height;
    bitmap->pixels.resize(pixels);
    std::memcpy(bitmap->pixels.data(), xcb_get_image_data(&image), pixels * 4);
    for (std::uint32_t& pixel : bitmap->pixels)
        pixel |= 0xff000000U;
    return bitmap;
}

}  // namespace

void CX11Windows::Free::operator()(xcb_connection_t* opened) const
{
    xcb_disconnect(opened);
}

CX11Windows::CX11Windows() : connection(xcb_connect(nullptr, nullptr))
{
    if (IsConnected())
        root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
}

CX11Windows::~CX11Windows() = default;

bool CX11Windows::IsConnected() const
{
    return xcb_connection_has_error(connection.get()) == 0;
}

std::uint32_t CX11Windows::Atom(const char* name) const
{
    xcb_connection_t* const x = connection.get();
    const auto cookie = xcb_intern_atom(x, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const auto answer = Hold(xcb_intern_atom_reply(x, cookie, nullptr));
    return answer ? answer->atom : std::uint32_t{XCB_ATOM_NONE};
}

std::vector<std::uint32_t> CX11Windows::Property(std::uint32_t window, const char* name) const
{
    xcb_connection_t* const x = connection.get();
    const auto cookie = xcb_get_property(x, 0, window, Atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, kMostValues);
    const auto answer = Hold(xcb_get_property_reply(x, cookie, nullptr));
    if (!answer || answer->format != 32)
        return {};
    const auto* const values = static_cast<const std::uint32_t*>(xcb_get_property_value(answer.get()));
    return {values, values + answer->value_len};
}

bool CX11Windows::IsCandidate(std::uint32_t window) const
{
    const std::vector<std::uint32_t> process = Property(window, "_NET_WM_PID");
    const std::vector<std::uint32_t> type = Property(window, "_NET_WM_WINDOW_TYPE");
    const auto cookie = xcb_get_window_attributes(connection.get(), window);
    const auto facts = Hold(xcb_get_window_attributes_reply(connection.get(), cookie, nullptr));
    return facts && facts->map_state == XCB_MAP_STATE_VIEWABLE &&
           !Contains(process, static_cast<std::uint32_t>(getpid())) &&
           !Contains(type, Atom("_NET_WM_WINDOW_TYPE_DESKTOP")) &&
           !Contains(type, Atom("_NET_WM_WINDOW_TYPE_DOCK"));
}

std::uint32_t CX11Windows::ForemostOfOthers() const
{
    std::vector<std::uint32_t> windows = Property(root, "_NET_CLIENT_LIST_STACKING");
    std::ranges::reverse(windows);
    const auto found = std::ranges::find_if(windows, [this](auto window) { return IsCandidate(window); });
    return found == windows.end() ? 0 : *found;
}

std::uint32_t CX11Windows::FrameOf(std::uint32_t window) const
{
    for (int level = 0; level < kMostLevels; ++level) {
        const auto cookie = xcb_query_tree(connection.get(), window);
        const auto answer = Hold(xcb_query_tree_reply(connection.get(), cookie, nullptr));
        if (!answer || answer->parent == root || answer->parent == XCB_NONE)
            break;
        window = answer->parent;
    }
    return window;
}

platform::BitmapHandle CX11Windows::Picture(std::uint32_t window) const
{
    xcb_connection_t* const x = connection.get();
    const auto box = Hold(xcb_get_geometry_reply(x, xcb_get_geometry(x, FrameOf(window)), nullptr));
    const auto screen = Hold(xcb_get_geometry_reply(x, xcb_get_geometry(x, root), nullptr));
    if (!box || !screen)
        return nullptr;
    const int left = std::max<int>(box->x, 0);
    const int top = std::max<int>(box->y, 0);
    const int width = std::min<int>(box->x + box->width + 2 * box->border_width, screen->width) - left;
    const int height = std::min<int>(box->y + box->height + 2 * box->border_width, screen->height) - top;
    if (width <= 0 || height <= 0)
        return nullptr;
    const auto cookie = xcb_get_image(x, XCB_IMAGE_FORMAT_Z_PIXMAP, root, static_cast<std::int16_t>(left),
                                      static_cast<std::int16_t>(top), static_cast<std::uint16_t>(width),
                                      static_cast<std::uint16_t>(height), ~0U);
    const auto image = Hold(xcb_get_image_reply(x, cookie, nullptr));
    return image ? BitmapOf(*image, width, height) : nullptr;
}

}  // namespace platform_linux
