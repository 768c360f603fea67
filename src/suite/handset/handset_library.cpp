// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/handset/handset_library.h"

#include "suite/handset/handset_session.h"
#include "suite/handset/received_file.h"

#include "platform/file_system.h"

#include <fmt/format.h>

#include <algorithm>
#include <span>

namespace suite
{

namespace
{

using platform::FileDataType;
using platform::Os;

constexpr std::uint64_t kLongestSent = 0xFFFFFFFF;

int ResultOf(const ObexAnswer& answer)
{
    constexpr int kDatabaseFull = 0x60;
    constexpr int kTooLarge = 0x4D;
    if (answer.IsGood())
        return platform::kHandsetDone;
    if (answer.kind == ObexAnswer::Kind::stopped)
        return platform::kHandsetCancelled;
    const bool isFull = answer.kind == ObexAnswer::Kind::answered &&
                        (answer.code == kDatabaseFull || answer.code == kTooLarge);
    return isFull ? platform::kHandsetFull : platform::kHandsetFailed;
}

std::string FileName(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

// Tells a transfer's percentage when it has grown.
class CPercentage
{
public:
    CPercentage(const CHandsetLibrary& handsetLibrary, std::uint64_t bytes)
        : library(handsetLibrary), total(bytes)
    {
        library.Tell(0);
    }
    void Add(std::size_t bytes)
    {
        done += bytes;
        // 100 only when the other side has confirmed.
        Show(total == 0 ? 0 : static_cast<int>(std::min<std::uint64_t>(done * 100 / total, 99)));
    }
    void Show(int percent)
    {
        if (percent > shown)
            library.Tell(shown = percent);
    }

private:
    const CHandsetLibrary& library;
    std::uint64_t total;
    std::uint64_t done = 0;
    int shown = 0;
};

class CUpDownLoad final : public platform::CUpDownLoad
{
public:
    explicit CUpDownLoad(CHandsetLibrary& handsetLibrary) : library(handsetLibrary) {}

    int SetConnectPort(unsigned number) override;
    int ATInit() override;
    int SetDataType(const platform::tag_DataType& transfer) override
    {
        return file = transfer, platform::kHandsetDone;
    }
    int StartUpload(int& code) override;
    int SetDatabaseName(const std::string& path) override
    {
        return recordFile = path, platform::kHandsetDone;
    }
    int StartDownload(int& code) override;
    std::string ReceivedPath() override { return receivedPath; }
    int GetFileCount(FileDataType type) override;
    int DeleteFileMobile(FileDataType type, int index) override;
    void Abort() override
    {
        if (session)
            session->Abort();
    }
    std::string Manufacturer() override { return session ? session->Manufacturer() : ""; }
    std::string Model() override { return session ? session->Model() : ""; }
    std::string LastError() override
    {
        return session     ? session->Error()
               : port == 0 ? "no port is chosen"
                           : fmt::format("no line is known for port {}", port);
    }

private:
    int Fail(const std::string& why);
    int SendFile(const std::string& path, CPercentage& percentage, int& code);
    void DeleteRemains(const std::string& name);
    bool HasNoRoomFor(std::uint64_t size, const ObexAnswer& answer);
    int Ended(const ObexAnswer& answer, int& code);

    CHandsetLibrary& library;
    std::shared_ptr<CHandsetSession> session;
    unsigned port = 0;
    platform::tag_DataType file;
    std::string recordFile;
    std::string receivedPath;
};

int CUpDownLoad::SetConnectPort(unsigned number)
{
    if (!session || number != port)
        session = library.SessionOf(number);
    port = number;
    return session ? platform::kHandsetDone : platform::kHandsetFailed;
}

int CUpDownLoad::Fail(const std::string& why)
{
    session->SetError(why);
    return platform::kHandsetFailed;
}

// What a transfer comes to; the request to stop it is done with.
int CUpDownLoad::Ended(const ObexAnswer& answer, int& code)
{
    code = answer.code;
    const int result = ResultOf(answer);
    const bool stopped = session->TakeAbort() && result != platform::kHandsetDone;
    return stopped ? platform::kHandsetCancelled : result;
}

int CUpDownLoad::ATInit()
{
    if (!session)
        return platform::kHandsetFailed;
    session->SetError("");
    const bool answers = session->Greet();
    session->TakeAbort();
    return answers ? platform::kHandsetDone : platform::kHandsetFailed;
}

int CUpDownLoad::SendFile(const std::string& path, CPercentage& percentage, int& code)
{
    const auto source = Os().files->Open(path, platform::OpenMode::read);
    const auto stamp = source ? source->Stamp() : std::nullopt;
    if (!stamp || stamp->size > kLongestSent)
        return Fail(path + ": " + (stamp ? "too long" : Os().files->LastError()));
    std::uint64_t sent = 0;
    const auto next = [&](std::span<std::byte> buffer) {
        const std::size_t wanted = std::min<std::uint64_t>(buffer.size(), stamp->size - sent);
        if (source->ReadAt(sent, buffer.first(wanted)) != wanted)
            return -1;
        sent += wanted;
        percentage.Add(wanted);
        return static_cast<int>(wanted);
    };
    const std::string name = FileName(path);
    const std::string place = fmt::format("{}/{}/{}", port, static_cast<int>(file.type), name);
    // Many handsets keep what has come so far, and some never replace a file.
    if (library.TakeRemains(place))
        DeleteRemains(name);
    const ObexAnswer answer = session->Send(file.type, name, static_cast<std::uint32_t>(stamp->size), next);
    if (sent > 0 && !answer.IsGood())
        library.NoteRemains(place);
    const int result = Ended(answer, code);
    return result == platform::kHandsetFailed && HasNoRoomFor(stamp->size, answer) ? platform::kHandsetFull
                                                                                   : result;
}

void CUpDownLoad::DeleteRemains(const std::string& name)
{
    const auto* const files = session->List(file.type, true);
    // To ask for one that is not there would unsettle some handsets.
    if (files && std::ranges::find(*files, name, &ListedFile::name) != files->end())
        session->Delete(file.type, name);
    session->SetError("");
}

// Whether that is why the handset gave an answer that says nothing.
bool CUpDownLoad::HasNoRoomFor(std::uint64_t size, const ObexAnswer& answer)
{
    constexpr int kInternalError = 0x50;
    if (answer.kind != ObexAnswer::Kind::answered || answer.code != kInternalError)
        return false;
    const std::string error = session->Error();
    const std::optional<std::uint64_t> room = session->FreeSpace();
    session->TakeAbort();
    session->SetError(error + (room ? fmt::format(" ({} bytes are free there)", *room) : ""));
    return room && size > *room;
}

int CUpDownLoad::StartUpload(int& code)
{
    code = 0;
    if (!session)
        return platform::kHandsetFailed;
    session->SetError("");
    std::uint64_t bytes = 0;
    for (const std::string& path : {file.archive, file.path}) {
        const auto facts = path.empty() ? std::nullopt : Os().files->FindFirstFile(path);
        bytes += facts ? facts->size : 0;
    }
    CPercentage percentage(library, bytes);
    int result = platform::kHandsetDone;
    if (!file.archive.empty())
        result = SendFile(file.archive, percentage, code);
    if (result == platform::kHandsetDone)
        result = SendFile(file.path, percentage, code);
    if (result == platform::kHandsetDone)
        percentage.Show(100);
    return result;
}

int CUpDownLoad::StartDownload(int& code)
{
    code = 0;
    receivedPath.clear();
    if (!session || recordFile.empty())
        return platform::kHandsetFailed;
    session->SetError("");
    const auto* const files = session->List(file.type, false);
    if (!files)
        return Ended({ObexAnswer::Kind::gone}, code);
    if (file.position < 0 || static_cast<std::size_t>(file.position) >= files->size())
        return Fail("the handset has no such file");
    const ListedFile listed = (*files)[static_cast<std::size_t>(file.position)];
    CReceivedFile received(recordFile, LocalName(listed.name));
    if (!received.Begin())
        return Fail(received.Error()), received.IsFull() ? platform::kHandsetFull : platform::kHandsetFailed;
    CPercentage percentage(library, listed.size);
    const auto take = [&](std::span<const std::byte> bytes) {
        percentage.Add(bytes.size());
        return received.Add(bytes);
    };
    int result = Ended(session->Fetch(file.type, listed.name, take), code);
    if (result == platform::kHandsetDone && received.Keep(listed.index, library.Host().addRecord)) {
        percentage.Show(100);
        receivedPath = recordFile.substr(0, recordFile.rfind('/') + 1) + received.Name();
        return result;
    }
    received.Drop();
    if (!received.Error().empty() && result != platform::kHandsetCancelled) {
        session->SetError(received.Error());
        result = received.IsFull() ? platform::kHandsetFull : platform::kHandsetFailed;
    }
    return result;
}

int CUpDownLoad::GetFileCount(FileDataType type)
{
    constexpr int kUnknown = -1;
    if (!session)
        return kUnknown;
    session->SetError("");
    const auto* const files = session->List(type, true);
    session->TakeAbort();
    return files ? static_cast<int>(files->size()) : kUnknown;
}

int CUpDownLoad::DeleteFileMobile(FileDataType type, int index)
{
    if (!session || index == 0)
        return platform::kHandsetFailed;
    session->SetError("");
    // All but ring tones are deleted as main wallpapers, whichever of these folders they came from. An index
    // holds for one folder, so it names the file anyway.
    std::vector<FileDataType> places = {type};
    if (type == FileDataType::mainWallpaper)
        places.insert(places.end(), {FileDataType::subWallpaper, FileDataType::photo, FileDataType::frame,
                                     FileDataType::animation});
    for (const FileDataType place : places) {
        const auto* const files = session->List(place, false);
        if (!files)
            return session->TakeAbort() ? platform::kHandsetCancelled : platform::kHandsetFailed;
        const auto found = std::ranges::find(*files, index, &ListedFile::index);
        if (found == files->end())
            continue;
        int code = 0;
        return Ended(session->Delete(place, std::string(found->name)), code);
    }
    return Fail("the handset has no such file");
}

}  // namespace

std::unique_ptr<platform::CUpDownLoad> CHandsetLibrary::NewUpDownLoad()
{
    return std::make_unique<CUpDownLoad>(*this);
}

void CHandsetLibrary::NoteRemains(const std::string& file)
{
    const std::lock_guard lock(guard);
    remains.insert(file);
}

bool CHandsetLibrary::TakeRemains(const std::string& file)
{
    const std::lock_guard lock(guard);
    return remains.erase(file) > 0;
}

std::shared_ptr<CHandsetSession> CHandsetLibrary::SessionOf(unsigned port)
{
    const std::lock_guard lock(guard);
    std::shared_ptr<CHandsetSession> session = sessions[port].lock();
    if (session)
        return session;
    const std::string device = host.deviceOfPort(port);
    if (device.empty())
        return nullptr;
    session = std::make_shared<CHandsetSession>(device, host.patience);
    sessions[port] = session;
    return session;
}

}  // namespace suite
