// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A handset that writes down what is asked of it and answers as it is told.
#pragma once

#include "platform/file_system.h"
#include "platform/handset_link.h"

#include <functional>
#include <map>

class CNotingLink : public platform::CHandsetLink
{
public:
    std::vector<std::string> calls;
    bool isThere = true;
    std::map<int, int> counts;  // by category
    int refusedIndex = -1;
    std::map<int, int> results;  // of transfers, by their number from 1; others succeed
    std::function<void(int)> duringTransfer = [](int) {};  // with its number
    int alive = 0;
    bool connectionLost = false;  // all objects were gone between two operations

    std::unique_ptr<platform::CUpDownLoad> NewUpDownLoad() override
    {
        connectionLost = connectionLost || (alive == 0 && !calls.empty());
        return std::make_unique<CObject>(*this);
    }
    void SetProgressFunc(void (*)(int)) override {}

private:
    struct CObject : platform::CUpDownLoad {
        explicit CObject(CNotingLink& link) : owner(link) { ++owner.alive; }
        ~CObject() override { --owner.alive; }
        int SetConnectPort(unsigned number) override { return port = number, 1; }
        int ATInit() override { return owner.isThere ? 1 : 0; }
        int SetDataType(const platform::tag_DataType& transfer) override { return file = transfer, 1; }
        int StartUpload(int&) override
        {
            const auto bytes = platform::Os().files->ReadWhole(file.path, 1 << 20);
            return Transfer("send " + Type(file.type) + " " + NameOf(file.path) +
                            (file.archive.empty() ? "" : " with " + NameOf(file.archive)) + " (" +
                            bytes.value_or("missing") + ")");
        }
        int SetDatabaseName(const std::string& path) override { return recordFile = path, 1; }
        int StartDownload(int&) override
        {
            const bool hasRecords = platform::Os().files->FindFirstFile(recordFile).has_value();
            return Transfer("fetch " + Type(file.type) + "." + std::to_string(file.position) + " into " +
                            NameOf(recordFile.substr(0, recordFile.rfind('/'))) +
                            (hasRecords ? "" : " without records"));
        }
        std::string ReceivedPath() override { return recordFile; }
        int GetFileCount(platform::FileDataType type) override
        {
            owner.calls.push_back("count " + Type(type));
            return owner.counts[static_cast<int>(type)];
        }
        int DeleteFileMobile(platform::FileDataType type, int index) override
        {
            owner.calls.push_back(std::to_string(port) + ":" + Type(type) + "," + std::to_string(index));
            return index == 0 || index == owner.refusedIndex ? 0 : 1;
        }
        void Abort() override { owner.calls.emplace_back("abort"); }
        std::string Manufacturer() override { return "Maker"; }
        std::string Model() override { return "Model"; }
        std::string LastError() override { return "the reason"; }

        static std::string Type(platform::FileDataType type)
        {
            return std::to_string(static_cast<int>(type));
        }
        static std::string NameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }
        int Transfer(const std::string& call)
        {
            owner.calls.push_back(call);
            const int number = ++owner.transfers;
            owner.duringTransfer(number);
            return owner.results.contains(number) ? owner.results[number] : 1;
        }

        CNotingLink& owner;
        unsigned port = 0;
        platform::tag_DataType file;
        std::string recordFile;
    };
    int transfers = 0;
};
