// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/handset/handset_session.h"

#include "platform/settings_store.h"
#include "platform/utility.h"
#include "suite/handset/at_dialogue.h"

#include <fmt/format.h>

#include <algorithm>

namespace suite
{

namespace
{

using platform::FileDataType;
using platform::Os;

constexpr int kNotFound = 0x44;

const char* DefaultFolder(FileDataType type)
{
    switch (type) {
    case FileDataType::animation:
        return "Animation";
    case FileDataType::mainWallpaper:
        return "Main Wallpaper";
    case FileDataType::subWallpaper:
        return "Sub Wallpaper";
    case FileDataType::photo:
        return "My Album";
    case FileDataType::ring:
        return "Ring";
    case FileDataType::java:
        return "Java";
    case FileDataType::frame:
        return "Frame";
    }
    return "";
}

std::string Why(const ObexAnswer& answer)
{
    switch (answer.kind) {
    case ObexAnswer::Kind::answered:
        return fmt::format("the handset answered 0x{:02X}", answer.code);
    case ObexAnswer::Kind::silent:
        return "the handset fell silent";
    case ObexAnswer::Kind::gone:
        return "the line is gone";
    case ObexAnswer::Kind::stopped:
        return "stopped";
    case ObexAnswer::Kind::garbled:
        return "the handset's answer is not OBEX";
    case ObexAnswer::Kind::refusedHere:
        return "the file could not be read or written";
    }
    return {};
}

}  // namespace

std::string HandsetFolder(FileDataType type, const std::string& model)
{
    const std::string key = std::to_string(static_cast<int>(type));
    if (!Os().profiles || !Os().utility)
        return DefaultFolder(type);
    const std::string file = Os().utility->ql_GetModulePath() + "/Handset.ini";
    const std::string general =
        Os().profiles->GetPrivateProfileString("Folders", key, DefaultFolder(type), file);
    return model.empty() ? general
                         : Os().profiles->GetPrivateProfileString("Folders " + model, key, general, file);
}

bool CHandsetSession::Greet()
{
    if (obex && Checked(obex->SetPath(""), "greeting").IsGood()) {
        present.reset();
        return true;
    }
    Close();
    CAtDialogue dialogue(line, patience, [this] { return aborted.load(); });
    silent = !dialogue.Greet(device);
    if (silent) {
        error = line.IsOpen() ? device + ": no handset answers" : line.Error();
        Close();
        return false;
    }
    error.clear();
    manufacturer = dialogue.Manufacturer();
    model = dialogue.Model();
    return true;
}

bool CHandsetSession::Open()
{
    if (obex)
        return true;
    if (!line.IsOpen() && silent)
        error = device + ": no handset answers";
    if (!line.IsOpen() && (silent || !Greet()))
        return false;
    const auto stop = [this] { return aborted.load(); };
    if (!CAtDialogue(line, patience, stop).EnterObex()) {
        error = device + ": the handset does not speak OBEX";
        Close();
        return false;
    }
    obex = MakeObexClient(line, patience, stop);
    inStep = true;
    return Checked(obex->Connect(), "connecting").IsGood();
}

void CHandsetSession::Close()
{
    if (obex && inStep && line.IsOpen())
        obex->Disconnect();
    obex.reset();
    line.Close();
    listings.clear();
    present.reset();
}

ObexAnswer CHandsetSession::Checked(const ObexAnswer& answer, const std::string& what)
{
    if (answer.IsGood())
        return answer;
    error = fmt::format("{}: {}: {}", device, what, Why(answer));
    inStep = answer.kind == ObexAnswer::Kind::answered;
    if (!inStep)
        Close();
    return answer;
}

ObexAnswer CHandsetSession::Enter(FileDataType type)
{
    if (!Open())
        return {ObexAnswer::Kind::gone};
    if (present == type)
        return {ObexAnswer::Kind::answered, 0x20};
    present.reset();
    ObexAnswer answer = obex->SetPath("");
    const std::string folder = HandsetFolder(type, model);
    for (std::size_t at = 0; answer.IsGood() && at < folder.size();) {
        const std::size_t end = std::min(folder.find('/', at), folder.size());
        if (end > at)
            answer = obex->SetPath(folder.substr(at, end - at));
        at = end + 1;
    }
    if (answer.IsGood())
        present = type;
    return Checked(answer, "entering " + folder);
}

const std::vector<ListedFile>* CHandsetSession::List(FileDataType type, bool fresh)
{
    if (const auto known = listings.find(type); known != listings.end() && !fresh)
        return &known->second;
    const ObexAnswer entered = Enter(type);
    if (entered.kind == ObexAnswer::Kind::answered && entered.code == kNotFound)
        return &(listings[type] = {});
    if (!entered.IsGood())
        return nullptr;
    std::string listing;
    const auto take = [&listing](std::span<const std::byte> bytes) {
        listing.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        return listing.size() <= kLongestListing;
    };
    if (!Checked(obex->Get("", "x-obex/folder-listing", take), "listing").IsGood())
        return nullptr;
    return &(listings[type] = ReadFolderListing(listing, static_cast<int>(type)));
}

ObexAnswer CHandsetSession::Send(FileDataType type, const std::string& name, std::uint32_t length,
                                 const CObexClient::Source& source)
{
    const ObexAnswer entered = Enter(type);
    if (!entered.IsGood())
        return entered;
    listings.erase(type);
    const ObexAnswer answer = Checked(obex->Put(name, length, source), "sending " + name);
    if (!answer.IsGood())
        Close();
    return answer;
}

ObexAnswer CHandsetSession::Fetch(FileDataType type, const std::string& name, const CObexClient::Sink& sink)
{
    const ObexAnswer entered = Enter(type);
    if (!entered.IsGood())
        return entered;
    const ObexAnswer answer = Checked(obex->Get(name, "", sink), "fetching " + name);
    if (!answer.IsGood())
        Close();
    return answer;
}

ObexAnswer CHandsetSession::Delete(FileDataType type, const std::string& name)
{
    const ObexAnswer entered = Enter(type);
    if (!entered.IsGood())
        return entered;
    const ObexAnswer answer = Checked(obex->Delete(name), "deleting " + name);
    if (answer.IsGood())
        std::erase_if(listings[type], [&name](const ListedFile& file) { return file.name == name; });
    return answer;
}

std::optional<std::uint64_t> CHandsetSession::FreeSpace()
{
    constexpr std::size_t kLongest = 64 << 10;
    std::string capability;
    const auto take = [&capability](std::span<const std::byte> bytes) {
        capability.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        return capability.size() <= kLongest;
    };
    if (!Open() || !Checked(obex->Get("", "x-obex/capability", take), "asking for its room").IsGood())
        return std::nullopt;
    return ReadFreeSpace(capability);
}

}  // namespace suite
