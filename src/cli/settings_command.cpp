// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings.h"
#include "cli/commands.h"

#include <charconv>
#include <map>
#include <optional>

namespace cli
{

namespace
{

app::CSettings LoadSettings(CContext& context)
{
    app::CSettings settings;
    settings.Load(context.Application().ProgramFolder() + "/Kelvo.ini");
    return settings;
}

void RunShow(CContext& context)
{
    const app::CSettings settings = LoadSettings(context);
    const Json document = {
        {"sort", settings.sort},
        {"delDscPhoto", settings.delDscPhoto},
        {"thumbType", settings.thumbType},
        {"jpegQuality", settings.jpegQuality},
        {"skinPos", settings.skinPos},
        {"useId", settings.useId},
        {"imgItemId", settings.imgItemId},
        {"aviItemId", settings.aviItemId},
        {"imgRcdId", settings.imgRcdId},
        {"aviRcdId", settings.aviRcdId},
        {"itemIdMax", settings.itemIdMax},
        {"port", app::HandsetPort(context.Application().ProgramFolder())},
        {"productName", settings.productName},
        {"versionInfo", settings.versionInfo},
    };
    context.PrintJson(document);
    for (const auto& [key, value] : document.items()) {
        context.PrintLine(key + "\t" + (value.is_string() ? value.get<std::string>() : value.dump()));
    }
}

std::optional<int> ToInteger(const std::string& text)
{
    if (text == "true" || text == "false") {
        return text == "true" ? 1 : 0;
    }
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

// Why the setting cannot be changed here; empty when it can.
std::string SetOne(app::CSettings& settings, const std::string& key, int value)
{
    const std::map<std::string, int*> general{
        {"sort", &settings.sort}, {"delDscPhoto", &settings.delDscPhoto}, {"thumbType", &settings.thumbType}};
    const std::map<std::string, int*> counters{{"imgItemId", &settings.imgItemId},
                                               {"aviItemId", &settings.aviItemId},
                                               {"imgRcdId", &settings.imgRcdId},
                                               {"aviRcdId", &settings.aviRcdId}};
    if (const auto found = general.find(key); found != general.end()) {
        *found->second = value;
        return {};
    }
    if (key == "skinPos") {
        settings.skinPos = value != 0;
        return {};
    }
    if (const auto found = counters.find(key); found != counters.end()) {
        *found->second = value;
        return settings.useId ? "" : "the counters are kept only when UseID is set in Kelvo.ini";
    }
    return "this setting is not written by the program; edit " + settings.fileName;
}

void RunSet(CContext& context, const std::string& key, const std::string& text)
{
    const auto value = ToInteger(text);
    if (!value) {
        throw CLI::ValidationError(key, "takes a whole number");
    }
    std::string problem;
    if (key == "port") {
        const std::string& folder = context.Application().ProgramFolder();
        app::OptionValues options = app::LoadOptions(folder);
        options.portPosition = *value - 1;
        const bool inRange = *value >= 0 && *value <= 255;
        if (!inRange || !app::SaveOptions(folder, options)) {
            problem = inRange ? "cannot be written" : "a port is 1 to 255, or 0 for none";
        }
    } else {
        app::CSettings settings = LoadSettings(context);
        problem = SetOne(settings, key, *value);
        if (problem.empty() && !settings.Save()) {
            problem = "cannot be written";
        }
    }
    context.PrintResult(problem.empty(), key, problem);
}

}  // namespace

void AddSettingsCommand(CLI::App& parser, CContext& context)
{
    auto* settings = parser.add_subcommand("settings", "The values of Kelvo.ini and the handset's port");
    settings->require_subcommand(1);
    auto* show = settings->add_subcommand("show", "Print all of them");
    show->callback([&context] { RunShow(context); });

    auto* set = settings->add_subcommand("set", "Change one and save");
    auto key = std::make_shared<std::string>();
    auto value = std::make_shared<std::string>();
    set->add_option("KEY", *key, "A key as `settings show` names it")
        ->required()
        ->check(CLI::IsMember({"sort", "delDscPhoto", "thumbType", "jpegQuality", "skinPos", "useId",
                               "imgItemId", "aviItemId", "imgRcdId", "aviRcdId", "itemIdMax", "port",
                               "productName", "versionInfo"}));
    set->add_option("VALUE", *value, "A whole number")->required();
    set->callback([&context, key, value] { RunSet(context, *key, *value); });
}

}  // namespace cli
