// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/screen_capture.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/shell.h"

#include <fmt/format.h>

namespace app
{

namespace
{

using platform::Os;

// How often another program may take the very name that was free a moment before.
constexpr int kMostAttempts = 100;

bool IsTaken(const std::string& path)
{
    return Os().files->FindFirstFile(path).has_value();
}

}  // namespace

std::string NumberedName(const std::string& folder, const std::string& prefix, const std::string& extension)
{
    for (int number = 1;; ++number) {
        std::string path =
            fmt::format("{}/{}{:04}.{}", folder == "/" ? "" : folder, prefix, number, extension);
        if (!IsTaken(path))
            return path;
    }
}

std::string SaveScreenCapture(const std::string& folder, const platform::Bitmap& picture)
{
    const std::string workFolder = folder.empty() ? std::string() : Os().files->GetTempPath();
    if (workFolder.empty())
        return {};
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        const std::string path = NumberedName(folder, "ScreenCapture-", "jpg");
        const std::string draft = browser::JoinPath(workFolder, browser::FileName(path));
        // Made whole elsewhere and then moved, which never overwrites.
        if (!Os().images->SaveJpeg(picture, draft, platform::kDefaultJpegQuality))
            break;
        if (Os().shell->SHFileOperation({platform::FileOperation::move, {draft}, folder}))
            return path;
        Os().files->DeleteFile(draft);
        if (!IsTaken(path))
            break;
    }
    return {};
}

}  // namespace app
