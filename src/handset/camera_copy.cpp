// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/camera_copy.h"

#include "photo/local_time.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/utility.h"

#include <fmt/format.h>

namespace handset
{

namespace
{

using platform::StringId;

// Makes the folder with all above it; false, with the reason, when it is not there after that.
bool MakePath(const std::string& path, std::string& why)
{
    for (std::size_t end = 0; end != std::string::npos;) {
        end = path.find('/', end + 1);
        const std::string part = path.substr(0, end);
        if (platform::Os().files->CreateDirectory(part))
            continue;
        why = platform::Os().files->LastError();
        if (!platform::Os().files->FindFirstFile(part))
            return false;
    }
    return true;
}

}  // namespace

std::string CameraFileStem(const std::string& folder, const std::string& prefix, int number)
{
    return fmt::format("{}/{}{:05}.", folder, prefix, number);
}

std::string CameraFolderName(platform::FileTime moment)
{
    const photo::ExifDate date = photo::FileTimeToLocal(moment);
    return fmt::format("{:02}-{:02}-{:04} {:02}-{:02}-{:02}", date.month, date.day, date.year, date.hour,
                       date.minute, date.second);
}

CCameraCopy::CCameraCopy(platform::CMsdModule& library, CameraCopyPlan thePlan, CCameraCopyHost& shownBy)
    : module(library), plan(std::move(thePlan)), host(shownBy)
{
}

CCameraCopy::~CCameraCopy()
{
    if (isRunning && !halted)
        Halt(1);
    module.UnInitMsd();
}

bool CCameraCopy::Start()
{
    module.UnInitMsd();
    if (module.InitMsd(fmt::format("{}/Dev.ini", plan.programFolder), 0, platform::kMsdAll) == 0) {
        host.ShowMessage(StringId::cameraNotAvailable);
        return false;
    }
    if (module.GetFileCount(platform::kMsdAll, &total) == 0 || total == 0) {
        total = 0;
        host.ShowMessage(StringId::cameraNoPhoto);
        return false;
    }
    host.ShowCount(copied, total);
    MakeFolder();
    isRunning = true;
    return true;
}

// What goes wrong here is told at the first file. Without a download folder none is made: its parent would be
// the root of the file system.
void CCameraCopy::MakeFolder()
{
    std::string parent = plan.downloadFolder;
    if (parent.empty()) {
        Fail(Trouble::noPlace, {});
        return;
    }
    while (parent.size() > 1 && parent.back() == '/')
        parent.pop_back();
    folder = fmt::format("{}/{}", parent, CameraFolderName(platform::Os().utility->ql_GetCurDate()));
    std::string why;
    if (!MakePath(folder, why))
        Fail(Trouble::noFolder, why);
}

bool CCameraCopy::Step()
{
    if (!isRunning || halted || steps >= total)
        return false;
    ++steps;
    int photos = 0;
    int clips = 0;
    module.GetFileCount(platform::kMsdPhoto, &photos);
    module.GetFileCount(platform::kMsdClip, &clips);
    if (photos != 0 || clips != 0) {
        const int next = copied + 1;
        const bool isPhoto = next <= photos;
        if (!CopyOne(isPhoto, isPhoto ? next : next - photos) || halted) {
            if (!halted)
                Stop();
            isRunning = false;
            return false;
        }
        host.ShowCount(++copied, total);
    }
    isRunning = steps < total;
    return isRunning;
}

bool CCameraCopy::CopyOne(bool isPhoto, int position)
{
    int& counter = isPhoto ? plan.numbers.photo : plan.numbers.clip;
    const int number = plan.numbers.useId ? counter : position;
    const int kind = isPhoto ? platform::kMsdPhoto : platform::kMsdClip;
    if (trouble != Trouble::none)
        return false;
    if (module.UploadFile(1, static_cast<unsigned>(position), static_cast<unsigned>(kind),
                          CameraFileStem(folder, isPhoto ? "DSC" : "AVI", number), nullptr) == 0) {
        using enum platform::MsdFailure;
        const platform::MsdFailure why = module.LastFailure();
        return !halted && Fail(why == storeGone  ? Trouble::storeGone
                               : why == diskFull ? Trouble::diskFull
                                                 : Trouble::other,
                               module.LastError());
    }
    if (plan.numbers.useId)
        ++counter;
    files.push_back(module.UploadedPath());
    return true;
}

// False, for the caller to return.
bool CCameraCopy::Fail(Trouble what, const std::string& why)
{
    trouble = what;
    failure = why;
    return false;
}

void CCameraCopy::Finish()
{
    if (!IsWhole())
        return;
    module.Abort(0);
    const bool isMeant = plan.delDscPhoto == 1 ||
                         (plan.delDscPhoto == 2 && host.AskYesNo(StringId::cameraDeleteAll) == kBoxOk);
    if (isMeant)
        keptPhotos = module.DeleteMsdFile(platform::kMsdAll, 0) == 0;
}

void CCameraCopy::Halt(int reason)
{
    halted = true;
    module.Abort(reason);
}

}  // namespace handset
