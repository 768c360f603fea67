// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSimulator: tools/handset-simulator for the length of a test.
#pragma once

#include "support/temp_folder.h"

#include <QProcess>

#include <gtest/gtest.h>

class CSimulator
{
public:
    CSimulator()
    {
        for (const char* name : {"My Album", "Ring", "Main Wallpaper", "Frame"})
            std::filesystem::create_directory(root.Path(name));
        process.setProcessChannelMode(QProcess::SeparateChannels);
        process.setReadChannel(QProcess::StandardOutput);
        process.start(KELVO_SIMULATOR, {"--root", QString::fromStdString(root.Path()), "--port",
                                        QString::fromStdString(Port()), "--shim", KELVO_RFCOMM_SHIM});
        if (!Expect("ready"))
            ADD_FAILURE() << process.readAllStandardError().toStdString();
    }
    ~CSimulator()
    {
        process.closeWriteChannel();
        process.waitForFinished();
    }

    // Sets the faults in place of those before; see the simulator.
    void SetFaults(const std::string& faults)
    {
        process.write(("faults " + faults + "\n").c_str());
        EXPECT_TRUE(Expect("ok"));
    }
    std::string Port() const { return place.Path("port"); }

    support::CTempFolder root;  // the handset's folders

private:
    bool Expect(const char* word)
    {
        while (!process.canReadLine()) {
            if (!process.waitForReadyRead())
                return false;
        }
        return process.readLine().startsWith(word);
    }

    support::CTempFolder place;
    QProcess process;
};
