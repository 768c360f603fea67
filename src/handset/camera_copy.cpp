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

void MakePath(const std::string& path)
{
    for (std::size_t slash = path.find('/', 1); slash != std::string::npos; slash = path.find('/', slash + 1))
        platform::Os().files->CreateDirectory(path.substr(0, slash));
    platform::Os().files->CreateDirectory(path);
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

// A folder that cannot be made shows at the first file, which then fails. Without a download folder none is
// made: its parent would be the root of the file system.
void CCameraCopy::MakeFolder()
{
    std::string parent = plan.downloadFolder;
    if (parent.empty())
        return;
    while (parent.size() > 1 && parent.back() == '/')
        parent.pop_back();
    folder = fmt::format("{}/{}", parent, CameraFolderName(platform::Os().utility->ql_GetCurDate()));
    MakePath(folder);
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
    if (folder.empty())
        return false;
    if (module.UploadFile(1, static_cast<unsigned>(position), static_cast<unsigned>(kind),
                          CameraFileStem(folder, isPhoto ? "DSC" : "AVI", number), nullptr) == 0) {
        if (!halted)
            failure = module.LastError();
        return false;
    }
    if (plan.numbers.useId)
        ++counter;
    files.push_back(module.UploadedPath());
    return true;
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
