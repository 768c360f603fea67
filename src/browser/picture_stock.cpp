// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/picture_stock.h"

#include <algorithm>

namespace browser
{

namespace
{

constexpr std::size_t kBytesPerPixel = 4;

std::size_t BytesOf(const DecodedPicture& picture)
{
    return picture.pixels ? picture.pixels->pixels.size() * kBytesPerPixel : 0;
}

std::size_t MostBytes(platform::Extent box)
{
    return static_cast<std::size_t>(box.width) * static_cast<std::size_t>(box.height) * kBytesPerPixel;
}

}  // namespace

void CPictureStock::Want(std::vector<PictureRequest> requests)
{
    wanted = std::move(requests);
    std::erase_if(held, [this](const Held& one) { return !IsWanted(one.request.path); });
}

void CPictureStock::Recheck()
{
    for (Held& one : held)
        one.stale = true;
}

bool CPictureStock::IsWanted(const std::string& path) const
{
    return std::ranges::find(wanted, path, &PictureRequest::path) != wanted.end();
}

const CPictureStock::Held* CPictureStock::FindHeld(const PictureRequest& request) const
{
    const auto found = std::ranges::find(held, request, &Held::request);
    return found == held.end() ? nullptr : &*found;
}

std::optional<CPictureStock::Job> CPictureStock::NextJob() const
{
    for (const PictureRequest& request : wanted) {
        const Held* there = FindHeld(request);
        if (there && there->stale)
            return Job{request, there->picture.stamp};
        const bool isAhead = request.path != wanted.front().path;
        if (!there && (!isAhead || BytesHeld() + MostBytes(request.box) <= kMostBytesAhead))
            return Job{request, std::nullopt};
    }
    return std::nullopt;
}

void CPictureStock::Deliver(const PictureRequest& request, std::optional<DecodedPicture> picture)
{
    if (!IsWanted(request.path))
        return;
    if (!picture) {
        for (Held& one : held) {
            if (one.request == request)
                one.stale = false;
        }
        return;
    }
    // What it replaces: itself, what nobody wants any more, and what was made from a file that has changed.
    std::erase_if(held, [&](const Held& one) {
        return one.request.path == request.path &&
               (one.request == request || one.picture.stamp != picture->stamp ||
                std::ranges::find(wanted, one.request) == wanted.end());
    });
    held.push_back({request, *std::move(picture)});
}

const DecodedPicture* CPictureStock::Find(const PictureRequest& request) const
{
    if (const Held* exact = FindHeld(request))
        return &exact->picture;
    const DecodedPicture* best = nullptr;
    for (const Held& one : held) {
        if (one.request.path == request.path && (!best || BytesOf(one.picture) > BytesOf(*best)))
            best = &one.picture;
    }
    return best;
}

std::size_t CPictureStock::BytesHeld() const
{
    std::size_t bytes = 0;
    for (const Held& one : held)
        bytes += BytesOf(one.picture);
    return bytes;
}

}  // namespace browser
