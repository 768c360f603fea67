// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/sound_commands.h"
#include "platform/file_system.h"
#include "platform/services.h"

namespace cli
{

bool IsSameFile(const std::string& one, const std::string& other)
{
    const auto file = platform::Os().files->Open(one, platform::OpenMode::read);
    const auto target = platform::Os().files->ResolveLink(other);
    return file && target && file->IsStill(*target);
}

void AddSoundCommand(CLI::App& parser, CContext& context)
{
    auto* sound = parser.add_subcommand("sound", "Ring tones and recorded sounds for the handset");
    sound->require_subcommand(1);
    AddTuneCommands(*sound, context);
    AddWaveCommands(*sound, context);
    AddInfoCommand(*sound, context);
}

}  // namespace cli
