// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLineNodes: word of the device files of adapters' serial lines (ttyUSB, ttyACM, rfcomm) that come and go.
//
// The folder of device files is followed through inotify; where it cannot be, nothing is ever told. Word
// comes once for a burst, when the system has had the time to name and permit what came.
#pragma once

#include "platform_linux/handle.h"

#include <QSocketNotifier>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

namespace platform_linux
{

class CLineNodes final : public QObject
{
    Q_OBJECT

public:
    CLineNodes(const std::string& folder, std::function<void()> changed);

private:
    void Take();

    CHandle queue;
    std::unique_ptr<QSocketNotifier> notifier;
    QTimer settle;
};

}  // namespace platform_linux
