// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_frame_state.h"
#include "app/string_table.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

namespace
{

class CSuiteBus : public support::CTestMessages
{
public:
    std::map<std::string, std::uint32_t> numbers;
    std::map<std::uint32_t, Handler> handlers;

    std::uint32_t RegisterWindowMessage(const std::string& name) override
    {
        return numbers.emplace(name, 0xC000 + static_cast<std::uint32_t>(numbers.size())).first->second;
    }
    void Listen(std::uint32_t message, Handler handler) override { handlers[message] = std::move(handler); }
    int Send(const std::string& name, std::uint32_t program)
    {
        return handlers.at(numbers.at("QRX_MESSAGE_WM_APPLET_" + name))(program, 0);
    }
};

class SuiteMessages : public testing::Test
{
protected:
    SuiteMessages() { state.Listen(); }

    support::TestServices services;
    CSuiteBus bus;
    support::CServicesGuard withBus{[this] {
        platform::Services all = platform::Os();
        all.messages = &bus;
        return all;
    }()};
    int printersRead = 0;
    std::vector<std::string> shown;
    app::CMainFrameState state{
        {[this] { return ++printersRead; }, [this](bool on) { shown.push_back(on ? "enabled" : "disabled"); },
         [this](platform::StringId text) { shown.push_back(app::Strings().LoadString(text)); }}};
};

}  // namespace

TEST_F(SuiteMessages, LaunchAndCloseSetAndClearTheProgramsFlag)
{
    // The last is no index that any table has room for.
    for (const std::uint32_t program : {0U, 1U, 9U, 0xFFFFFFFFU}) {
        EXPECT_EQ(bus.Send("LAUNCH", program), 1);
        EXPECT_TRUE(state.IsAppletRunning(program));

        EXPECT_EQ(bus.Send("CLOSE", program), 1);
        EXPECT_FALSE(state.IsAppletRunning(program));
    }
}

TEST_F(SuiteMessages, OnlyTheEndOfAPrintingProgramReadsThePrinterAndEnablesTheWindow)
{
    for (std::uint32_t program = 0; program < 12; ++program) {
        shown.clear();
        const bool prints = program == 1 || program == 3 || program == 7 || program == 8;
        const int before = printersRead;

        bus.Send("CLOSE", program);

        EXPECT_EQ(shown, prints ? std::vector<std::string>{"enabled"} : std::vector<std::string>{})
            << program;
        EXPECT_EQ(printersRead, before + (prints ? 1 : 0)) << program;
        EXPECT_EQ(state.PrinterDefaults(), printersRead);
    }
}

TEST_F(SuiteMessages, LoadDoesNothingAndPnpLaunchShowsItsMessage)
{
    EXPECT_EQ(bus.Send("LOAD", 3), 1);
    EXPECT_TRUE(shown.empty());
    EXPECT_FALSE(state.IsAppletRunning(3));

    EXPECT_EQ(bus.Send("PNPLAUNCH", 3), 1);
    EXPECT_EQ(shown, std::vector<std::string>{"A plug & play device id found!"});
}

TEST_F(SuiteMessages, AFloodOfProgramNumbersIsNotKept)
{
    for (std::uint32_t program = 0; program < 100'000; ++program)
        bus.Send("LAUNCH", program);

    EXPECT_TRUE(state.IsAppletRunning(0));
    EXPECT_FALSE(state.IsAppletRunning(99'999));
}
