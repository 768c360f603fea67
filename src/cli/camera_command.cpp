// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings.h"
#include "app/string_table.h"
#include "cli/commands.h"
#include "cli/interruption_guard.h"
#include "handset/camera_copy.h"
#include "platform/services.h"

#include <fmt/format.h>

namespace cli
{

namespace
{

constexpr const char* kCamera = "camera";

// Prints what the dialog would show. Nobody answers its question here, so the answer is No.
class CTerminalHost final : public handset::CCameraCopyHost
{
public:
    explicit CTerminalHost(CContext& theContext) : context(theContext) {}

    void ShowMessage(platform::StringId text) override
    {
        message = app::Strings().LoadString(text);
        context.Fail(kCamera, message.get<std::string>());
    }
    int AskYesNo(platform::StringId text) override
    {
        bar.reset();
        message = app::Strings().LoadString(text);
        fmt::print(stderr, "{}\n", message.get<std::string>());
        return handset::kBoxNo;
    }
    void ShowCount(int copied, int total) override
    {
        if (!bar) {
            bar.emplace(context, static_cast<std::size_t>(total));
        }
        bar->ShowDone(static_cast<std::size_t>(copied));
    }

    std::optional<CProgressBar> bar;
    Json message = nullptr;

private:
    CContext& context;
};

void ReportLeftOut(CContext& context)
{
    for (const std::string& path : platform::Os().cameraStore->LeftOut()) {
        context.Fail(path, "cannot be read and is left out");
    }
}

void ReportTrouble(CContext& context, const handset::CCameraCopy& copy)
{
    using enum handset::CCameraCopy::Trouble;
    switch (copy.WhatFailed()) {
    case none:
        return;
    case noPlace:
        return context.Fail(kCamera, "there is no folder to copy to");
    case noFolder:
        return context.Fail(copy.Folder(), copy.Failure());
    case storeGone:
        return context.Fail(kCamera, fmt::format("is gone after {} of {} files: {}", copy.Files().size(),
                                                 copy.Total(), copy.Failure()));
    default:
        context.Fail(copy.Folder(), fmt::format("file {} of {} cannot be copied: {}", copy.Files().size() + 1,
                                                copy.Total(), copy.Failure()));
    }
}

void CopyAll(CContext& context, handset::CCameraCopy& copy)
{
    const CInterruptionGuard guard([&copy] { copy.Cancel(); });
    const bool hasBegun = copy.Start();
    ReportLeftOut(context);
    while (hasBegun && Interruption() == 0 && copy.Step()) {
    }
    copy.Finish();
    ReportTrouble(context, copy);
    if (copy.HasKeptPhotos()) {
        context.Fail(kCamera, "some photos could not be deleted");
    }
}

void RunCopy(CContext& context, const std::string& target)
{
    const app::CKelvoApp& application = context.Application();
    app::CSettings settings;
    settings.Load(application.ProgramFolder() + "/Kelvo.ini");
    CTerminalHost host(context);
    handset::CCameraCopy copy(*platform::Os().cameraStore,
                              {application.ProgramFolder(),
                               target.empty() ? application.MobileDownloadFolder() : AbsolutePath(target),
                               settings.delDscPhoto,
                               {settings.useId, settings.imgItemId, settings.aviItemId}},
                              host);
    CopyAll(context, copy);
    host.bar.reset();
    if (settings.useId && !copy.Files().empty()) {
        settings.imgItemId = copy.Numbers().photo;
        settings.aviItemId = copy.Numbers().clip;
        settings.Save();
    }
    const std::string* folder = copy.Folder().empty() ? nullptr : &copy.Folder();
    context.PrintJson({{"folder", TextOrNull(folder)},
                       {"copied", copy.Files().size()},
                       {"total", copy.Total()},
                       {"files", copy.Files()},
                       {"message", host.message}});
    for (const std::string& file : copy.Files()) {
        context.PrintLine(file);
    }
}

void RunList(CContext& context)
{
    platform::CMsdModule& camera = *platform::Os().cameraStore;
    if (camera.InitMsd(context.Application().ProgramFolder() + "/Dev.ini", 0, platform::kMsdAll) == 0) {
        context.Fail(kCamera, app::Strings().LoadString(platform::StringId::cameraNotAvailable));
    }
    int photos = 0;
    int clips = 0;
    camera.GetFileCount(platform::kMsdPhoto, &photos);
    camera.GetFileCount(platform::kMsdClip, &clips);
    ReportLeftOut(context);
    camera.UnInitMsd();
    context.PrintJson({{"photos", photos}, {"clips", clips}});
    context.PrintLine(fmt::format("photos\t{}", photos));
    context.PrintLine(fmt::format("clips\t{}", clips));
}

}  // namespace

void AddCameraCommand(CLI::App& parser, CContext& context)
{
    auto* camera = parser.add_subcommand("camera", "Photos and clips of a camera or card that is mounted");
    camera->require_subcommand(1);
    auto* copy = camera->add_subcommand("copy", "Copy all of them into a new folder named by the time");
    auto target = std::make_shared<std::string>();
    copy->add_option("--to", *target, "Make that folder in DIR instead of the download folder");
    copy->callback([&context, target] { RunCopy(context, *target); });
    auto* list = camera->add_subcommand("list", "Print how many there are");
    list->callback([&context] { RunList(context); });
}

}  // namespace cli
