// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/tone_playing.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "score/smaf_reader.h"
#include "sound/tone_preview.h"

#include <fmt/format.h>

#include <algorithm>
#include <atomic>

namespace app
{

namespace
{

using platform::Os;
using platform::StringId;

// Of those that lie in one folder; what Debian's alternatives choose comes first.
constexpr std::string_view kPreferred = "default-GM.";

bool IsSoundFont(const std::string& name)
{
    const std::string extension = browser::LowerCase(browser::Extension(name));
    return extension == "sf2" || extension == "sf3";
}

std::vector<std::string> SoundFontsIn(const std::string& folder)
{
    constexpr std::size_t kMost = 1000;
    std::vector<platform::FolderEntry> entries;
    if (const auto reader = Os().files->ReadFolder(folder))
        reader->Read(kMost, entries);
    std::vector<std::string> names;
    for (const platform::FolderEntry& entry : entries) {
        if (entry.isRegular && IsSoundFont(entry.name))
            names.push_back(entry.name);
    }
    std::ranges::sort(names, [](const std::string& left, const std::string& right) {
        const bool isLeft = left.starts_with(kPreferred);
        return isLeft != right.starts_with(kPreferred) ? isLeft : browser::NameBefore(left, right);
    });
    return names;
}

// A name that no other sound of this process has.
std::string TemporaryPath(bool isMidi)
{
    static std::atomic<unsigned> last = 0;
    return browser::JoinPath(Os().files->GetTempPath(),
                             fmt::format("tone{}.{}", ++last, isMidi ? "mid" : "wav"));
}

}  // namespace

std::vector<PlayCommand> PlayersFor(PlayKind kind, const std::string& path, const std::string& soundFont)
{
    if (kind == PlayKind::midi && !soundFont.empty())
        return {{"fluidsynth", {"-q", "-i", "-n", soundFont, path}}};
    if (kind != PlayKind::wave)
        return {};
    return {{"pw-play", {path}},
            {"paplay", {path}},
            {"aplay", {"-q", path}},
            {"ffplay", {"-nodisp", "-autoexit", "-loglevel", "error", path}}};
}

std::vector<std::string> SoundFontFolders()
{
    return {"/usr/share/sounds/sf2",       "/usr/share/sounds/sf3",       "/usr/share/soundfonts",
            "/usr/local/share/sounds/sf2", "/usr/local/share/sounds/sf3", "/usr/local/share/soundfonts"};
}

std::string FindSoundFont(const std::vector<std::string>& folders)
{
    for (const std::string& folder : folders) {
        if (const auto names = SoundFontsIn(folder); !names.empty())
            return browser::JoinPath(folder, names.front());
    }
    return {};
}

Playable PrepareToPlay(const std::string& path)
{
    const ToneKind kind = ToneKindOf(browser::FileName(path));
    if (kind == ToneKind::midi)
        return {path, PlayKind::midi};
    if (kind != ToneKind::smaf)
        return {path, kind == ToneKind::wav ? PlayKind::wave : PlayKind::nothing};
    Playable playable;
    const auto bytes = Os().files->ReadWhole(path, kLongestTone);
    if (!bytes) {
        playable.problem = {StringId::toneNotRead, Os().files->LastError()};
        return playable;
    }
    std::string error;
    const auto reading =
        score::ReadSmaf({reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()}, error);
    const auto preview = reading ? sound::MakePreview(reading->file) : std::nullopt;
    if (!preview) {
        playable.problem = {reading ? StringId::toneNothingToPlay : StringId::toneNotSmaf, error};
        return playable;
    }
    const std::string target = TemporaryPath(preview->isMidi);
    if (!Os().files->ReplaceFile(target, std::as_bytes(std::span(preview->bytes)))) {
        playable.problem = {StringId::toneNotPrepared, Os().files->LastError()};
        return playable;
    }
    return {target, preview->isMidi ? PlayKind::midi : PlayKind::wave, true};
}

}  // namespace app
