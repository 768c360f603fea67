// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/send_plan.h"

#include "browser/file_names.h"
#include "browser/media_types.h"
#include "platform/file_system.h"

#include <set>

namespace handset
{

namespace
{

std::uint64_t SizeOf(const std::string& path)
{
    const auto facts = platform::Os().files->FindFirstFile(path);
    return facts ? facts->size : 0;
}

SendVerdict Look(const std::string& path)
{
    const auto facts = platform::Os().files->FindFirstFile(path);
    if (!facts)
        return SendVerdict::gone;
    if (!facts->isRegular)
        return SendVerdict::notAFile;
    return IsTooLong(path) ? SendVerdict::tooLong : SendVerdict::good;
}

void PlanProgram(SendPlan& plan)
{
    plan.archive = ArchiveOf(plan.source);
    plan.descriptor = CheckDescriptor(plan.source);
    if (plan.descriptor != DescriptorFault::none)
        plan.verdict = SendVerdict::badDescriptor;
    else
        plan.size += SizeOf(plan.archive);
}

}  // namespace

std::vector<std::string> WithoutArchives(std::vector<std::string> paths)
{
    std::set<std::string> archives;
    for (const std::string& path : paths) {
        if (DataTypeOf(path) == platform::FileDataType::java)
            archives.insert(ArchiveOf(path));
    }
    std::erase_if(paths, [&](const std::string& path) { return archives.contains(path); });
    return paths;
}

SendPlan PlanSending(const std::string& path, CHandsetPreparation& preparation)
{
    SendPlan plan;
    plan.source = path;
    plan.type = DataTypeOf(path);
    plan.verdict = Look(path);
    plan.isKnownKind = plan.type != platform::FileDataType::photo ||
                       (browser::TypeBits(browser::FileName(path)) & browser::kTypePicture) != 0;
    plan.sentAs = browser::FileName(path);
    plan.size = SizeOf(path);
    if (plan.verdict != SendVerdict::good)
        return plan;
    plan.prepared = preparation.Prepare(path, JpegPlace::temporary);
    if (!plan.prepared.isReady) {
        plan.verdict = SendVerdict::notReady;
        return plan;
    }
    plan.sentAs = browser::FileName(plan.prepared.path);
    plan.size = SizeOf(plan.prepared.path);
    CHandsetPreparation::Remove(plan.prepared);
    if (plan.type == platform::FileDataType::java)
        PlanProgram(plan);
    return plan;
}

}  // namespace handset
