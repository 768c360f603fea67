// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a record file: a lookup finds what a plain walk over the records finds.
#include "handset/record_file.h"
#include "support/memory_file.h"
#include "support/services_guard.h"
#include "support/test_file_system.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace
{

class CFuzzedFiles : public support::CTestFileSystem
{
public:
    std::string bytes;
    std::unique_ptr<platform::CFile> Open(const std::string&, platform::OpenMode) override
    {
        return std::make_unique<support::CMemoryFile>(bytes);
    }
};

int PlainWalk(const std::string& bytes, const std::string& name)
{
    for (std::size_t at = 0; at + handset::kRecordSize <= bytes.size(); at += handset::kRecordSize) {
        const std::string field = bytes.substr(at, handset::kRecordNameSize);
        if (field.substr(0, field.find('\0')) != name)
            continue;
        std::int32_t index = 0;
        std::memcpy(&index, bytes.data() + at + handset::kRecordNameSize, sizeof index);
        return index;
    }
    return 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    CFuzzedFiles files;
    files.bytes.assign(reinterpret_cast<const char*>(data), size);
    const support::CServicesGuard guard(files);
    std::size_t at = 0;
    do {
        std::string name = files.bytes.substr(at, handset::kRecordNameSize);
        name.resize(std::min(name.find('\0'), name.size()));
        const int expected = name.empty() ? 0 : PlainWalk(files.bytes, name);
        if (handset::FindHandsetIndex("any", name) != expected)
            std::abort();
        at += handset::kRecordSize;
    } while (at < size && at < 8 * handset::kRecordSize);
    return 0;
}
