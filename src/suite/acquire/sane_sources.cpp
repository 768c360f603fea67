// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/acquire/sane_sources.h"

#include <dlfcn.h>

namespace suite
{

namespace
{

// As SANE's standard, version 1, has them.
struct SaneDevice {
    const char* name;
    const char* vendor;
    const char* model;
    const char* type;
};
constexpr int kGood = 0;

struct SaneCalls {
    int (*init)(int* version, void* authorisation) = nullptr;
    int (*getDevices)(const SaneDevice*** devices, int localOnly) = nullptr;
    void (*exit)() = nullptr;
};

template <typename Function> bool Find(void* handle, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(dlsym(handle, name));
    return function != nullptr;
}

std::optional<SaneCalls> LoadSane(const std::string& library)
{
    void* const handle = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
    SaneCalls calls;
    if (handle != nullptr && Find(handle, "sane_init", calls.init) &&
        Find(handle, "sane_get_devices", calls.getDevices) && Find(handle, "sane_exit", calls.exit))
        return calls;
    return std::nullopt;
}

std::string TextOf(const char* text)
{
    return text != nullptr ? text : "";
}

platform::PictureSource SourceOf(const SaneDevice& device)
{
    const std::string vendor = TextOf(device.vendor);
    const std::string model = TextOf(device.model);
    const bool named = !model.empty() && !vendor.empty() && vendor != "Noname";
    const std::string name = named ? vendor + " " + model : model;
    return {TextOf(device.name), name.empty() ? TextOf(device.name) : name};
}

}  // namespace

std::optional<std::vector<platform::PictureSource>> CSaneSources::Sources()
{
    const auto sane = LoadSane(library);
    if (!sane || sane->init(nullptr, nullptr) != kGood)
        return std::nullopt;
    const SaneDevice** devices = nullptr;
    std::optional<std::vector<platform::PictureSource>> sources;
    if (sane->getDevices(&devices, 0) == kGood) {
        sources.emplace();
        for (; devices != nullptr && *devices != nullptr; ++devices)
            sources->push_back(SourceOf(**devices));
    }
    sane->exit();
    return sources;
}

}  // namespace suite
