// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSaneSources: scanners and cameras known to SANE.
//
// Its library is loaded at the first call and stays loaded; without it no source manager can be opened. Every
// call opens SANE, asks for all devices (those in the network included) and closes it again.
#pragma once

#include "platform/picture_sources.h"

namespace suite
{

class CSaneSources final : public platform::CPictureSources
{
public:
    explicit CSaneSources(std::string libraryName = "libsane.so.1") : library(std::move(libraryName)) {}
    std::optional<std::vector<platform::PictureSource>> Sources() override;

private:
    std::string library;
};

}  // namespace suite
