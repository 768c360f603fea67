// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPictureStock: which pictures a large view holds, and which one is to be decoded next.
//
// The owner says what is wanted, most urgent first, whenever that changes, and has one picture decoded at a
// time. Only pictures of files that are wanted are held; those behind the first are decoded ahead only as
// long as memory allows. A picture of another size than the one wanted is held until that one is there, so
// that there is always something to see.
#pragma once

#include "browser/picture_decoder.h"

#include <optional>
#include <string>
#include <vector>

namespace browser
{

class CPictureStock
{
public:
    // What may be held before nothing more is decoded ahead.
    static constexpr std::size_t kMostBytesAhead = std::size_t{128} << 20;

    struct Job {
        PictureRequest request;
        // The stamp of what is held: when the file still has it, nothing is to be decoded.
        std::optional<FileStamp> heldStamp;
    };

    // Nothing wanted lets go of everything.
    void Want(std::vector<PictureRequest> requests);
    // The files may have changed: each is looked at again, and what is held serves until then.
    void Recheck();
    // The most urgent work, if there is any.
    std::optional<Job> NextJob() const;
    // The outcome of a job; no picture when the file has not changed.
    void Deliver(const PictureRequest& request, std::optional<DecodedPicture> picture);

    // The picture at the size asked for, else the largest there is, or null. Holds until the next call of
    // another function.
    const DecodedPicture* Find(const PictureRequest& request) const;
    std::size_t BytesHeld() const;

private:
    struct Held {
        PictureRequest request;
        DecodedPicture picture;
        bool stale = false;
    };
    const Held* FindHeld(const PictureRequest& request) const;
    bool IsWanted(const std::string& path) const;

    std::vector<PictureRequest> wanted;
    std::vector<Held> held;
};

}  // namespace browser
