// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/handset_places.h"
#include "app/string_table.h"
#include "cli/handset_commands.h"
#include "cli/interruption_guard.h"
#include "handset/handset_fetch.h"
#include "handset/handset_send.h"
#include "handset/send_plan.h"

#include <fmt/format.h>

#include <cstdio>
#include <filesystem>

namespace cli
{

namespace
{

using handset::SendPlan;
using handset::SendVerdict;
using platform::FileDataType;
using platform::StringId;

// Prints what the dialogs would show.
class CTransferTeller final : public handset::CTransferHost
{
public:
    explicit CTransferTeller(CContext& theContext) : context(theContext)
    {
        shown = this;
        platform::SetProgressFunc([](int percent) { shown->ShowPercent(percent); });
    }
    ~CTransferTeller() override { platform::SetProgressFunc(nullptr); }
    CTransferTeller(const CTransferTeller&) = delete;
    CTransferTeller& operator=(const CTransferTeller&) = delete;

    void ShowStatus(StringId text, const std::string& reason) override { ShowMessage(text, reason); }
    void ShowMessage(StringId text, const std::string& reason) override
    {
        bar.reset();
        message = text;
        if (text != StringId::handsetSuccessful || !reason.empty()) {
            TellFailure(context, text, reason);
        } else if (!context.quiet) {
            fmt::print(stderr, "{}\n", app::Strings().LoadString(text));
        }
    }
    void ShowCounter(int number, int total) override
    {
        before = static_cast<std::size_t>(number) - 1;
        if (!bar) {
            bar.emplace(context, static_cast<std::size_t>(total));
        }
        ShowPercent(0);
    }

    // The latest.
    StringId message = StringId::none;

private:
    void ShowPercent(int percent)
    {
        if (bar) {
            bar->ShowDone(before, percent);
        }
    }

    static inline CTransferTeller* shown = nullptr;
    CContext& context;
    std::optional<CProgressBar> bar;
    std::size_t before = 0;  // how many files are through
};

void PrintFile(const CContext& context, const handset::TransferredFile& file)
{
    context.PrintLine(
        fmt::format("{}\t{}\t{}\t{}", file.path, file.sentAs, static_cast<int>(file.type), file.result));
    std::fflush(stdout);  // the next may take long
}

// The run from its start to its end; the files that went are added.
handset::TransferEnd Follow(CContext& context, handset::CTransferRun& run,
                            std::vector<handset::TransferredFile>& files)
{
    const CInterruptionGuard guard([&run] { run.Cancel(); });
    if (run.Start()) {
        for (bool more = true; more;) {
            const std::size_t before = run.Files().size();
            more = run.Step();
            for (std::size_t i = before; i < run.Files().size(); ++i) {
                PrintFile(context, run.Files()[i]);
            }
        }
    }
    files.insert(files.end(), run.Files().begin(), run.Files().end());
    return run.Finish();
}

void PrintOutcome(const CContext& context, const std::vector<handset::TransferredFile>& files,
                  const CTransferTeller& teller)
{
    Json list = Json::array();
    for (const handset::TransferredFile& file : files) {
        list.push_back({{"path", file.path},
                        {"sentAs", file.sentAs},
                        {"type", static_cast<int>(file.type)},
                        {"result", file.result}});
    }
    const std::string message = app::Strings().LoadString(teller.message);
    context.PrintJson({{"files", list}, {"message", TextOrNull(message.empty() ? nullptr : &message)}});
}

std::string WhyLeftOut(const SendPlan& plan)
{
    switch (plan.verdict) {
    case SendVerdict::tooLong:
        return "is not sent: a ring tone of more than 65536 bytes";
    case SendVerdict::notAFile:
        return "is no file";
    case SendVerdict::gone:
        return "is not there";
    default:
        return plan.prepared.problem;
    }
}

void RunSend(CContext& context, const HandsetPort& port, const std::vector<std::string>& paths)
{
    std::vector<std::string> sources;
    std::vector<handset::TransferredFile> files;
    handset::CHandsetPreparation preparation;
    for (const std::string& path : handset::WithoutArchives(AbsolutePaths(paths))) {
        if (Interruption() != 0) {
            return;
        }
        const SendPlan plan = handset::PlanSending(path, preparation);
        if (plan.IsSent()) {
            sources.push_back(path);
            continue;
        }
        context.Fail(path, WhyLeftOut(plan));
        files.push_back({path, plan.sentAs, plan.type, platform::kHandsetFailed});
    }
    CTransferTeller teller(context);
    if (!sources.empty()) {
        handset::CHandsetSend run(sources, port.Number(context), teller);
        Follow(context, run, files);
        if (teller.message == StringId::handsetBadDescriptor) {
            const std::string& path = sources[run.Position()];
            files.push_back({path, "", FileDataType::java, platform::kHandsetFailed});
        }
    }
    PrintOutcome(context, files, teller);
}

struct FetchArguments {
    handset::FetchChoice photos;
    bool ring = false;
    bool animation = false;
    std::string to;

    std::vector<handset::FetchChoice> Choices() const
    {
        std::vector<handset::FetchChoice> choices;
        if (photos.mainWallpaper || photos.subWallpaper || photos.myAlbum || photos.frame) {
            choices.push_back(photos);
        }
        for (const auto& [isAsked, mode] :
             {std::pair(ring, FileDataType::ring), {animation, FileDataType::animation}}) {
            if (isAsked) {
                choices.push_back({mode, false, false, false, false});
            }
        }
        return choices;
    }
};

void RunFetch(CContext& context, const HandsetPort& port, const FetchArguments& arguments)
{
    const std::vector<handset::FetchChoice> choices = arguments.Choices();
    if (choices.empty()) {
        throw CLI::RequiredError("One of --main, --sub, --album, --frame, --ring and --animation");
    }
    const std::string target = AbsolutePath(arguments.to);
    std::error_code ignored;
    std::filesystem::create_directories(target, ignored);
    const unsigned number = port.Number(context);
    // Keeps the connection from one run to the next.
    const auto held = platform::Os().handset->NewUpDownLoad();
    held->SetConnectPort(number);
    CTransferTeller teller(context);
    std::vector<handset::TransferredFile> files;
    for (const handset::FetchChoice& choice : choices) {
        app::MakeProgramRecordFile(context.Application().ProgramFolder(), choice.mode);
        handset::CHandsetFetch run(choice, target, number, teller);
        const handset::TransferEnd end = Follow(context, run, files);
        if (end != handset::TransferEnd::finished && teller.message != StringId::handsetNoItem) {
            break;
        }
    }
    PrintOutcome(context, files, teller);
}

}  // namespace

void AddHandsetTransfers(CLI::App& handset, CContext& context, const std::shared_ptr<HandsetPort>& port)
{
    auto files = std::make_shared<std::vector<std::string>>();
    auto* send = handset.add_subcommand(
        "send", "Send files to it, each made fit for it first; print path, name on it, type and result");
    send->add_option("FILE", *files, "Pictures, ring tones, Java programs (.jad)")->required();
    send->callback([&context, port, files] { RunSend(context, *port, *files); });

    auto arguments = std::make_shared<FetchArguments>();
    auto* fetch = handset.add_subcommand(
        "fetch", "Fetch its files into folders named by category; print path, name, type and result");
    fetch->add_flag("--main", arguments->photos.mainWallpaper, "Its main wallpapers");
    fetch->add_flag("--sub", arguments->photos.subWallpaper, "Its sub wallpapers");
    fetch->add_flag("--album", arguments->photos.myAlbum, "The photos of its album");
    fetch->add_flag("--frame", arguments->photos.frame, "Its photo frames");
    fetch->add_flag("--ring", arguments->ring, "Its ring tones");
    fetch->add_flag("--animation", arguments->animation, "Its animations");
    fetch->add_option("--to", arguments->to, "Make the categories' folders in DIR")->required();
    fetch->callback([&context, port, arguments] { RunFetch(context, *port, *arguments); });
}

}  // namespace cli
