// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What stands below kelvoctl's command "sound".
#pragma once

#include "cli/commands.h"

namespace cli
{

// Whether both paths lead to one file.
bool IsSameFile(const std::string& one, const std::string& other);

void AddTuneCommands(CLI::App& sound, CContext& context);  // notes, smaf
void AddWaveCommands(CLI::App& sound, CContext& context);  // adpcm, clip, extract
void AddInfoCommand(CLI::App& sound, CContext& context);

}  // namespace cli
