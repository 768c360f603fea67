// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/handset/obex_client.h"
#include "suite/handset/obex_packet.h"

#include <QElapsedTimer>
#include <QString>

#include <openobex/obex.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace suite
{

namespace
{

constexpr int kSlice = 100;
constexpr std::uint16_t kPacket = kLongestPacket;
constexpr std::size_t kConnectFields = 4;
// What a refused CONNECT should be answered with: code, length, version, flags, longest packet. Of an answer
// that is shorter, the library takes the missing bytes for a length below 0.
constexpr std::string_view kWholeAnswer("\xC0\0\x07\x10\0\x20\0", 7);
constexpr std::array<std::uint8_t, 16> kFolderBrowsing = {0xF9, 0xEC, 0x7B, 0xC4, 0x95, 0x3C, 0x11, 0xD2,
                                                          0x98, 0x4E, 0x52, 0x54, 0x00, 0xDC, 0x9E, 0x09};

class COpenObexClient final : public CObexClient
{
public:
    COpenObexClient(CSerialLine& serialLine, const LinePatience& linePatience,
                    std::function<bool()> stopAsked);
    ~COpenObexClient() override;

    ObexAnswer Connect() override;
    ObexAnswer SetPath(const std::string& folder) override;
    ObexAnswer Put(const std::string& name, std::uint32_t length, const Source& source) override;
    ObexAnswer Get(const std::string& name, const std::string& type, const Sink& sink) override;
    ObexAnswer Delete(const std::string& name) override;
    void Disconnect() override;

private:
    static COpenObexClient& Of(void* data) { return *static_cast<COpenObexClient*>(data); }
    static void OnEvent(obex_t* handle, obex_object_t* object, int mode, int event, int command, int answer);

    obex_object_t* NewRequest(std::uint8_t command);
    void AddName(obex_object_t* request, const std::string& name);
    void AddNumber(obex_object_t* request, std::uint8_t header, std::uint32_t number);
    void AddBytes(obex_object_t* request, std::uint8_t header, std::span<const std::uint8_t> bytes);
    ObexAnswer Run(obex_object_t* request, int silence, bool readsStream = false);
    void Handle(obex_object_t* object, int event, int answer);
    void NoteConnection(obex_object_t* object);
    void SendMore(obex_object_t* object);
    void TakeMore(obex_object_t* object);
    void End(ObexAnswer::Kind kind, int code = 0) { ended = ended ? ended : ObexAnswer{kind, code}; }
    int TakeInput(int milliseconds);
    int PassPackets();

    CSerialLine& line;
    LinePatience times;
    std::function<bool()> stop;
    obex_t* obex = nullptr;
    std::string coming;  // came over the line, the beginning of a packet
    std::string input;   // whole packets that are not taken yet
    std::size_t inputTaken = 0;
    QElapsedTimer quiet;
    int patience = 0;  // of the running request, milliseconds
    bool isConnecting = false;
    std::optional<std::uint32_t> connection;
    std::optional<ObexAnswer> ended;
    const Source* source = nullptr;
    const Sink* sink = nullptr;
    std::vector<std::byte> block;
};

COpenObexClient::COpenObexClient(CSerialLine& serialLine, const LinePatience& linePatience,
                                 std::function<bool()> stopAsked)
    : line(serialLine), times(linePatience), stop(std::move(stopAsked)), block(kPacket)
{
    obex = OBEX_Init(OBEX_TRANS_CUSTOM, &OnEvent, 0);
    if (!obex)
        return;
    obex_ctrans_t transport{};
    transport.customdata = this;
    transport.connect = [](obex_t*, void*) { return 1; };
    transport.disconnect = [](obex_t*, void*) { return 1; };
    transport.handleinput = [](obex_t*, void* self, int) { return Of(self).TakeInput(kSlice); };
    transport.read = [](obex_t*, void* data, std::uint8_t* buffer, int size) {
        COpenObexClient& self = Of(data);
        const std::size_t count = std::min<std::size_t>(self.input.size() - self.inputTaken,
                                                        static_cast<std::size_t>(std::max(size, 0)));
        std::copy_n(self.input.begin() + static_cast<std::ptrdiff_t>(self.inputTaken), count, buffer);
        self.inputTaken += count;
        return static_cast<int>(count);
    };
    transport.write = [](obex_t*, void* data, std::uint8_t* bytes, int length) {
        COpenObexClient& self = Of(data);
        if (!self.line.Write(reinterpret_cast<const char*>(bytes), length, self.patience, self.stop))
            return -1;
        self.quiet.restart();
        return length;
    };
    OBEX_SetUserData(obex, this);
    OBEX_RegisterCTransport(obex, &transport);
    OBEX_SetTransportMTU(obex, kPacket, kPacket);
    OBEX_TransportConnect(obex, nullptr, 0);
}

COpenObexClient::~COpenObexClient()
{
    if (obex)
        OBEX_Cleanup(obex);
}

int COpenObexClient::TakeInput(int milliseconds)
{
    if (inputTaken < input.size())
        return 1;
    input.clear();
    inputTaken = 0;
    switch (line.Read(coming, milliseconds)) {
    case CSerialLine::State::data:
        quiet.restart();
        return PassPackets();
    case CSerialLine::State::nothing:
        return 0;
    case CSerialLine::State::gone:
        break;
    }
    End(ObexAnswer::Kind::gone);
    return -1;
}

// The library below trusts the lengths in a packet, so no other gets there.
int COpenObexClient::PassPackets()
{
    std::size_t length = 0;
    for (;;) {
        switch (LookAtPacket(coming, isConnecting ? kConnectFields : 0, length)) {
        case PacketState::whole:
            if (isConnecting && length < kWholeAnswer.size())
                input.append(coming, 0, 1).append(kWholeAnswer.substr(1));
            else
                input.append(coming, 0, length);
            coming.erase(0, length);
            break;
        case PacketState::partial:
            return input.empty() ? 0 : 1;
        case PacketState::bad:
            End(ObexAnswer::Kind::garbled);
            return -1;
        }
    }
}

obex_object_t* COpenObexClient::NewRequest(std::uint8_t command)
{
    obex_object_t* const request = obex ? OBEX_ObjectNew(obex, command) : nullptr;
    if (request && connection)
        AddNumber(request, OBEX_HDR_CONNECTION, *connection);
    return request;
}

void COpenObexClient::AddNumber(obex_object_t* request, std::uint8_t header, std::uint32_t number)
{
    obex_headerdata_t value{};
    value.bq4 = number;
    OBEX_ObjectAddHeader(obex, request, header, value, 4, OBEX_FL_FIT_ONE_PACKET);
}

void COpenObexClient::AddBytes(obex_object_t* request, std::uint8_t header,
                               std::span<const std::uint8_t> bytes)
{
    obex_headerdata_t value{};
    value.bs = bytes.data();
    OBEX_ObjectAddHeader(obex, request, header, value, static_cast<std::uint32_t>(bytes.size()),
                         OBEX_FL_FIT_ONE_PACKET);
}

void COpenObexClient::AddName(obex_object_t* request, const std::string& name)
{
    std::vector<std::uint8_t> bytes;
    const auto add = [&bytes](char16_t unit) {
        bytes.push_back(static_cast<std::uint8_t>(unit >> 8));
        bytes.push_back(static_cast<std::uint8_t>(unit & 0xFF));
    };
    if (!name.empty()) {
        for (const QChar unit : QString::fromStdString(name))
            add(unit.unicode());
        add(0);
    }
    AddBytes(request, OBEX_HDR_NAME, bytes);
}

ObexAnswer COpenObexClient::Connect()
{
    obex_object_t* const request = NewRequest(OBEX_CMD_CONNECT);
    if (!request)
        return {ObexAnswer::Kind::gone};
    AddBytes(request, OBEX_HDR_TARGET, kFolderBrowsing);
    isConnecting = true;
    const ObexAnswer answer = Run(request, times.request);
    isConnecting = false;
    return answer;
}

ObexAnswer COpenObexClient::SetPath(const std::string& folder)
{
    constexpr std::array<std::uint8_t, 2> kDoNotCreate = {2, 0};
    obex_object_t* const request = NewRequest(OBEX_CMD_SETPATH);
    if (!request)
        return {ObexAnswer::Kind::gone};
    OBEX_ObjectSetNonHdrData(request, kDoNotCreate.data(), kDoNotCreate.size());
    AddName(request, folder);
    return Run(request, times.request);
}

ObexAnswer COpenObexClient::Put(const std::string& name, std::uint32_t length, const Source& bytes)
{
    obex_object_t* const request = NewRequest(OBEX_CMD_PUT);
    if (!request)
        return {ObexAnswer::Kind::gone};
    AddName(request, name);
    AddNumber(request, OBEX_HDR_LENGTH, length);
    source = &bytes;
    OBEX_ObjectAddHeader(obex, request, OBEX_HDR_BODY, {}, 0, OBEX_FL_STREAM_START);
    const ObexAnswer answer = Run(request, times.transfer);
    source = nullptr;
    return answer;
}

ObexAnswer COpenObexClient::Get(const std::string& name, const std::string& type, const Sink& taker)
{
    obex_object_t* const request = NewRequest(OBEX_CMD_GET);
    if (!request)
        return {ObexAnswer::Kind::gone};
    if (!type.empty())
        AddBytes(request, OBEX_HDR_TYPE,
                 {reinterpret_cast<const std::uint8_t*>(type.c_str()), type.size() + 1});
    if (!name.empty())
        AddName(request, name);
    sink = &taker;
    const ObexAnswer answer = Run(request, times.transfer, true);
    sink = nullptr;
    return answer;
}

ObexAnswer COpenObexClient::Delete(const std::string& name)
{
    obex_object_t* const request = NewRequest(OBEX_CMD_PUT);
    if (!request)
        return {ObexAnswer::Kind::gone};
    AddName(request, name);
    return Run(request, times.request);
}

void COpenObexClient::Disconnect()
{
    if (obex_object_t* const request = NewRequest(OBEX_CMD_DISCONNECT))
        Run(request, times.leaving);
}

ObexAnswer COpenObexClient::Run(obex_object_t* request, int silence, bool readsStream)
{
    ended.reset();
    patience = silence;
    quiet.start();
    if (OBEX_Request(obex, request) < 0) {
        OBEX_ObjectDelete(obex, request);
        return {ObexAnswer::Kind::gone};
    }
    if (readsStream)  // before the request, what comes would be lost
        OBEX_ObjectReadStream(obex, request, nullptr);
    while (!ended) {
        const int worked = OBEX_Work(obex);
        if (stop())
            End(ObexAnswer::Kind::stopped);
        else if (worked < 0)
            End(line.IsOpen() ? ObexAnswer::Kind::garbled : ObexAnswer::Kind::gone);
        else if (quiet.elapsed() > patience)
            End(ObexAnswer::Kind::silent);
    }
    return *ended;
}

void COpenObexClient::OnEvent(obex_t* handle, obex_object_t* object, int, int event, int, int answer)
{
    Of(OBEX_GetUserData(handle)).Handle(object, event, answer);
}

void COpenObexClient::Handle(obex_object_t* object, int event, int answer)
{
    switch (event) {
    case OBEX_EV_REQDONE:
        if (!connection)
            NoteConnection(object);
        End(ObexAnswer::Kind::answered, answer & ~OBEX_FINAL);
        break;
    case OBEX_EV_STREAMEMPTY:
        SendMore(object);
        break;
    case OBEX_EV_STREAMAVAIL:
        TakeMore(object);
        break;
    case OBEX_EV_LINKERR:
        End(line.IsOpen() ? ObexAnswer::Kind::garbled : ObexAnswer::Kind::gone);
        break;
    case OBEX_EV_ABORT:
    case OBEX_EV_PARSEERR:
        End(ObexAnswer::Kind::garbled);
        break;
    default:
        break;
    }
}

void COpenObexClient::NoteConnection(obex_object_t* object)
{
    std::uint8_t header = 0;
    obex_headerdata_t value{};
    std::uint32_t size = 0;
    while (OBEX_ObjectGetNextHeader(obex, object, &header, &value, &size) > 0) {
        if (header == OBEX_HDR_CONNECTION)
            connection = value.bq4;
    }
}

void COpenObexClient::SendMore(obex_object_t* object)
{
    int count = source ? (*source)(block) : 0;
    if (count < 0) {
        // Anything but an end, which would make a whole file of what has gone so far. The line is dropped
        // next.
        End(ObexAnswer::Kind::refusedHere);
        count = 1;
    }
    obex_headerdata_t value{};
    value.bs = reinterpret_cast<const std::uint8_t*>(block.data());
    OBEX_ObjectAddHeader(obex, object, OBEX_HDR_BODY, value, static_cast<std::uint32_t>(count),
                         count > 0 ? OBEX_FL_STREAM_DATA : OBEX_FL_STREAM_DATAEND);
}

void COpenObexClient::TakeMore(obex_object_t* object)
{
    const std::uint8_t* bytes = nullptr;
    const int count = OBEX_ObjectReadStream(obex, object, &bytes);
    if (count > 0 && sink && !(*sink)(std::as_bytes(std::span(bytes, static_cast<std::size_t>(count)))))
        End(ObexAnswer::Kind::refusedHere);
}

}  // namespace

std::unique_ptr<CObexClient> MakeObexClient(CSerialLine& line, const LinePatience& patience,
                                            std::function<bool()> stop)
{
    return std::make_unique<COpenObexClient>(line, patience, std::move(stop));
}

}  // namespace suite
