// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CCopyAhead: copies of many files, made and verified a little ahead of being asked for.
//
// A medium takes many files at once much sooner than one after the other. Two threads each take a batch of
// files, copy all of it, and only then wait for the medium and compare: while one waits the other copies.
// They stay at most some batches ahead of what was taken. Nothing has a name before it is taken.
#pragma once

#include "suite/camera/store_list.h"
#include "suite/camera/verified_copy.h"

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

namespace suite
{

class CCopyAhead
{
public:
    using Progress = void (*)(int done, int all);

    // Begins at once with file `first` of `files`, which outlive the object.
    CCopyAhead(const std::vector<const StoredFile*>& files, std::string folder, std::size_t first);
    // Stops, and removes what was not taken.
    ~CCopyAhead();
    CCopyAhead(const CCopyAhead&) = delete;
    CCopyAhead& operator=(const CCopyAhead&) = delete;

    const std::string& Folder() const { return folder; }
    // The file that Take gives next.
    std::size_t Next() const { return taken; }
    // Waits for the next copy: verified, or with the reason of its failure.
    std::unique_ptr<CVerifiedCopy> Take(Progress progress);
    // On any thread: the copies in work fail, and so do all later ones.
    void Stop();

private:
    struct Item {
        std::unique_ptr<CVerifiedCopy> copy;
        bool isDone = false;
    };
    using Batch = std::vector<std::size_t>;

    void Work();
    Batch NextBatch();
    void MakeBatch(const Batch& batch);
    void SetDone(std::size_t index);

    const std::vector<const StoredFile*>& files;
    const std::string folder;
    std::mutex mutex;
    std::condition_variable changed;
    std::map<std::size_t, Item> items;  // in work or ready
    std::size_t begun;                  // all files before this one are in work, ready or taken
    std::size_t taken;
    std::uint64_t bytesAhead = 0;  // of the items
    bool stopped = false;
    std::thread threads[2];
};

}  // namespace suite
