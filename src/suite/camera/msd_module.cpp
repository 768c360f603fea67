// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/camera/msd_module.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>

namespace suite
{

namespace
{

// A look must not take long, on a slow card either.
constexpr ListBounds kLook = {10'000, 30'000};

std::string ParentOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : slash == 0 ? "/" : path.substr(0, slash);
}

// As the store's file has it, without the dot; a name without one is not listed.
std::string ExtensionOf(const std::string& path)
{
    return path.substr(path.rfind('.') + 1);
}

}  // namespace

int CMountedStore::Fail(int reason)
{
    error = std::strerror(reason);
    failure = platform::MsdFailure::other;
    return 0;
}

// As Fail, for a copy, which may fail for either of its ends.
int CMountedStore::FailCopy(int reason)
{
    Fail(reason);
    if (!IsStillThere(connected))
        failure = platform::MsdFailure::storeGone;
    else if (reason == ENOSPC || reason == EDQUOT)
        failure = platform::MsdFailure::diskFull;
    return 0;
}

void CMountedStore::UnInitMsd()
{
    std::unique_ptr<CCopyAhead> ended;
    {
        const std::lock_guard lock(mutex);
        ended = std::move(copies);
    }
    ended.reset();
    files.clear();
    list = {};
    isConnected = false;
    uploaded.clear();
}

int CMountedStore::InitMsd(const std::string& deviceFile, char drive, int kind)
{
    UnInitMsd();
    if (drive != 0)
        return Fail(ENODEV);  // volumes have no letters
    {
        const std::lock_guard lock(mutex);
        aborted = false;
    }
    const DeviceRules rules = ReadDeviceFile(deviceFile);
    // The first store with something in it; else the first.
    for (const FoundStore& store : FindStores(rules)) {
        StoreList found = ListStore(store.root, rules);
        if (!isConnected || list.IsEmpty()) {
            list = std::move(found);
            connected = store;
        }
        isConnected = true;
        if (!list.IsEmpty())
            break;
    }
    if ((kind & platform::kMsdPhoto) == 0)
        list.photos.clear();
    if ((kind & platform::kMsdClip) == 0)
        list.clips.clear();
    for (const auto* kindOfFiles : {&list.photos, &list.clips}) {
        for (const StoredFile& file : *kindOfFiles)
            files.push_back(&file);
    }
    return isConnected ? 1 : Fail(ENODEV);
}

int CMountedStore::GetFileCount(int kind, int* count)
{
    *count = 0;
    if (!isConnected)
        return Fail(ENODEV);
    const std::size_t photos = (kind & platform::kMsdPhoto) != 0 ? list.photos.size() : 0;
    const std::size_t clips = (kind & platform::kMsdClip) != 0 ? list.clips.size() : 0;
    *count = static_cast<int>(photos + clips);
    return 1;
}

std::size_t CMountedStore::IndexOf(int kind, unsigned number) const
{
    const bool isPhoto = kind == platform::kMsdPhoto;
    const std::size_t count = isPhoto ? list.photos.size() : list.clips.size();
    if ((!isPhoto && kind != platform::kMsdClip) || number < 1 || number > count)
        return files.size();
    return number - 1 + (isPhoto ? 0 : list.photos.size());
}

// False when the run was ended by Abort.
bool CMountedStore::PrepareCopies(const std::string& folder, std::size_t index)
{
    std::unique_ptr<CCopyAhead> ended;
    const std::lock_guard lock(mutex);
    if (aborted)
        return false;
    if (!copies || copies->Next() != index || copies->Folder() != folder) {
        ended = std::move(copies);
        ended.reset();
        copies = std::make_unique<CCopyAhead>(files, folder, index);
    }
    return true;
}

// Whether everything in the folder is on the medium, names included.
bool CMountedStore::Settle(const std::string& folder)
{
    const CDescriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return opened.IsOpen() && syncfs(opened.Get()) == 0;
}

int CMountedStore::UploadFile(int device, unsigned number, unsigned kind, const std::string& path,
                              Progress progress)
{
    const std::size_t index = IndexOf(static_cast<int>(kind), number);
    if (!isConnected || device != 1 || index == files.size())
        return Fail(ENODEV);
    const std::string folder = ParentOf(path);
    if (!PrepareCopies(folder, index))
        return Fail(ECANCELED);
    // Only this thread ever replaces the object.
    const std::unique_ptr<CVerifiedCopy> copy = copies->Take(progress);
    if (!copy)
        return Fail(ECANCELED);
    if (copy->Failure() != 0 || !copy->GiveName(path + ExtensionOf(files[index]->path)))
        return FailCopy(copy->Failure());
    uploaded = copy->Path();
    return index + 1 < files.size() || Settle(folder) ? 1 : FailCopy(errno);
}

void CMountedStore::Abort(int)
{
    const std::lock_guard lock(mutex);
    aborted = true;
    if (copies)
        copies->Stop();
}

int CMountedStore::DeleteMsdFile(int kind, int number)
{
    int result = isConnected ? 1 : Fail(ENODEV);
    for (std::size_t index = 0; index < files.size(); ++index) {
        const bool isPhoto = index < list.photos.size();
        const std::size_t position = isPhoto ? index + 1 : index + 1 - list.photos.size();
        const int own = isPhoto ? platform::kMsdPhoto : platform::kMsdClip;
        if ((kind & own) == 0 || (number != 0 && static_cast<std::size_t>(number) != position))
            continue;
        if (!IsUnchanged(*files[index]))
            result = Fail(ESTALE);
        else if (unlink(files[index]->path.c_str()) != 0)
            result = Fail(errno);
    }
    return result;
}

std::optional<platform::MsdSurvey> CMountedStore::Survey(const std::string& deviceFile) const
{
    const DeviceRules rules = ReadDeviceFile(deviceFile);
    for (const FoundStore& store : FindStores(rules)) {
        const StoreList found = ListStore(store.root, rules, kLook);
        if (!found.IsEmpty())
            return platform::MsdSurvey{store.root, store.label, static_cast<int>(found.photos.size()),
                                       static_cast<int>(found.clips.size()), found.isCut};
    }
    return std::nullopt;
}

}  // namespace suite
