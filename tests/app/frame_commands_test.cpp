// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the frame's own commands do without a window: the suite's programs, captures, devices, ports, sources.
#include "app/context_menus.h"
#include "app/device_state.h"
#include "app/picture_source.h"
#include "app/port_list.h"
#include "app/screen_capture.h"
#include "app/selection_reader.h"
#include "app/settings.h"
#include "app/suite_programs.h"
#include "support/test_services.h"

#include <gmock/gmock.h>

using app::StartedProgram;
using support::ReadBytes;
using support::WriteBytes;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

// Starts what is there, and moves files as the real one does.
class CStartingShell : public support::CTestShell
{
public:
    bool WinExec(const std::string& command) override
    {
        log.push_back(command);
        return true;
    }
    bool SHFileOperation(const platform::FileOperationRequest& request) override
    {
        const std::filesystem::path source = request.sources.at(0);
        const std::filesystem::path target = std::filesystem::path(request.target) / source.filename();
        if (beforeMove)
            beforeMove(target.string());
        if (std::filesystem::exists(target) || !std::filesystem::exists(request.target))
            return false;
        std::filesystem::copy_file(source, target);
        return std::filesystem::remove(source);
    }
    std::function<void(const std::string& target)> beforeMove;
};

class FrameCommands : public testing::Test
{
protected:
    FrameCommands() { platform::Os().shell = &shell; }
    std::string Path(const std::string& name) const { return services.folder.Path(name); }

    support::TestServices services;
    CStartingShell shell;
    std::string folder = services.folder.Path("program");
};

}  // namespace

TEST_F(FrameCommands, PrintingWritesTheListAndStartsTheProgramOnlyWhereItIsInstalled)
{
    const std::vector<std::string> selected{"/p/a.jpg", "/p/b.avi", "/p/c.PNG"};
    std::filesystem::create_directories(folder);
    EXPECT_EQ(app::StartPrinting(folder, {"/p/b.avi"}), StartedProgram::noPictures);
    EXPECT_EQ(app::StartPrinting(folder, selected), StartedProgram::missing);
    EXPECT_FALSE(std::filesystem::exists(folder + "/files.lst"));

    WriteBytes(folder + "/Inkwell.EXE", "");
    EXPECT_EQ(app::StartPrinting(folder, selected), StartedProgram::started);
    EXPECT_EQ(ReadBytes(folder + "/files.lst"), "[Files]\nFile1=/p/a.jpg\nFile2=/p/c.PNG\nCount=2\n");
    EXPECT_THAT(shell.log, ElementsAre(folder + "/Inkwell.EXE /load:1"));

    std::filesystem::remove(folder + "/files.lst");
    std::filesystem::create_directories(folder + "/files.lst/in the way");
    EXPECT_EQ(app::StartPrinting(folder, selected), StartedProgram::notWritten);
    EXPECT_EQ(shell.log.size(), 1U);
}

TEST_F(FrameCommands, TrimmingStopsOnlyAtTheFourErrorsAndHandsTheWindowOverInHexadecimal)
{
    const std::string spaced = services.folder.Path("program folder");
    std::filesystem::create_directories(spaced);
    EXPECT_EQ(app::StartVideoTrim(spaced, 1), StartedProgram::missing);
    EXPECT_THAT(services.profiles.written, IsEmpty());

    WriteBytes(spaced + "/Clipcut.exe", "");
    EXPECT_EQ(app::StartVideoTrim(spaced, 0xAB0C), StartedProgram::started);
    EXPECT_THAT(services.profiles.written, ElementsAre("mode/active=0"));
    EXPECT_THAT(shell.log, ElementsAre("\"" + spaced + "/Clipcut.exe\" ab0c"));

    for (const int error : {3, 5, 21, 82, 2, 4, 31, 112}) {
        services.profiles.error = error;
        const bool fatal = error == 3 || error == 5 || error == 21 || error == 82;
        EXPECT_EQ(app::StartVideoTrim(spaced, 1),
                  fatal ? StartedProgram::notWritten : StartedProgram::started)
            << error;
    }
}

TEST_F(FrameCommands, OneClipAmongPicturesRefusesTheSlideShow)
{
    const struct {
        std::vector<std::string> files;
        bool refused;
    } rows[] = {
        {{"/a.jpg", "/b.mp4"}, true}, {{"/a.AVI"}, true}, {{"/a.asf"}, true},
        {{"/a.jpg"}, false},          {{}, false},        {{"/mp4", "/x.mpg"}, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(app::HasClips(row.files), row.refused);
}

TEST_F(FrameCommands, ACaptureTakesTheFirstFreeNumberAndOverwritesNothing)
{
    const platform::Bitmap picture{3, 2, {}};
    const std::string target = Path("pictures");
    std::filesystem::create_directories(target);
    const auto name = [&](const std::string& number) { return target + "/ScreenCapture-" + number + ".jpg"; };
    WriteBytes(name("0002"), "kept");

    EXPECT_EQ(app::SaveScreenCapture(target, picture), name("0001"));
    EXPECT_EQ(app::SaveScreenCapture(target, picture), name("0003"));
    EXPECT_EQ(ReadBytes(name("0001")), "3x2");
    EXPECT_EQ(app::NumberedName(target, "Image", "bmp"), target + "/Image0001.bmp");

    // Another program takes the very name between the look and the move.
    shell.beforeMove = [&](const std::string& path) {
        WriteBytes(path, "theirs");
        shell.beforeMove = nullptr;
    };
    EXPECT_EQ(app::SaveScreenCapture(target, picture), name("0005"));
    EXPECT_EQ(ReadBytes(name("0004")), "theirs");
    EXPECT_EQ(ReadBytes(name("0002")), "kept");

    EXPECT_EQ(app::SaveScreenCapture("", picture), "");
    EXPECT_EQ(app::SaveScreenCapture(Path("gone"), picture), "");
    EXPECT_TRUE(std::filesystem::is_empty(services.files.GetTempPath()));
}

TEST_F(FrameCommands, OnlyArrivalsWithoutAMediaChangeAndRemovalsOfVolumesAreNoted)
{
    using platform::DeviceEvent;
    const struct {
        platform::DeviceChange change;
        bool noted;
    } rows[] = {
        {{DeviceEvent::arrived, true, 0, 4, ""}, true},
        {{DeviceEvent::arrived, true, platform::kMediaChange, 4, ""}, false},
        {{DeviceEvent::removed, true, platform::kMediaChange, 4, ""}, true},
        {{DeviceEvent::arrived, false, 0, 4, ""}, false},
        {{DeviceEvent::removed, false, 0, 0, ""}, false},
    };
    for (const auto& row : rows) {
        app::CDeviceState state;
        services.utility.now += 500;
        EXPECT_TRUE(state.OnDeviceChange(row.change));
        EXPECT_EQ(state.LastDeviceChange(), row.noted ? services.utility.now : 0);
    }
    EXPECT_EQ(app::DriveIndex(1), 0);
    EXPECT_EQ(app::DriveIndex(0x18), 3);
    EXPECT_EQ(app::DriveIndex(1U << 25), 25);
    EXPECT_EQ(app::DriveIndex(1U << 26), 26);
    EXPECT_EQ(app::DriveIndex(0), 26);
}

TEST_F(FrameCommands, APlaceLeftOfAndAboveTheFirstScreenSurvivesItsMessage)
{
    EXPECT_EQ(app::PackPoint({5, 7}), 0x70005);
    for (const app::ScreenPoint point : {app::ScreenPoint{0, 0}, {1919, 1079}, {-1280, 40}, {12, -900}})
        EXPECT_EQ(app::UnpackPoint(app::PackPoint(point)), point);
}

TEST_F(FrameCommands, APortNumberLeadsToItsMappedDeviceElseToItsLineAndAdaptersTakeTheFreeOnes)
{
    services.profiles.values = {{"Map/1", "/dev/serial/by-id/cable"}, {"Map/7", "/dev/away"}};
    const std::vector<platform::SerialPort> lines{{"/dev/ttyS0", "", 0},
                                                  {"/dev/ttyS1", "", 1},
                                                  {"/dev/serial/by-id/cable", "Cable", -1},
                                                  {"/dev/ttyACM0", "Handset", -1}};

    const std::vector<app::PortEntry> ports = app::ListPorts(folder, lines);

    ASSERT_EQ(ports.size(), 255U);
    EXPECT_EQ(ports[254].text, "COM 255");
    const struct {
        std::size_t position;
        const char* device;
        const char* name;
        bool present;
        bool proposed;
    } rows[] = {
        {0, "/dev/serial/by-id/cable", "Cable", true, false},
        {1, "/dev/ttyS1", "", true, false},
        {2, "/dev/ttyACM0", "Handset", true, true},
        {3, "", "", false, false},
        {6, "/dev/away", "", false, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ports[row.position].device, row.device);
        EXPECT_EQ(ports[row.position].name, row.name);
        EXPECT_EQ(ports[row.position].present, row.present) << row.position;
        EXPECT_EQ(ports[row.position].proposed, row.proposed) << row.position;
    }
    EXPECT_TRUE(app::KeepPort(folder, ports, 1) && app::KeepPort(folder, ports, -1));
    EXPECT_THAT(services.profiles.written, IsEmpty());
    EXPECT_TRUE(app::KeepPort(folder, ports, 2));
    EXPECT_THAT(services.profiles.written, ElementsAre("Map/3=/dev/ttyACM0"));

    setenv("KELVO_PORT_1", "/dev/pts/9", 1);
    EXPECT_EQ(app::DeviceOfPort(1), "/dev/pts/9");
    unsetenv("KELVO_PORT_1");
    EXPECT_EQ(app::DeviceOfPort(1), "/dev/serial/by-id/cable");
    EXPECT_EQ(app::DeviceOfPort(0) + app::DeviceOfPort(255) + app::DeviceOfPort(256), "");
}

TEST_F(FrameCommands, SourcesOfTheOtherKindAreSkippedAndTheChosenOneComesFirstNextTime)
{
    const auto offered =
        app::OfferedSources({{"a", "WIA-Scanner"}, {"b", "wia-Scanner"}, {"c", "Scanner WIA-"}});
    ASSERT_EQ(offered.size(), 2U);
    EXPECT_EQ(offered[0].id, "b");

    EXPECT_EQ(app::DefaultSource({}), -1);
    EXPECT_EQ(app::DefaultSource(offered), 0);
    EXPECT_TRUE(app::ChooseSource(offered[1]));
    EXPECT_EQ(app::DefaultSource(offered), 1);
    EXPECT_EQ(app::DefaultSource({offered[0]}), 0);
}

TEST_F(FrameCommands, ASelectionIsCountedInStepsWithEverythingBelowItAndNoLinkIsFollowed)
{
    const std::string tree = Path("tree");
    std::filesystem::create_directories(tree + "/in/deep");
    std::filesystem::create_directory_symlink(tree, tree + "/in/round");
    for (const char* name : {"/a.jpg", "/in/b.jpg", "/in/deep/c.jpg", "/in/deep/d.jpg"})
        WriteBytes(tree + name, "12345");

    app::CSelectionReader reader({tree, tree + "/a.jpg", tree + "/gone"});
    int steps = 1;
    for (; reader.Step(2) && steps < 100; ++steps) {
    }

    EXPECT_EQ(reader.Totals().files, 5U);
    EXPECT_EQ(reader.Totals().folders, 4U);
    EXPECT_EQ(reader.Totals().bytes, 25U);
    EXPECT_EQ(reader.Totals().unreadable, 1U);
    EXPECT_GT(steps, 3);
    EXPECT_LT(steps, 20);
}
