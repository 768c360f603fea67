// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A scanner library with three devices. With FAKE_SANE=broken it cannot be opened, with =silent it lists
// nothing.
#include <cstdlib>
#include <string_view>

namespace
{

struct Device {
    const char* name;
    const char* vendor;
    const char* model;
    const char* type;
};
const Device kFlatbed{"pixma:1", "Halden", "Flat 20", "flatbed scanner"};
const Device kNoname{"test:0", "Noname", "frontend-tester", "virtual device"};
const Device kNameless{"net:x", nullptr, "", nullptr};
const Device* devices[] = {&kFlatbed, &kNoname, &kNameless, nullptr};
bool isOpen = false;

bool Acts(std::string_view as)
{
    const char* const wish = std::getenv("FAKE_SANE");
    return wish != nullptr && wish == as;
}

}  // namespace

extern "C" {
int sane_init(int*, void*)
{
    const bool fails = isOpen || Acts("broken");
    isOpen = true;
    return fails ? 1 : 0;
}
int sane_get_devices(const Device*** found, int localOnly)
{
    *found = devices;
    return !isOpen || localOnly != 0 || Acts("silent") ? 1 : 0;
}
void sane_exit()
{
    isOpen = false;
}
}
