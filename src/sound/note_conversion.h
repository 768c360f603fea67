// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CNoteConversion: the front end of the note converter, an object for each conversion.
//
// The library is loaded by name at construction. Without it, or when it lacks one of its seven entry points,
// the calls of the same names return 8; otherwise they return the library's result, of which 0 is success.
// platform/note_conversion.h has their contract. A library that breaks it (a result longer than its room, an
// empty one, a failure anywhere) leads to a conversion that fails, never to a file. One object, one thread.
#pragma once

#include "platform/note_conversion.h"
#include "sound/program_library.h"

#include <optional>
#include <vector>

namespace sound
{

// Longer MIDI files are not read.
constexpr std::uint64_t kLongestTuneFile = 64U << 20;

class CNoteConversion
{
public:
    CNoteConversion();

    bool IsLoaded() const { return isLoaded; }
    // A source was detected.
    bool IsReady() const { return isReady; }
    bool IsConverted() const { return isConverted; }

    int GetInfo(platform::NoteConversionInfo* block) const;
    int SetInfo(const platform::NoteConversionInfo* block) const;
    int Reset() const;
    int Detect(const void* midi, unsigned length) const;
    int Convert(const void* source, unsigned length, void* destination, unsigned* written, int mode) const;
    int GetLogSize(unsigned* size) const;
    int GetLog(char* text, unsigned room) const;

    // Chooses the file to convert; it is ready when its path ends with ".mid" in any case and the library
    // detects it.
    void Open(const std::string& path);
    // Writes the source, converted, to that path, which holds all of the result or what it held before, and
    // the log to the other unless that is empty. 1, or 0 when nothing was written.
    int ConvertTo(const std::string& output, const std::string& logPath);
    // The same beside the source; FindConvertedNames has the names.
    int ConvertBeside();
    // What was written; empty where nothing was.
    const std::string& Output() const { return outputPath; }
    const std::string& Log() const { return writtenLog; }
    // Why the output could not be written; empty for another failure.
    const std::string& WriteError() const { return writeError; }

    // The same steps without files: Examine makes it ready, Rewrite gives the converted file or nothing.
    void Examine(const std::string& midi);
    std::optional<std::string> Rewrite(const std::string& midi) const;
    // What the library says of its latest call: of a conversion a summary and then, a line each, what was
    // left out; of a source that it does not detect the reason.
    std::string LogText() const;
    std::vector<std::string> LogLines() const;

private:
    bool FindEntries();

    std::unique_ptr<platform::CLibrary> library;
    platform::NoteGetInfo* getInfo = nullptr;
    platform::NoteSetInfo* setInfo = nullptr;
    platform::NoteReset* reset = nullptr;
    platform::NoteDetect* detect = nullptr;
    platform::NoteConvert* convert = nullptr;
    platform::NoteGetLogSize* getLogSize = nullptr;
    platform::NoteGetLog* getLog = nullptr;
    bool isLoaded = false;
    bool isReady = false;
    bool isConverted = false;
    std::string folder;  // of the source, without a separator behind it
    std::string name;
    platform::NoteConversionInfo info{};
    std::string outputPath;
    std::string writtenLog;
    std::string writeError;
};

}  // namespace sound
