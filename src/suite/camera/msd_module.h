// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMountedStore: CMsdModule over a card or camera that is mounted as a file system.
//
// Reading ahead of the caller is CCopyAhead's work; a call out of turn starts it anew.
#pragma once

#include "platform/camera_store.h"
#include "suite/camera/copy_ahead.h"

namespace suite
{

class CMountedStore final : public platform::CMsdModule
{
public:
    void UnInitMsd() override;
    int InitMsd(const std::string& deviceFile, char drive, int kind) override;
    int GetFileCount(int kind, int* count) override;
    int UploadFile(int device, unsigned number, unsigned kind, const std::string& path,
                   Progress progress) override;
    void Abort(int reason) override;
    int DeleteMsdFile(int kind, int number) override;
    std::string UploadedPath() const override { return uploaded; }
    std::string LastError() const override { return error; }
    platform::MsdFailure LastFailure() const override { return failure; }
    std::vector<std::string> LeftOut() const override { return list.leftOut; }
    std::optional<platform::MsdSurvey> Survey(const std::string& deviceFile) const override;

private:
    int Fail(int reason);
    int FailCopy(int reason);
    // The file in the order of the copy, photos first; files.size() when there is none such.
    std::size_t IndexOf(int kind, unsigned number) const;
    bool PrepareCopies(const std::string& folder, std::size_t index);
    bool Settle(const std::string& folder);

    StoreList list;
    std::vector<const StoredFile*> files;
    bool isConnected = false;
    std::string uploaded;
    std::string error;
    platform::MsdFailure failure = platform::MsdFailure::other;
    FoundStore connected;
    std::mutex mutex;  // guards what follows against Abort
    bool aborted = false;
    std::unique_ptr<CCopyAhead> copies;
};

}  // namespace suite
