// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/index_cache.h"

#include <list>
#include <mutex>

namespace archive
{
namespace
{

constexpr std::size_t kMostIndexes = 8;
// Over all indexes but the newest: some 30 MB.
constexpr std::size_t kMostMembers = 100'000;

struct KeptIndex {
    std::string path;
    platform::FileStamp stamp;
    std::unique_ptr<CPackageIndex> index;
};

std::mutex guard;

// The one used last comes first. Never destroyed: freeing every name at the end of the process is lost time.
std::list<KeptIndex>& Kept()
{
    static auto* const kept = new std::list<KeptIndex>;
    return *kept;
}

void DropOldest()
{
    std::list<KeptIndex>& kept = Kept();
    std::size_t members = 0;
    std::size_t indexes = 0;
    auto last = kept.begin();
    while (last != kept.end() && indexes < kMostIndexes && (indexes == 0 || members < kMostMembers)) {
        members += last->index->Count();
        ++indexes;
        ++last;
    }
    kept.erase(last, kept.end());
}

std::unique_ptr<CPackageIndex> Remove(const std::string& path, const platform::FileStamp& stamp)
{
    std::list<KeptIndex>& kept = Kept();
    std::unique_ptr<CPackageIndex> found;
    for (auto place = kept.begin(); place != kept.end();) {
        if (place->path != path) {
            ++place;
            continue;
        }
        if (place->stamp == stamp)
            found = std::move(place->index);
        place = kept.erase(place);
    }
    return found;
}

}  // namespace

std::unique_ptr<CPackageIndex> TakeIndex(const std::string& path, const platform::FileStamp& stamp)
{
    const std::lock_guard hold(guard);
    return Remove(path, stamp);
}

void KeepIndex(const std::string& path, const platform::FileStamp& stamp,
               std::unique_ptr<CPackageIndex> index)
{
    const std::lock_guard hold(guard);
    Remove(path, stamp);
    Kept().push_front({path, stamp, std::move(index)});
    DropOldest();
}

}  // namespace archive
