// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Libraries that stand in for the two converters and do as the script says.
#pragma once

#include "platform/libraries.h"
#include "platform/note_conversion.h"
#include "platform/smaf_conversion.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstring>
#include <map>

// What the stand-ins answer, and what they were asked.
struct Script {
    int detect = 0;
    int setInfo = 0;
    int convert = 0;
    int smaf = 0;
    unsigned written = 4;
    std::string log = "told\n";
    std::string calls;
};
inline Script script;

inline const std::map<std::string, void*>& StandIns()
{
    platform::NoteDetect* const detect = [](const void*, unsigned) {
        return script.calls += 'D', script.detect;
    };
    platform::NoteGetInfo* const getInfo = [](platform::NoteConversionInfo* info) {
        info->bytes[9] = 77;
        return script.calls += 'G', 0;
    };
    platform::NoteSetInfo* const setInfo = [](const platform::NoteConversionInfo* info) {
        return script.calls += info->bytes[9] == 77 ? 'S' : '?', script.setInfo;
    };
    platform::NoteReset* const reset = [] { return script.calls += 'R', 0; };
    platform::NoteConvert* const convert = [](const void* source, unsigned length, void* target,
                                              unsigned* written, int mode) {
        const auto* room = static_cast<const char*>(target);
        const bool isZero = std::all_of(room, room + 2 * length, [](char c) { return c == 0; });
        std::memcpy(target, source, std::min(length, 4u));
        *written = script.written;
        return script.calls += isZero && mode == 4 ? 'C' : '?', script.convert;
    };
    platform::NoteGetLogSize* const logSize = [](unsigned* size) {
        return *size = static_cast<unsigned>(script.log.size()), 0;
    };
    platform::NoteGetLog* const log = [](char* text, unsigned room) {
        return script.log.copy(text, room), 0;
    };
    platform::S2SConvertFunction* const smaf = [](const void*, unsigned, void* target, unsigned* length,
                                                  const void*, unsigned bank, unsigned chip, unsigned,
                                                  char* error, unsigned size) {
        std::memset(error, 'e', size);  // without an end
        std::memcpy(target, "abcd", 4);
        *length = script.written;
        return script.calls += fmt::format("{}/{}", bank, chip), script.smaf;
    };
    static const std::map<std::string, void*> kEntries = {
        {"Detect", reinterpret_cast<void*>(detect)},   {"GetInfo", reinterpret_cast<void*>(getInfo)},
        {"SetInfo", reinterpret_cast<void*>(setInfo)}, {"Reset", reinterpret_cast<void*>(reset)},
        {"Convert", reinterpret_cast<void*>(convert)}, {"GetLogSize", reinterpret_cast<void*>(logSize)},
        {"GetLog", reinterpret_cast<void*>(log)},      {"S2SConvert", reinterpret_cast<void*>(smaf)}};
    return kEntries;
}

class CStandInLibraries : public platform::CLibraries
{
public:
    std::string missingLibrary;
    std::string missingEntry;
    int loaded = 0;

    std::unique_ptr<platform::CLibrary> LoadLibrary(const std::string& path) override
    {
        if (path.ends_with("/" + missingLibrary))
            return nullptr;
        return std::make_unique<CStandIn>(*this);
    }

private:
    struct CStandIn : platform::CLibrary {
        explicit CStandIn(CStandInLibraries& libraries) : owner(libraries) { ++owner.loaded; }
        ~CStandIn() override { --owner.loaded; }
        void* GetProcAddress(const std::string& name) override
        {
            return name == owner.missingEntry ? nullptr : StandIns().at(name);
        }
        CStandInLibraries& owner;
    };
};
