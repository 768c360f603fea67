// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/printer_defaults.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/shell.h"

#include <cstdlib>
#include <string>

namespace ui
{

namespace
{

constexpr std::uint64_t kLongestOptions = 1 << 16;

// CUPS keeps a line "Default NAME ..." in its options files.
bool NamesDefault(const std::string& path)
{
    const auto text = platform::Os().files->ReadWhole(path, kLongestOptions);
    return text && (text->starts_with("Default ") || text->find("\nDefault ") != std::string::npos);
}

}  // namespace

int ReadPrinterDefaults()
{
    if (std::getenv("LPDEST") || std::getenv("PRINTER"))
        return 1;
    const auto home = platform::Os().shell->GetFolderPath(platform::KnownFolder::home, false);
    const bool named = (home && NamesDefault(browser::JoinPath(*home, ".cups/lpoptions"))) ||
                       NamesDefault("/etc/cups/lpoptions");
    return named ? 1 : 0;
}

}  // namespace ui
