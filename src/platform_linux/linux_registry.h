// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxRegistry: the current user's registry as one INI file, format in docs/formats/registry.md.
#pragma once

#include "platform/settings_store.h"
#include "platform_linux/settings_files.h"

namespace platform_linux
{

class CLinuxRegistry final : public platform::CRegistry
{
public:
    // `file` and its folder are made at the first write; with an empty name nothing can be written.
    explicit CLinuxRegistry(std::string registryFile) : file(std::move(registryFile)) {}

    bool KeyExists(const std::string& key) override;
    bool CreateKey(const std::string& key) override;
    std::optional<std::string> QueryValue(const std::string& key, const std::string& name) override;
    bool SetValue(const std::string& key, const std::string& name, const std::string& value) override;
    bool DeleteValue(const std::string& key, const std::string& name) override;

private:
    bool Change(const std::function<bool(CIniText&)>& change);

    std::string file;
    CSettingsFiles files;
};

}  // namespace platform_linux
