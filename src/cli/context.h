// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CContext: what every command of kelvoctl works with: where its result goes, its exit status, and the data
// tree, which is prepared when a command first asks for it.
#pragma once

#include "app/data_folders.h"
#include "app/kelvo_app.h"
#include "browser/thumb_db_mgr.h"
#include "platform/change_notifications.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <optional>
#include <string>

namespace cli
{

using Json = nlohmann::ordered_json;

// A text of any bytes for a JSON document: what is not UTF-8 becomes U+FFFD when it is printed.
inline Json TextOrNull(const std::string* text)
{
    return text ? Json(*text) : Json(nullptr);
}

class CContext
{
public:
    bool json = false;
    bool quiet = false;

    // One document on standard output, with --json.
    void PrintJson(const Json& document) const;
    // A line of what was asked for on standard output, without --json.
    void PrintLine(const std::string& line) const;
    // A line that tells what went well, without --json and unless --quiet.
    void PrintReport(const std::string& line) const;
    // Bytes on standard output as they are.
    static void PrintBytes(const std::string& bytes);
    // "kelvoctl: PATH: why" on standard error; the exit status becomes 1.
    void Fail(const std::string& path, const std::string& why);
    // Prints {"result": ...}, and for false reports the failure.
    void PrintResult(bool done, const std::string& path, const std::string& why);

    // 130 or 143 after an interruption, else 1 after a failure, else 0.
    int ExitStatus() const;

    // The data tree of this user, as at the window's start.
    app::CDataFolders& Folders();
    app::CKelvoApp& Application();
    // The thumbnail store's manager, loaded, after what killed processes left in the journal was settled.
    browser::CThumbDbMgr& Store();

private:
    void Prepare();

    bool failed = false;
    bool prepared = false;
    app::CDataFolders folders;
    app::CKelvoApp application;
    std::optional<browser::CThumbDbMgr> store;
};

// With --json, an array on standard output, an element at a time, so that a long one takes no memory. It ends
// with the object.
class CJsonArray
{
public:
    explicit CJsonArray(const CContext& context);
    ~CJsonArray();
    CJsonArray(const CJsonArray&) = delete;
    CJsonArray& operator=(const CJsonArray&) = delete;
    void Add(const Json& element);

private:
    bool enabled = false;
    bool isEmpty = true;
};

// The path as seen from the root: what is relative is taken from the current folder. A trailing separator
// stays, but for "." and "..".
std::string AbsolutePath(const std::string& path);

// The signal that asked the program to stop, or 0. Commands look between two items.
int Interruption();
void CatchInterruptions();
// An event that is set when an interruption comes, for commands that wait; null for none.
void WakeAtInterruption(platform::CEvent* event);

// The files as seen from the root, in their order.
std::vector<std::string> AbsolutePaths(const std::vector<std::string>& paths);

// A bar on standard error for work that takes longer than a second, when that is a terminal.
class CProgressBar
{
public:
    CProgressBar(const CContext& context, std::size_t total);
    ~CProgressBar();
    CProgressBar(const CProgressBar&) = delete;
    CProgressBar& operator=(const CProgressBar&) = delete;
    void Advance() { ShowDone(done + 1); }
    // `percent` of the next item as well.
    void ShowDone(std::size_t count, int percent = 0);

private:
    bool enabled = false;
    std::size_t total = 0;
    std::size_t done = 0;
    int shownPercent = -1;
    std::chrono::steady_clock::time_point start;
};

}  // namespace cli
