// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/sound_commands.h"

namespace cli
{

void AddSoundCommand(CLI::App& parser, CContext& context)
{
    auto* sound = parser.add_subcommand("sound", "Ring tones and recorded sounds for the handset");
    sound->require_subcommand(1);
    AddWaveCommands(*sound, context);
    AddInfoCommand(*sound, context);
}

}  // namespace cli
