// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTempFolder: an empty folder for one test, gone with the object.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace support
{

inline std::string ReadBytes(const std::string& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void WriteBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

class CTempFolder
{
public:
    // `parent` chooses the file system; the system's temporary folder unless told.
    explicit CTempFolder(const std::string& parent = std::filesystem::temp_directory_path().string())
        : folder(parent + "/kelvo-test-XXXXXX")
    {
        if (!mkdtemp(folder.data()))
            std::abort();
    }
    ~CTempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;

    const std::string& Path() const { return folder; }
    std::string Path(const std::string& name) const { return folder + "/" + name; }
    // Writes a file of the folder and returns its path.
    std::string Make(const std::string& name, const std::string& bytes) const
    {
        WriteBytes(Path(name), bytes);
        return Path(name);
    }

private:
    std::string folder;
};

}  // namespace support
