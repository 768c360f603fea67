// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Single steps of file work, as CShell::DoFileStep promises them.
#pragma once

#include "platform/shell.h"

namespace platform_linux
{

platform::FileStepResult DoStep(platform::FileStep step);
std::optional<platform::EntryFacts> EntryAt(const std::string& path);

}  // namespace platform_linux
