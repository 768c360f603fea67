// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CHandsetLibrary: handsets that take AT commands and speak OBEX, at serial lines.
#pragma once

#include "platform/handset_link.h"
#include "suite/handset/line_patience.h"

#include <functional>
#include <map>
#include <mutex>
#include <set>

namespace suite
{

class CHandsetSession;

// What the library asks of its program.
struct HandsetHost {
    // The device at a port, empty for none.
    std::function<std::string(unsigned port)> deviceOfPort;
    // Adds a fetched file's record to a record file.
    std::function<bool(const std::string& recordFile, const std::string& fileName, int index)> addRecord;
    LinePatience patience;
};

class CHandsetLibrary final : public platform::CHandsetLink
{
public:
    explicit CHandsetLibrary(HandsetHost program) : host(std::move(program)) {}

    std::unique_ptr<platform::CUpDownLoad> NewUpDownLoad() override;
    void SetProgressFunc(void (*function)(int percent)) override { progress = function; }

    // The conversation at a port, which ends with the last holder; null when the port has no device.
    std::shared_ptr<CHandsetSession> SessionOf(unsigned port);
    const HandsetHost& Host() const { return host; }
    // A file whose sending broke off: the handset may hold a piece of it. Named by `file`, any text.
    void NoteRemains(const std::string& file);
    // Whether there may be a piece; the file is forgotten.
    bool TakeRemains(const std::string& file);
    void Tell(int percent) const
    {
        if (progress)
            progress(percent);
    }

private:
    HandsetHost host;
    void (*progress)(int) = nullptr;
    std::mutex guard;
    std::map<unsigned, std::weak_ptr<CHandsetSession>> sessions;
    std::set<std::string> remains;
};

}  // namespace suite
