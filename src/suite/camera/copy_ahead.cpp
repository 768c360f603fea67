// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/camera/copy_ahead.h"

#include <algorithm>
#include <cerrno>
#include <chrono>

namespace suite
{

namespace
{

constexpr std::size_t kBatchFiles = 24;
constexpr std::uint64_t kBatchBytes = std::uint64_t{24} << 20;
constexpr std::size_t kFilesAhead = 3 * kBatchFiles;
constexpr std::uint64_t kBytesAhead = 3 * kBatchBytes;

}  // namespace

CCopyAhead::CCopyAhead(const std::vector<const StoredFile*>& theFiles, std::string theFolder,
                       std::size_t first)
    : files(theFiles), folder(std::move(theFolder)), begun(first), taken(first)
{
    for (std::thread& thread : threads)
        thread = std::thread([this] { Work(); });
}

CCopyAhead::~CCopyAhead()
{
    Stop();
    for (std::thread& thread : threads)
        thread.join();
}

void CCopyAhead::Stop()
{
    const std::lock_guard lock(mutex);
    stopped = true;
    for (auto& [index, item] : items)
        item.copy->Stop();
    changed.notify_all();
}

// Empty when there is nothing more to do. A large file is a batch of its own, so that none waits for it but
// itself.
CCopyAhead::Batch CCopyAhead::NextBatch()
{
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] {
        return stopped || begun == files.size() || items.empty() ||
               (items.size() < kFilesAhead && bytesAhead < kBytesAhead);
    });
    Batch batch;
    std::uint64_t bytes = 0;
    while (!stopped && begun < files.size() && batch.size() < kBatchFiles &&
           (batch.empty() || bytes + files[begun]->size <= kBatchBytes)) {
        bytes += files[begun]->size;
        items[begun].copy = std::make_unique<CVerifiedCopy>(files[begun]->path, folder);
        batch.push_back(begun++);
    }
    bytesAhead += bytes;
    return batch;
}

void CCopyAhead::SetDone(std::size_t index)
{
    const std::lock_guard lock(mutex);
    items[index].isDone = true;
    changed.notify_all();
}

void CCopyAhead::MakeBatch(const Batch& batch)
{
    std::vector<CVerifiedCopy*> copies;
    {
        const std::lock_guard lock(mutex);
        for (const std::size_t index : batch)
            copies.push_back(items[index].copy.get());
    }
    for (CVerifiedCopy* copy : copies)
        copy->Copy();
    for (std::size_t i = 0; i < batch.size(); ++i) {
        if (copies[i]->Failure() == 0)
            copies[i]->Verify();
        SetDone(batch[i]);
    }
}

void CCopyAhead::Work()
{
    for (Batch batch = NextBatch(); !batch.empty(); batch = NextBatch())
        MakeBatch(batch);
}

std::unique_ptr<CVerifiedCopy> CCopyAhead::Take(Progress progress)
{
    constexpr std::chrono::milliseconds kBetweenReports{200};
    std::unique_lock lock(mutex);
    const auto isReady = [this] {
        const auto found = items.find(taken);
        return stopped || (found != items.end() && found->second.isDone);
    };
    while (!changed.wait_for(lock, kBetweenReports, isReady)) {
        const auto found = items.find(taken);
        if (!progress || found == items.end())
            continue;
        const auto done = static_cast<int>(found->second.copy->BytesCopied() >> 10);
        lock.unlock();
        progress(done, static_cast<int>(files[taken]->size >> 10));
        lock.lock();
    }
    if (stopped)
        return nullptr;
    auto node = items.extract(taken);
    bytesAhead -= std::min(bytesAhead, files[taken]->size);
    ++taken;
    changed.notify_all();
    return std::move(node.mapped().copy);
}

}  // namespace suite
