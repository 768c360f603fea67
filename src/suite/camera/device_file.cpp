// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/camera/device_file.h"

#include "platform/services.h"
#include "platform/settings_store.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace suite
{

namespace
{

constexpr const char* kPhotos =
    "jpg,jpeg,jpe,jfif,png,gif,bmp,tif,tiff,webp,heic,heif,avif,dng,cr2,cr3,crw,nef,nrw,arw,sr2,srf,orf,rw2,"
    "raf,pef,srw,raw,x3f,mpo";
constexpr const char* kClips =
    "avi,mp4,m4v,mov,qt,mpg,mpeg,mpe,3gp,3g2,3gpp,mts,m2ts,ts,asf,wmv,mkv,webm,mjpg,dv";

// The words between the commas, without the blanks around them.
std::vector<std::string> Words(const std::string& text)
{
    std::vector<std::string> words;
    std::istringstream stream(text);
    for (std::string word; std::getline(stream, word, ',');) {
        const std::size_t first = word.find_first_not_of(" \t");
        if (first != std::string::npos)
            words.push_back(word.substr(first, word.find_last_not_of(" \t") + 1 - first));
    }
    return words;
}

std::string Value(const char* section, const char* key, const std::string& fallback, const std::string& file)
{
    platform::CProfiles* profiles = platform::Os().profiles;
    return profiles ? profiles->GetPrivateProfileString(section, key, fallback, file) : fallback;
}

std::vector<std::string> Extensions(const char* key, const char* fallback, const std::string& file)
{
    std::vector<std::string> extensions = Words(LowerCase(Value("Files", key, fallback, file)));
    for (std::string& extension : extensions)
        extension.erase(0, extension.find_first_not_of('.'));
    return extensions;
}

}  // namespace

std::string LowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
    return text;
}

DeviceRules ReadDeviceFile(const std::string& file)
{
    DeviceRules rules;
    const char* named = std::getenv("KELVO_CAMERA_ROOT");
    rules.root = named ? named : "";
    if (rules.root.empty())
        rules.root = Value("Device", "Root", "", file);
    rules.labels = Words(LowerCase(Value("Device", "Labels", "", file)));
    rules.folders = Words(LowerCase(Value("Device", "Folders", "DCIM", file)));
    rules.photos = Extensions("Photos", kPhotos, file);
    rules.clips = Extensions("Clips", kClips, file);
    return rules;
}

}  // namespace suite
