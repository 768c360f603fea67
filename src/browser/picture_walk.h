// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPictureWalk: pictures in the order of a list, and the one that is looked at.
//
// It goes by name, so that it outlives the list's being read anew: when the picture looked at is gone, the
// next one that is still there takes its place, or the last one before it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace browser
{

class CMediaFileList;
struct MediaItem;

enum class WalkEnds { stop, goAround };

class CPictureWalk
{
public:
    explicit CPictureWalk(WalkEnds atEnds = WalkEnds::stop) : ends(atEnds) {}

    // Takes the names in their new order and stays where it was, as far as that is still there.
    void SetNames(std::vector<std::string> wanted);
    // False when there is no such name; then it stays where it was.
    bool GoTo(std::string_view name);
    // So many further on, or back when negative; false when that is where it stands already.
    bool Step(int by);

    int Count() const { return static_cast<int>(names.size()); }
    int Position() const { return position; }
    // Empty when there is none.
    const std::string& Current() const;
    // The one looked at, the next in the direction of the latest step, the one on the other side; as far as
    // they are there, none twice.
    std::vector<std::string> Nearby() const;

private:
    int Beside(int by) const;

    WalkEnds ends;
    std::vector<std::string> names;
    int position = 0;
    int direction = 1;
};

// Whether it is a file of which there is a picture: a photo, handset image or the frame of a clip.
bool IsPicture(const MediaItem& item);
// All of those of a list.
std::vector<std::string> PictureNames(const CMediaFileList& list);

}  // namespace browser
