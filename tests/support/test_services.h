// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Services held in memory, for tests of the logic: settings in maps, a clock that stands still unless moved,
// and pictures that are text files.
#pragma once

#include "platform/file_system.h"
#include "platform/image.h"
#include "platform/settings_store.h"
#include "platform/shell.h"
#include "platform/utility.h"
#include "support/services_guard.h"
#include "support/temp_folder.h"
#include "support/test_file_system.h"

#include <atomic>
#include <map>
#include <mutex>
#include <set>
#include <sstream>
#include <tuple>

namespace support
{

class CTestRegistry : public platform::CRegistry
{
public:
    std::map<std::string, std::map<std::string, std::string>> keys;
    bool writable = true;

    bool KeyExists(const std::string& key) override { return keys.contains(key); }
    bool CreateKey(const std::string& key) override { return writable && (keys[key], true); }
    std::optional<std::string> QueryValue(const std::string& key, const std::string& name) override
    {
        return keys.contains(key) && keys[key].contains(name) ? std::optional(keys[key][name]) : std::nullopt;
    }
    bool SetValue(const std::string& key, const std::string& name, const std::string& value) override
    {
        return writable && (keys[key][name] = value, true);
    }
    bool DeleteValue(const std::string& key, const std::string& name) override
    {
        return keys[key].erase(name) > 0;
    }
};

class CTestProfiles : public platform::CProfiles
{
public:
    std::map<std::string, std::string> values;  // by "section/key" of any file
    std::vector<std::string> written;           // "section/key=value", in order
    int error = 0;                              // for other than 0, every write fails with it

    int GetPrivateProfileInt(const std::string& section, const std::string& key, int fallback,
                             const std::string& file) override
    {
        const bool known = HasPrivateProfileKey(section, key, file);
        return known ? std::atoi(values[section + "/" + key].c_str()) : fallback;
    }
    std::string GetPrivateProfileString(const std::string& section, const std::string& key,
                                        const std::string& fallback, const std::string& file) override
    {
        return HasPrivateProfileKey(section, key, file) ? values[section + "/" + key] : fallback;
    }
    bool HasPrivateProfileKey(const std::string& section, const std::string& key, const std::string&) override
    {
        return values.contains(section + "/" + key);
    }
    bool WritePrivateProfileString(const std::string& section, const std::string& key,
                                   const std::string& value, const std::string&) override
    {
        if (error != 0)
            return false;
        values[section + "/" + key] = value;
        written.push_back(section + "/" + key + "=" + value);
        return true;
    }
    int GetLastError() override { return error; }
};

class CTestUtility : public platform::CUtility
{
public:
    explicit CTestUtility(platform::CProfiles& settings) : profiles(settings) {}
    std::string programFolder;
    platform::FileVersion version{1, 0, 0, 1};
    std::uint64_t now = 0;
    std::string trace;

    std::string ql_GetModulePath() override { return programFolder; }
    std::string ql_GetFileName() override { return programFolder + "/kelvo"; }
    bool ql_GetFileVersion(platform::FileVersion& out) override { return out = version, true; }
    bool ql_GetSettingInt(const std::string& section, const std::string& key, const std::string& file,
                          int& out) override
    {
        out = profiles.GetPrivateProfileInt(section, key, out, file);
        return profiles.HasPrivateProfileKey(section, key, file);
    }
    bool ql_GetSettingString(const std::string& section, const std::string& key, const std::string& file,
                             std::string& out) override
    {
        out = profiles.GetPrivateProfileString(section, key, out, file);
        return profiles.HasPrivateProfileKey(section, key, file);
    }
    bool ql_GetSettingRect(const std::string&, const std::string&, const std::string&,
                           platform::Rect&) override
    {
        return false;
    }
    bool ql_GetSettingColor(const std::string& section, const std::string& key, const std::string& file,
                            platform::ColorRef& out) override
    {
        out = static_cast<platform::ColorRef>(profiles.GetPrivateProfileInt(section, key, 0, file));
        return profiles.HasPrivateProfileKey(section, key, file);
    }
    bool ql_GetSettingSize(const std::string&, const std::string&, const std::string&,
                           platform::Extent&) override
    {
        return false;
    }
    void ql_SetFontInfo(const std::string& faceName, int size, int) override
    {
        trace += "font " + faceName + " " + std::to_string(size) + "\n";
    }
    platform::LogFont ql_GetLogfont(const std::string& faceName, int size) override
    {
        return {faceName, size, 1};
    }
    platform::FileTime ql_GetFileCreateDate(const std::string& path) override
    {
        const auto facts = platform::Os().files->FindFirstFile(path);
        return facts ? facts->creationTime : 0;
    }
    platform::FileTime ql_GetCurDate() override { return 130'000'000'000'000'000; }
    std::uint64_t GetTickCount() override { return now; }
    void OutputDebugString(const std::string& text) override { trace += text; }

private:
    platform::CProfiles& profiles;
};

// A picture is a text file "WIDTHxHEIGHT" with an EXIF date behind it; anything else is none. All of it is
// of one grey. May be used from several threads, but for the list of what was opened.
class CTestImages : public platform::CImageLibrary
{
public:
    std::atomic<int> rendered = 0;
    std::vector<std::string> opened;

    std::unique_ptr<platform::CImageSource> Open(const std::string& path) override
    {
        {
            const std::lock_guard lock(guard);
            opened.push_back(path);
        }
        auto source = std::make_unique<CSource>(*this);
        char letter = 0;
        std::istringstream text(ReadBytes(path));
        if (!(text >> source->size.width >> letter >> source->size.height) || letter != 'x')
            return nullptr;
        std::getline(text >> std::ws, source->date);
        return source;
    }
    bool SaveJpeg(const platform::Bitmap& bitmap, const std::string& path, int) override
    {
        WriteBytes(path, std::to_string(bitmap.width) + "x" + std::to_string(bitmap.height));
        return true;
    }
    bool Src2Jpg(const std::string& path, int) override
    {
        WriteBytes(path.substr(0, path.rfind('/')) + "/Src0.jpg", ReadBytes(path));
        return true;
    }
    std::unique_ptr<platform::CImageSource> OpenVideoFrame(const std::string& path) override
    {
        return Open(path);
    }

private:
    std::mutex guard;
    struct CSource : platform::CImageSource {
        explicit CSource(CTestImages& library) : owner(library) {}
        int Width() const override { return size.width; }
        int Height() const override { return size.height; }
        platform::BitmapHandle Render(int width, int height) override
        {
            ++owner.rendered;
            const auto pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
            return std::make_shared<platform::Bitmap>(
                platform::Bitmap{width, height, std::vector<std::uint32_t>(pixels, 0xFF808080)});
        }
        std::optional<platform::PropertyItem> GetPropertyItem(std::uint16_t) override
        {
            if (date.empty())
                return std::nullopt;
            return platform::PropertyItem{2, 0, {date.begin(), date.end()}};
        }
        CTestImages& owner;
        platform::Extent size;
        std::string date;
    };
};

// Known folders below one folder; what was to be started or copied is noted.
class CTestShell : public platform::CShell
{
public:
    std::string base;
    std::vector<std::string> log;

    std::optional<std::string> GetFolderPath(platform::KnownFolder folder, bool) override
    {
        if (base.empty())
            return std::nullopt;
        const std::string path = base + "/" + std::to_string(static_cast<int>(folder));
        std::filesystem::create_directories(path);
        return path;
    }
    bool SHFileOperation(const platform::FileOperationRequest& request) override
    {
        log.push_back("copy " + request.sources.at(0) + " to " + request.target);
        return true;
    }
    platform::FileStepResult DoFileStep(const platform::FileStep&) override { return {}; }
    std::optional<platform::EntryFacts> FindEntry(const std::string&) override { return std::nullopt; }
    bool WinExec(const std::string& command) override
    {
        log.push_back("run " + command);
        return false;
    }
    bool StartProgram(const std::vector<std::string>& words) override
    {
        std::string line;
        for (const std::string& word : words)
            line += '[' + word + ']';
        log.push_back("start " + line);
        return true;
    }
    bool ShellExecute(const std::string&) override { return false; }
    std::vector<platform::Volume> Volumes() override { return {}; }
};

class CTestMessages : public platform::CMessages
{
public:
    std::set<std::string> windows;  // classes that other processes have
    bool registers = true;

    std::uint32_t RegisterWindowMessage(const std::string&) override { return 0xC000; }
    void Listen(std::uint32_t, Handler) override {}
    bool Broadcast(std::uint32_t, std::uint32_t, std::int64_t) override { return true; }
    bool RegisterClass(const std::string& name) override { return registers && !windows.contains(name); }
    bool FindWindow(const std::string& name) override { return windows.contains(name); }
    bool BringToForeground(const std::string& name) override { return windows.contains(name); }
};

// All of them installed, over real files in a temporary folder.
struct TestServices {
    CTempFolder folder;
    CTestFileSystem files;
    CTestRegistry registry;
    CTestProfiles profiles;
    CTestUtility utility{profiles};
    CTestImages images;
    CTestShell shell;
    CTestMessages messages;
    CServicesGuard guard{
        platform::Services{&files, &registry, &profiles, &shell, &messages, &utility, &images}};
};

}  // namespace support
