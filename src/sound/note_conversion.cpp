// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/note_conversion.h"

#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/utility.h"
#include "sound/converted_names.h"

#include <algorithm>
#include <new>
#include <sstream>

namespace sound
{

namespace
{

using platform::kNoteDone;
using platform::kNoteNotLoaded;

constexpr unsigned kLongestLog = 1U << 20;

void Trace(const char* text)
{
    platform::Os().utility->OutputDebugString(text);
}

bool EndsAsMidi(const std::string& path)
{
    constexpr std::string_view kExtension = ".mid";
    return path.size() >= kExtension.size() &&
           std::equal(
               kExtension.begin(), kExtension.end(), path.end() - kExtension.size(),
               [](char wanted, char c) { return wanted == c || (c >= 'A' && c <= 'Z' && c + 32 == wanted); });
}

std::optional<std::string> ReadSource(const std::string& path)
{
    try {
        auto bytes = platform::Os().files->ReadWhole(path, kLongestTuneFile);
        if (!bytes)
            Trace("Can't open src file.\n");
        return bytes;
    } catch (const std::bad_alloc&) {
        Trace("src buffer allocation error\n");
        return std::nullopt;
    }
}

}  // namespace

CNoteConversion::CNoteConversion() : library(LoadProgramLibrary(platform::kNoteConversionLibrary))
{
    isLoaded = library && FindEntries();
}

bool CNoteConversion::FindEntries()
{
    return FindEntry(*library, "GetInfo", getInfo) && FindEntry(*library, "SetInfo", setInfo) &&
           FindEntry(*library, "Reset", reset) && FindEntry(*library, "Detect", detect) &&
           FindEntry(*library, "Convert", convert) && FindEntry(*library, "GetLogSize", getLogSize) &&
           FindEntry(*library, "GetLog", getLog);
}

int CNoteConversion::GetInfo(platform::NoteConversionInfo* block) const
{
    return isLoaded ? getInfo(block) : kNoteNotLoaded;
}

int CNoteConversion::SetInfo(const platform::NoteConversionInfo* block) const
{
    return isLoaded ? setInfo(block) : kNoteNotLoaded;
}

int CNoteConversion::Reset() const
{
    return isLoaded ? reset() : kNoteNotLoaded;
}

int CNoteConversion::Detect(const void* midi, unsigned length) const
{
    return isLoaded ? detect(midi, length) : kNoteNotLoaded;
}

int CNoteConversion::Convert(const void* source, unsigned length, void* destination, unsigned* written,
                             int mode) const
{
    return isLoaded ? convert(source, length, destination, written, mode) : kNoteNotLoaded;
}

int CNoteConversion::GetLogSize(unsigned* size) const
{
    return isLoaded ? getLogSize(size) : kNoteNotLoaded;
}

int CNoteConversion::GetLog(char* text, unsigned room) const
{
    return isLoaded ? getLog(text, room) : kNoteNotLoaded;
}

void CNoteConversion::Open(const std::string& path)
{
    isReady = isConverted = false;
    if (!EndsAsMidi(path))
        return;
    const std::size_t separator = path.rfind('/');
    folder = separator == std::string::npos ? "." : path.substr(0, separator);
    name = path.substr(separator + 1);
    if (const auto bytes = ReadSource(path))
        Examine(*bytes);
}

void CNoteConversion::Examine(const std::string& midi)
{
    isReady = Detect(midi.data(), static_cast<unsigned>(midi.size())) == kNoteDone;
    if (isReady)
        GetInfo(&info);
}

std::optional<std::string> CNoteConversion::Rewrite(const std::string& midi) const
{
    if (!isReady)
        return std::nullopt;
    if (SetInfo(&info) != kNoteDone) {
        Trace("Set information error.\n");
        return std::nullopt;
    }
    const std::size_t room = midi.size() * 2;
    const std::unique_ptr<char[]> destination(new (std::nothrow) char[room]());
    if (!destination) {
        Trace("new buffer allocation error\n");
        return std::nullopt;
    }
    unsigned written = 0;
    const int result = Convert(midi.data(), static_cast<unsigned>(midi.size()), destination.get(), &written,
                               platform::kNoteConversionMode);
    if (result != kNoteDone || written == 0 || written > room) {
        Trace("Ma2Nc convertion error \n");
        return std::nullopt;
    }
    return std::string(destination.get(), written);
}

int CNoteConversion::ConvertTo(const std::string& output, const std::string& logPath)
{
    for (std::string* text : {&outputPath, &writtenLog, &writeError})
        text->clear();
    const auto source = isReady ? ReadSource(folder + "/" + name) : std::nullopt;
    const auto converted = source ? Rewrite(*source) : std::nullopt;
    if (!converted)
        return 0;
    if (!platform::Os().files->ReplaceFile(output, std::as_bytes(std::span(*converted)))) {
        writeError = platform::Os().files->LastError();
        return 0;
    }
    outputPath = output;
    isConverted = true;
    const std::string log = logPath.empty() ? std::string() : LogText();
    if (!log.empty() && platform::Os().files->ReplaceFile(logPath, std::as_bytes(std::span(log))))
        writtenLog = logPath;
    return 1;
}

int CNoteConversion::ConvertBeside()
{
    if (!isReady)
        return 0;
    const ConvertedNames names = FindConvertedNames(folder, name);
    return ConvertTo(folder + "/" + names.midi, folder + "/" + names.log);
}

std::string CNoteConversion::LogText() const
{
    unsigned size = 0;
    if (GetLogSize(&size) != kNoteDone)
        return {};
    std::string text(std::min(size, kLongestLog), '\0');
    return GetLog(text.data(), static_cast<unsigned>(text.size())) == kNoteDone ? text : std::string();
}

std::vector<std::string> CNoteConversion::LogLines() const
{
    std::istringstream text(LogText());
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

}  // namespace sound
