// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/linux_screen_saver.h"

#include "platform_linux/base_folders.h"
#include "platform_linux/failure.h"
#include "platform_linux/file_replacement.h"
#include "platform_linux/launch.h"
#include "platform_linux/linux_file.h"
#include "platform_linux/linux_file_system.h"
#include "platform_linux/paths.h"
#include "platform_linux/xscreensaver_text.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sstream>

namespace platform_linux
{

namespace
{

using platform::ScreenSaverResult;
namespace fs = std::filesystem;

constexpr std::uint64_t kMostBytes = 1'000'000;
constexpr mode_t kMode = 0600;

bool IsProgram(const std::string& path)
{
    return access(Native(path), X_OK) == 0;
}

bool IsInPath(const std::string& name)
{
    const char* path = std::getenv("PATH");
    std::istringstream folders(path ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (IsProgram(Join(folder, name)))
            return true;
    }
    return false;
}

bool HasPictureShow()
{
    for (const char* folder : {"/usr/libexec/xscreensaver", "/usr/lib/xscreensaver"}) {
        if (IsProgram(Join(folder, "glslideshow")))
            return true;
    }
    return IsInPath("glslideshow");
}

// Empty for a file that is not there; nothing for one that cannot be used.
std::optional<std::string> TextOf(const std::string& path)
{
    const CHandle file(open(Native(path), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.IsOpen() && errno == ENOENT)
        return std::string();
    auto text = file.IsOpen() ? ReadAll(file.Get(), kMostBytes) : std::nullopt;
    if (!text)
        Fail();
    return text;
}

bool Write(const std::string& path, const std::string& text, ExistingTarget existing)
{
    const auto file = CFileReplacement::Start(path, kMode, existing);
    return file && (WriteAll(file->Get(), std::as_bytes(std::span(text))) || Fail()) && file->Commit();
}

// Links to the pictures in a folder of their own; empty on failure.
std::string FolderOfLinks(const std::string& parent, const std::vector<std::string>& pictures)
{
    const std::string folder = Join(parent, "pictures-" + std::to_string(NowNanoseconds()));
    if (!MakeFolders(folder))
        return {};
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const std::string link = Join(folder, std::to_string(i + 1) + "-" + std::string(NameOf(pictures[i])));
        if (symlink(Native(pictures[i]), Native(link)) != 0) {
            Fail();
            return {};
        }
    }
    return folder;
}

// Our own folders of links, but for the one in use.
void RemoveOthers(const std::string& parent, const std::string& used)
{
    std::error_code error;
    std::vector<fs::path> former;
    for (const fs::directory_entry& entry : fs::directory_iterator(parent, error)) {
        if (entry.path() != used && entry.path().filename().string().starts_with("pictures-"))
            former.push_back(entry.path());
    }
    for (const fs::path& folder : former)
        fs::remove_all(folder, error);
}

// What an entry of the file cannot say.
bool IsWritable(const std::string& folder)
{
    return !folder.empty() && !folder.ends_with('\\') &&
           std::ranges::none_of(folder, [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

bool Configure(const std::string& folder)
{
    const std::string file = Join(HomeFolder(), ".xscreensaver");
    const std::string kept = file + ".before-kelvo";
    const auto text = TextOf(file);
    if (!text)
        return false;
    if (!text->empty() && access(Native(kept), F_OK) != 0 && !Write(kept, *text, ExistingTarget::fail))
        return false;
    const std::string defaults = TextOf("/etc/X11/app-defaults/XScreenSaver").value_or("");
    return Write(file, WithPictureShow(*text, defaults, folder), ExistingTarget::replace);
}

}  // namespace

ScreenSaverResult CLinuxScreenSaver::ShowPictures(const std::string& folder,
                                                  const std::vector<std::string>& pictures)
{
    if (std::getenv("WAYLAND_DISPLAY"))
        return ScreenSaverResult::noScreen;
    if (!IsInPath("xscreensaver") || !HasPictureShow())
        return ScreenSaverResult::missing;
    const std::string parent = Join(Join(DataFolder(), "kelvo"), "screen-saver");
    const std::string shown = pictures.empty() ? folder : FolderOfLinks(parent, pictures);
    if (!IsWritable(shown)) {
        if (pictures.empty())
            Fail(EINVAL);
        return ScreenSaverResult::notWritten;
    }
    if (!Configure(shown))
        return ScreenSaverResult::notWritten;
    RemoveOthers(parent, shown);
    // One that is running already reads the file anew, and a second one ends at once.
    Launch({"xscreensaver", "--no-splash"});
    return ScreenSaverResult::set;
}

}  // namespace platform_linux
