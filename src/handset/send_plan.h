// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What will be sent of a file, as what, and how large it becomes; found out without sending or keeping
// anything.
#pragma once

#include "handset/handset_preparation.h"
#include "handset/java_descriptor.h"

#include <cstdint>

namespace handset
{

enum class SendVerdict {
    good,
    badDescriptor,  // it goes to the run, which ends there with a message
    tooLong,        // the rest does not: a ring tone that is never sent,
    notAFile,       // a folder, say,
    gone,
    notReady,  // or what cannot be made fit
};

struct SendPlan {
    std::string source;
    platform::FileDataType type = platform::FileDataType::photo;
    std::string sentAs;      // the name on the handset
    std::uint64_t size = 0;  // bytes on the way, a Java program's archive among them
    SendVerdict verdict = SendVerdict::good;
    PreparedFile prepared;  // how it was made; the file itself is gone again
    DescriptorFault descriptor = DescriptorFault::none;
    std::string archive;  // path of a Java program's archive
    bool isKnownKind = true;

    // Whether it belongs to the files that a run is given.
    bool IsSent() const { return verdict == SendVerdict::good || verdict == SendVerdict::badDescriptor; }
};

// Takes as long as the preparation of the file.
SendPlan PlanSending(const std::string& path, CHandsetPreparation& preparation);

// The paths without those archives whose descriptor is among them: it takes its archive along.
std::vector<std::string> WithoutArchives(std::vector<std::string> paths);

}  // namespace handset
