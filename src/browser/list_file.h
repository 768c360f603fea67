// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// List files: the selected files written down for another program, as an INI file of one section. A name that
// holds a line break cannot stand in one and is left out.
#pragma once

#include <string>
#include <vector>

namespace browser
{

// Whether the name is that of a picture and nothing there is a folder.
bool IsPictureFile(const std::string& path);

// The pictures among the selected files (no folders), numbered from 1, then their count: what the print
// program reads. 0, with nothing written, for an empty path, an empty selection or a file that cannot be
// made; else 1.
int WriteFileList(const std::string& path, const std::vector<std::string>& selected);

// All selected files, with the count before them.
int WriteSelectionList(const std::string& path, const std::vector<std::string>& selected);

}  // namespace browser
