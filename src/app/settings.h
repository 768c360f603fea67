// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSettings: the values of "Kelvo.ini", held while the main window exists; and the two settings of the option
// dialog, which are read and written in the files directly.
//
// No setting is ever an error: what is missing takes its default, and a failed write is ignored.
#pragma once

#include "platform/types.h"

#include <array>
#include <string>
#include <vector>

namespace app
{

struct ProductLink {
    std::string url;
    std::string link;
    platform::Rect rect;
};

class CSettings
{
public:
    // False only for an empty name.
    bool Load(const std::string& file);
    // Writes "Setting", then, with useId, the counters of "FileId". False when nothing was loaded.
    bool Save() const;

    int delDscPhoto = 2;
    int sort = 0;
    int thumbType = 0;
    int jpegQuality = 85;
    bool skinPos = true;
    bool useId = false;
    int imgItemId = 0;
    int aviItemId = 0;
    int imgRcdId = 0;
    int aviRcdId = 0;
    int itemIdMax = 0;
    std::array<ProductLink, 2> productLinks;
    std::string productName;
    std::string versionInfo;
    std::string fileName;

private:
    void LoadGeneral();
    void LoadFileIds();
    void LoadProductInfo();
};

// The settings of the main window; null while there is none. Not owned.
CSettings*& CurrentSettings();

// The option dialog's state.
struct OptionValues {
    int delDscPhoto = 2;
    int portPosition = -1;  // in PortNames, -1 for none
};
OptionValues LoadOptions(const std::string& programFolder);
// False when one of them could not be written.
bool SaveOptions(const std::string& programFolder, const OptionValues& values);
// "COM 1" to "COM 255".
std::vector<std::string> PortNames();

// The handset's port number of "Port.ini", 0 when none is set.
int HandsetPort(const std::string& programFolder);

// The colours of the property dialogs in the order in which the skin library takes them, by system colour
// number; `set` is false where the skin names none.
struct SystemColour {
    int index = 0;
    platform::ColorRef colour = 0;
    bool set = false;
};
std::array<SystemColour, 5> PropertyDialogColours(const std::string& skinFolder);

}  // namespace app
