// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Ring tones in the window: facts and playing, with scripts in place of the player programs, and conversion.
#include "platform/smaf_conversion.h"
#include "platform_linux/dynamic_libraries.h"
#include "real_files_test.h"
#include "score/midi_builder.h"
#include "sound/wav_builder.h"
#include "ui/photo/photo_facts_page.h"
#include "ui/photo/photo_info_view.h"
#include "ui/tone/tone_dialog.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <csignal>

using app::CommandId;
using platform::StringId;
using testing::ElementsAre;
using testing::HasSubstr;

namespace
{

// Four seconds, a chord of 70 notes at the start.
std::string Crowd()
{
    std::string events = midi::At(0, {0xD0, 5});
    for (int key = 20; key < 90; ++key)
        events += midi::At(0, {0x90, key, 100});
    events += midi::At(1000, {0x80, 20, 0});
    for (int key = 21; key < 90; ++key)
        events += midi::At(0, {0x80, key, 0});
    return midi::File(events);
}

std::string Recording(unsigned rate, unsigned channels, std::size_t bytes)
{
    return wav::File(wav::Format(rate, 16, channels) + wav::Chunk("data", std::string(bytes, '\x11')));
}

class ToneTest : public support::RealFilesTest<>
{
protected:
    ToneTest() : path(qgetenv("PATH")), libraryGuard(With(libraries))
    {
        services.utility.programFolder = KELVO_PROGRAM_FOLDER;
        bin = services.folder.Path("bin");
        std::filesystem::create_directories(bin);
        qputenv("PATH", QByteArray::fromStdString(bin));
        ui::CTonePlayer::soundFontFolders = {bin};
    }
    ~ToneTest() override
    {
        frame.reset();
        ui::CTonePlayer::soundFontFolders = app::SoundFontFolders();
        qputenv("PATH", path);
    }
    static platform::Services With(platform::CLibraries& libraries)
    {
        platform::Services all = platform::Os();
        all.libraries = &libraries;
        return all;
    }

    // A player of that name.
    void Install(const std::string& name, const std::string& script)
    {
        support::WriteBytes(bin + "/" + name, "#!/bin/sh\n" + script);
        std::filesystem::permissions(bin + "/" + name, std::filesystem::perms::owner_all);
    }
    ui::CPhotoFactsPage& Facts() { return *frame->PhotoInfo()->View()->Facts(); }
    ui::CToneBar& Bar() { return *Facts().Tone(); }
    void SelectInPane(const std::string& name)
    {
        Select({name});
        const std::vector<std::string> wanted{folder + "/" + name};
        ui::CPhotoInfoView& view = *frame->PhotoInfo()->View();
        ASSERT_TRUE(QTest::qWaitFor([&] { return view.Paths() == wanted && !view.IsReading(); }));
    }
    ui::CToneDialog& Convert(const std::vector<std::string>& names)
    {
        Select(names);
        Run(CommandId::convertTone);
        auto* dialog = frame->findChildren<ui::CToneDialog*>().constLast();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog->IsPlanning(); }, 30'000));
        return *dialog;
    }
    template <typename Part> static Part& In(const QWidget& window, const char* name)
    {
        return *window.findChild<Part*>(QLatin1String(name));
    }
    static std::vector<std::string> Rows(const QWidget& dialog)
    {
        const auto& table = In<QTreeWidget>(dialog, "files");
        std::vector<std::string> rows;
        for (int row = 0; row < table.topLevelItemCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table.columnCount(); ++column)
                cells.append(table.topLevelItem(row)->text(column));
            rows.push_back(cells.join(QLatin1Char('|')).toStdString());
        }
        return rows;
    }

    const QByteArray path;
    std::string bin;
    platform_linux::CDynamicLibraries libraries;
    support::CServicesGuard libraryGuard;
};

}  // namespace

TEST_F(ToneTest, ASoundIsPlayedUntilAnotherOneIsSelected)
{
    Add("a.mid", Crowd());
    Add("b.mid", midi::Chunk("MThd", ""));
    Add("c.wav", Recording(44'100, 2, 88'200));
    Open();
    Run(CommandId::filterAllFiles);
    Settle();
    Run(CommandId::photoInfo);
    SelectInPane("a.mid");
    EXPECT_FALSE(Bar().Button()->isEnabled());
    EXPECT_THAT(Bar().Message().toStdString(), HasSubstr("fluidsynth"));

    Install("fluidsynth", "echo $$ \"$@\" > " + bin + "/asked\nread line\n");
    support::WriteBytes(bin + "/font.sf2", "");
    SelectInPane("c.wav");
    EXPECT_THAT(Facts().Value(StringId::toneHandset).toStdString(), HasSubstr("44,100"));
    SelectInPane("a.mid");
    EXPECT_EQ(Facts().Value(StringId::tonePolyphony), "70");
    EXPECT_EQ(Facts().Value(StringId::toneDuration), "0:04");
    Bar().Button()->click();
    std::string asked;
    ASSERT_TRUE(QTest::qWaitFor([&] { return !(asked = support::ReadBytes(bin + "/asked")).empty(); }));
    EXPECT_THAT(asked, HasSubstr(bin + "/font.sf2 " + folder + "/a.mid"));
    EXPECT_TRUE(Bar().IsPlaying() && Bar().Button()->text() == "Stop");

    SelectInPane("b.mid");
    EXPECT_FALSE(Bar().IsPlaying());
    EXPECT_EQ(Bar().Message(), "This MIDI file breaks off at its beginning.");
    EXPECT_TRUE(QTest::qWaitFor([&] { return kill(std::stoi(asked), 0) != 0; }));
}

TEST_F(ToneTest, TheNextPlayerHasItsTurnAndTheFirstOnesWordsAreTold)
{
    Add("c.wav", Recording(8000, 1, 800));
    Install("pw-play", "echo early >&2; echo no daemon >&2; exit 1\n");
    Install("aplay", "test \"$1\" = -q -a -f \"$2\" && echo yes >> " + bin + "/played\n");
    Open();
    Run(CommandId::filterAllFiles);
    Settle();
    Run(CommandId::photoInfo);
    SelectInPane("c.wav");

    Bar().Button()->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !Bar().IsPlaying(); }));
    EXPECT_EQ(support::ReadBytes(bin + "/played"), "yes\n");
    EXPECT_EQ(Bar().Message(), "");

    Install("aplay", "echo no card >&2; exit 1\n");
    Bar().Button()->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !Bar().IsPlaying(); }));
    EXPECT_EQ(Bar().Message(), "pw-play could not play it: no daemon");
}

TEST_F(ToneTest, TheDialogTellsWhatComesOutAndTheNewFilesAreSelected)
{
    Add("crowd.mid", Crowd());
    Add("long.wav", Recording(8000, 1, 600'000));
    Add("stereo.wav", Recording(8000, 2, 800));
    Add("crowd.mmf", "kept");
    Open();
    Run(CommandId::filterAllFiles);
    Settle();

    ui::CToneDialog& dialog = Convert({"crowd.mid", "long.wav", "stereo.wav"});
    auto& ok = In<QPushButton>(dialog, "ok");
    const std::vector<std::string> rows = Rows(dialog);
    EXPECT_THAT(rows[0],
                testing::MatchesRegex("crowd.mid\\|crowd \\(2\\).mmf\\|.*\\|0:04\\|Loses something"));
    EXPECT_THAT(rows[1], testing::MatchesRegex("long.wav\\|long.mmf\\|.*\\|0:38\\|Too large"));
    EXPECT_EQ(rows[2], "stereo.wav||||Cannot be converted");
    const std::string lost = In<QPlainTextEdit>(dialog, "losses").toPlainText().toStdString();
    EXPECT_EQ(lost, "6 notes are left out, because more than 64 would sound at once.\n"
                    "1 change of key pressure is ignored.");
    EXPECT_EQ(ok.text(), "Convert 2 Files Anyway");
    EXPECT_THAT(Names(), testing::SizeIs(4)) << "nothing is written yet";

    In<QCheckBox>(dialog, "halve").click();
    EXPECT_THAT(Rows(dialog)[1], HasSubstr("Too large"));
    ok.click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !frame->Files()->Jobs().IsBusy(); }, 30'000));
    Settle();
    EXPECT_THAT(SelectedNames(), ElementsAre("crowd (2).mmf", "long.mmf"));
    EXPECT_EQ(app::ReadToneFacts(folder + "/crowd (2).mmf").polyphony, 64U);
    EXPECT_EQ(support::ReadBytes(folder + "/crowd.mmf"), "kept");
    Run(CommandId::undo);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !frame->Files()->Jobs().IsBusy(); }, 30'000));
}

TEST_F(ToneTest, WithoutAConverterItSaysWhichAndConvertsNothing)
{
    Add("crowd.mid", Crowd());
    Open();
    services.utility.programFolder = services.folder.Path("program");
    const ui::CToneDialog* dialog = &Convert({"crowd.mid"});
    EXPECT_THAT(In<QPlainTextEdit>(*dialog, "losses").toPlainText().toStdString(),
                HasSubstr(platform::kVoiceBankFile));
    platform::Os().libraries = nullptr;
    dialog = &Convert({"crowd.mid"});

    EXPECT_EQ(In<QPlainTextEdit>(*dialog, "losses").toPlainText(), "Smf2Smaf.dll was not found.");
    EXPECT_FALSE(In<QPushButton>(*dialog, "ok").isEnabled());
}
