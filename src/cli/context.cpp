// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/context.h"

#include "browser/change_journal.h"

#include <fmt/format.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <filesystem>

namespace cli
{

namespace
{

volatile std::sig_atomic_t caughtSignal = 0;
std::atomic<platform::CEvent*> toWake = nullptr;

void RememberSignal(int number)
{
    caughtSignal = number;
    if (platform::CEvent* event = toWake) {
        event->Set();
    }
}

}  // namespace

void CContext::PrintJson(const Json& document) const
{
    if (json) {
        PrintBytes(document.dump(2, ' ', false, Json::error_handler_t::replace) + "\n");
    }
}

void CContext::PrintLine(const std::string& line) const
{
    if (!json) {
        PrintBytes(line + "\n");
    }
}

void CContext::PrintReport(const std::string& line) const
{
    if (!quiet) {
        PrintLine(line);
    }
}

void CContext::PrintBytes(const std::string& bytes)
{
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

void CContext::Fail(const std::string& path, const std::string& why)
{
    failed = true;
    const std::string line = fmt::format("kelvoctl: {}: {}\n", path, why);
    std::fwrite(line.data(), 1, line.size(), stderr);
}

void CContext::PrintResult(bool done, const std::string& path, const std::string& why)
{
    PrintJson({{"result", done}});
    if (!done) {
        Fail(path, why);
    }
}

int CContext::ExitStatus() const
{
    if (const int signal = Interruption(); signal != 0) {
        return 128 + signal;
    }
    return failed ? 1 : 0;
}

void CContext::Prepare()
{
    if (!prepared) {
        prepared = true;
        folders.Prepare();
        application.ReadConfiguration();
    }
}

app::CDataFolders& CContext::Folders()
{
    Prepare();
    return folders;
}

app::CKelvoApp& CContext::Application()
{
    Prepare();
    return application;
}

browser::CThumbDbMgr& CContext::Store()
{
    if (!store) {
        store.emplace(Application().DbFolder());
        store->Load();
        browser::CChangeJournal(folders.JournalFolder()).Recover(*store);
    }
    return *store;
}

CJsonArray::CJsonArray(const CContext& context) : enabled(context.json)
{
    if (enabled) {
        CContext::PrintBytes("[");
    }
}

CJsonArray::~CJsonArray()
{
    if (enabled) {
        CContext::PrintBytes(isEmpty ? "]\n" : "\n]\n");
    }
}

void CJsonArray::Add(const Json& element)
{
    if (!enabled) {
        return;
    }
    std::string text = (isEmpty ? "\n" : ",\n") + element.dump(2, ' ', false, Json::error_handler_t::replace);
    isEmpty = false;
    // Texts hold no line breaks, so each is one between two values.
    for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1)) {
        text.insert(at + 1, "  ");
    }
    CContext::PrintBytes(text);
}

namespace
{

std::filesystem::path CurrentFolder()
{
    std::error_code error;
    return std::filesystem::current_path(error);
}

std::string SeenFromRoot(const std::string& path, const std::filesystem::path& current)
{
    if (path.empty() || path.front() == '/') {
        return path;
    }
    std::string absolute = (current / path).lexically_normal().native();
    const bool wantsSeparator = path.ends_with('/') && path != "./" && path != "../";
    if (!wantsSeparator && absolute.size() > 1 && absolute.ends_with('/')) {
        absolute.pop_back();
    }
    return absolute;
}

}  // namespace

std::string AbsolutePath(const std::string& path)
{
    return SeenFromRoot(path, CurrentFolder());
}

std::vector<std::string> AbsolutePaths(const std::vector<std::string>& paths)
{
    const std::filesystem::path current = CurrentFolder();
    std::vector<std::string> absolute;
    absolute.reserve(paths.size());
    for (const std::string& path : paths) {
        absolute.push_back(SeenFromRoot(path, current));
    }
    return absolute;
}

int Interruption()
{
    return caughtSignal;
}

void CatchInterruptions()
{
    struct sigaction action = {};
    action.sa_handler = RememberSignal;
    action.sa_flags = SA_RESETHAND | SA_RESTART;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

void WakeAtInterruption(platform::CEvent* event)
{
    toWake = event;
    if (event && Interruption() != 0) {
        event->Set();
    }
}

CProgressBar::CProgressBar(const CContext& context, std::size_t count)
    : enabled(!context.quiet && isatty(STDERR_FILENO) == 1), total(count),
      start(std::chrono::steady_clock::now())
{
}

void CProgressBar::ShowDone(std::size_t count, int percentOfNext)
{
    done = count;
    const int percent =
        total == 0 ? 100 : static_cast<int>((done * 100 + static_cast<std::size_t>(percentOfNext)) / total);
    if (!enabled || percent == shownPercent ||
        std::chrono::steady_clock::now() - start < std::chrono::seconds(1)) {
        return;
    }
    constexpr int kCells = 30;
    shownPercent = percent;
    const int filled = percent * kCells / 100;
    fmt::print(stderr, "\r[{:#<{}}{: <{}}] {:3}%  {}/{}", "", filled, "", kCells - filled, percent, done,
               total);
    std::fflush(stderr);
}

CProgressBar::~CProgressBar()
{
    if (shownPercent >= 0) {
        std::fputs("\r\033[K", stderr);
    }
}

}  // namespace cli
