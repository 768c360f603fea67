// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of kelvoctl. Each function adds its command to the parser; the command runs when it is parsed
// and leaves its exit status in the context.
#pragma once

#include "cli/context.h"

#include <CLI/CLI.hpp>

namespace cli
{

void AddPathsCommands(CLI::App& parser, CContext& context);  // paths, albums
void AddSettingsCommand(CLI::App& parser, CContext& context);
void AddListCommands(CLI::App& parser, CContext& context);  // list, filelist
void AddThumbsCommand(CLI::App& parser, CContext& context);
void AddStoreCommand(CLI::App& parser, CContext& context);
void AddExifCommand(CLI::App& parser, CContext& context);
void AddArchiveCommand(CLI::App& parser, CContext& context);
void AddCaptionCommand(CLI::App& parser, CContext& context);
void AddStampCommand(CLI::App& parser, CContext& context);
void AddRenameCommands(CLI::App& parser, CContext& context);  // rename, undo
void AddSoundCommand(CLI::App& parser, CContext& context);
void AddCameraCommand(CLI::App& parser, CContext& context);
void AddHandsetCommand(CLI::App& parser, CContext& context);
void AddWatchCommand(CLI::App& parser, CContext& context);

// The option that chooses the media types of a list.
void AddFilterOptions(CLI::App& command, int& filter);

// Parses the arguments and runs the command; the exit status of the process.
int Run(int argc, const char* const* argv, const char* version);

}  // namespace cli
