// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/handset_send.h"

#include "browser/file_names.h"
#include "handset/java_descriptor.h"

#include <utility>

namespace handset
{

using platform::StringId;

CHandsetSend::CHandsetSend(std::vector<std::string> paths, unsigned portNumber, CTransferHost& shownBy)
    : CTransferRun(portNumber, shownBy), sources(std::move(paths))
{
}

bool CHandsetSend::Start()
{
    return Connect();
}

platform::FileDataType CHandsetSend::TypeInWork() const
{
    return index < sources.size() ? DataTypeOf(sources[index]) : platform::FileDataType::photo;
}

bool CHandsetSend::Step()
{
    if (index >= sources.size() || failed || IsCancelled())
        return false;
    host.ShowCounter(static_cast<int>(index) + 1, static_cast<int>(sources.size()));
    const std::string& source = sources[index];
    if (IsTooLong(source))
        return false;
    const PreparedFile file = preparation.Prepare(source, JpegPlace::besideSource);
    const bool isSent = Send(source, file);
    CHandsetPreparation::Remove(file);
    if (!isSent)
        return false;
    ++index;
    return index < sources.size();
}

bool CHandsetSend::Send(const std::string& source, const PreparedFile& file)
{
    TransferredFile sent;
    sent.path = source;
    sent.sentAs = browser::FileName(file.path);
    sent.type = DataTypeOf(source);
    if (!file.isReady)
        return Take(sent, file.problem);
    platform::tag_DataType record;
    record.type = sent.type;
    record.path = file.path;
    if (sent.type == platform::FileDataType::java) {
        if (CheckDescriptor(source) != DescriptorFault::none) {
            host.ShowMessage(StringId::handsetBadDescriptor, source);
            return false;
        }
        record.archive = ArchiveOf(source);
    }
    const auto link = NewLink();
    int code = 0;
    link->SetDataType(record);
    link->SetConnectPort(port);
    sent.result = link->StartUpload(code);
    return Take(sent, link->LastError());
}

}  // namespace handset
