// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What it takes to play a sound: a file that a player program understands, and the programs that may do it.
//
// Notes are played by FluidSynth with a sound font of the system, recordings by the first program that can.
// docs/decisions/0019-tones-in-the-window.md says why programs.
#pragma once

#include "app/tone_facts.h"

#include <vector>

namespace app
{

// A program, by the name under which it is looked up, and its arguments.
struct PlayCommand {
    std::string program;
    std::vector<std::string> arguments;
    bool operator==(const PlayCommand&) const = default;
};

// The programs that could play that file, the best first. Without a sound font, none for notes.
std::vector<PlayCommand> PlayersFor(PlayKind kind, const std::string& path, const std::string& soundFont);

// The folders in which the system's sound fonts lie.
std::vector<std::string> SoundFontFolders();
// The sound font that the system prefers, else the first by name; empty when there is none.
std::string FindSoundFont(const std::vector<std::string>& folders);

// A file to be played. It belongs to the caller where `isTemporary`.
struct Playable {
    std::string path;
    PlayKind kind = PlayKind::nothing;
    bool isTemporary = false;
    ToneProblem problem = {};
};

// A SMAF file is converted back, into the process's temporary folder; any other is played as it is.
Playable PrepareToPlay(const std::string& path);

}  // namespace app
