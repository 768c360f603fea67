// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CHandsetSession: the conversation with the handset at one device, opened when it is first needed.
//
// It begins with AT commands and stays with OBEX once that has begun. A request that was not answered ends
// it; the next operation opens it anew. One thread, but for Abort.
#pragma once

#include "platform/handset_link.h"
#include "suite/handset/folder_listing.h"
#include "suite/handset/line_patience.h"
#include "suite/handset/obex_client.h"

#include <atomic>
#include <map>
#include <optional>

namespace suite
{

class CHandsetSession
{
public:
    CHandsetSession(std::string devicePath, const LinePatience& linePatience)
        : device(std::move(devicePath)), patience(linePatience)
    {
    }
    ~CHandsetSession() { Close(); }

    // Whether the handset answers now. One that did not is not asked again by anything else, so that a run of
    // many files ends soon.
    bool Greet();
    // Files of a category, in the order of their names; those of the latest listing unless `fresh`. None for
    // a folder that the handset does not have; nothing when it could not be asked.
    const std::vector<ListedFile>* List(platform::FileDataType type, bool fresh);

    ObexAnswer Send(platform::FileDataType type, const std::string& name, std::uint32_t length,
                    const CObexClient::Source& source);
    ObexAnswer Fetch(platform::FileDataType type, const std::string& name, const CObexClient::Sink& sink);
    ObexAnswer Delete(platform::FileDataType type, const std::string& name);
    // How many bytes are free on the handset, as far as it says.
    std::optional<std::uint64_t> FreeSpace();

    void Abort() { aborted = true; }
    // Whether it was asked for since the last call.
    bool TakeAbort() { return aborted.exchange(false); }

    const std::string& Manufacturer() const { return manufacturer; }
    const std::string& Model() const { return model; }
    const std::string& Error() const { return error; }
    void SetError(std::string text) { error = std::move(text); }

private:
    bool Open();
    void Close();
    ObexAnswer Enter(platform::FileDataType type);
    // Notes why it failed; closes what is of no use any more.
    ObexAnswer Checked(const ObexAnswer& answer, const std::string& what);

    std::string device;
    LinePatience patience;
    CSerialLine line;
    std::unique_ptr<CObexClient> obex;
    std::map<platform::FileDataType, std::vector<ListedFile>> listings;
    std::optional<platform::FileDataType> present;  // whose folder the handset is in
    bool silent = false;                            // no handset answered the latest greeting
    bool inStep = false;                            // every request over OBEX was answered
    std::atomic<bool> aborted = false;
    std::string manufacturer, model, error;
};

// The path of a category's folder on a handset of that model; components are divided by "/". From section
// "Folders MODEL", else "Folders", of "Handset.ini" in the program's folder, key the category's number; else
// the category's title.
std::string HandsetFolder(platform::FileDataType type, const std::string& model);

}  // namespace suite
