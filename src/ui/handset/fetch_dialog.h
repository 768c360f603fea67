// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFetchDialog: photos, ring tones or animations on their way from the handset.
#pragma once

#include "handset/handset_fetch.h"
#include "ui/handset/transfer_dialog.h"

#include <array>

class QCheckBox;

namespace ui
{

class CFetchDialog : public CTransferDialog
{
    Q_OBJECT

public:
    // `fetchMode` mainWallpaper for photos, of which the user ticks some folders. `destinationFolder`
    // receives the folders of the categories.
    CFetchDialog(platform::FileDataType fetchMode, std::string destinationFolder, unsigned portNumber,
                 QWidget* parent);

protected:
    bool CanStart() const override;
    std::unique_ptr<handset::CTransferRun> NewRun(handset::CTransferHost& host) override;
    QString BeginText() const override;
    QString FileText(int number, platform::FileDataType type) const override;
    QString EndText(int count) const override;
    void SetRunning(bool running) override;
    void OnFile(int, const handset::TransferredFile&) override {}

private:
    bool IsPhotoMode() const { return mode == platform::FileDataType::mainWallpaper; }
    QWidget* MakeGroup();

    platform::FileDataType mode;
    std::string destination;
    unsigned port;
    std::array<QCheckBox*, 4> boxes = {};
};

}  // namespace ui
