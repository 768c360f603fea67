// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The list: filling, thumbnails, filters, selection and what it says when there is nothing to show.
#include "ui/viewer/picture_viewer.h"
#include "window_test_base.h"

#include <QAccessible>
#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>

using app::CommandId;

namespace
{

class ListTest : public support::WindowTest
{
};

using Texts = std::vector<std::string>;

}  // namespace

TEST_F(ListTest, ThumbnailsAppearAndTheTimerStopsUntilThereIsWorkAgain)
{
    AddMany(140);
    Add("broken.jpg", "no picture");
    Open();

    const browser::CMediaFileList& list = List().List();
    ASSERT_EQ(list.Count(), 141);
    EXPECT_EQ(list.ThumbnailsLeft(), 0);
    EXPECT_EQ(services.images.rendered, 140);
    EXPECT_TRUE(frame->Status()->ThumbnailsText().isEmpty());
    EXPECT_TRUE(list.Item(RowOf("broken.jpg")).thumbnailFailed);

    // The bitmaps at the other end were let go; scrolling there starts the timer, which stops again.
    List().Thumbnails()->scrollToBottom();
    EXPECT_TRUE(frame->IsTicking());
    Settle();
    EXPECT_TRUE(List().IsScreenComplete());
    EXPECT_TRUE(list.Item(140).thumbnail);

    Add("new.jpg");
    Run(CommandId::refresh);
    EXPECT_TRUE(frame->IsTicking());
    Settle();
    EXPECT_EQ(list.ThumbnailsLeft(), 0);
    EXPECT_TRUE(list.Item(RowOf("new.jpg")).thumbnailDone);
}

TEST_F(ListTest, TheDetailsViewMakesNoThumbnails)
{
    Run(CommandId::details);
    AddMany(3);
    Open();

    EXPECT_EQ(services.images.rendered, 0);
    EXPECT_EQ(List().List().ThumbnailsLeft(), 3);
    EXPECT_TRUE(frame->Status()->ThumbnailsText().isEmpty());

    Run(CommandId::thumbnails);
    Settle();
    EXPECT_EQ(services.images.rendered, 3);
}

TEST_F(ListTest, EachFilterShowsItsFiles)
{
    std::filesystem::create_directories(folder + "/Sub");
    for (const char* name : {"a.JPG", "b.avi", "c.asr", "d.mid", "e.jad", "f.txt", ".hidden.jpg"})
        Add(name);
    Open();
    const struct {
        CommandId command;
        Texts names;
    } rows[] = {
        {CommandId::filterPhoto, {"a.JPG", "c.asr"}},
        {CommandId::filterVideo, {"b.avi", "c.asr"}},
        {CommandId::includeFolder, {"Sub", "b.avi", "c.asr"}},
        {CommandId::filterAllFiles, {"Sub", "a.JPG", "b.avi", "c.asr", "d.mid", "e.jad", "f.txt"}},
        {CommandId::includeFolder, {"a.JPG", "b.avi", "c.asr", "d.mid", "e.jad", "f.txt"}},
        {CommandId::filterMedia, {"a.JPG", "b.avi", "c.asr", "d.mid"}},
    };
    for (const auto& row : rows) {
        Run(row.command);
        Settle();
        EXPECT_EQ(Names(), row.names) << static_cast<int>(row.command);
    }
}

TEST_F(ListTest, RefreshKeepsSelectionCurrentItemAndScrollPositionByName)
{
    for (const CommandId view : {CommandId::thumbnails, CommandId::details}) {
        AddMany(300, ".mid");
        Run(view);
        Open();
        View().verticalScrollBar()->setValue(View().verticalScrollBar()->maximum() / 2 + 7);
        const Texts chosen = {"photo140.mid", "photo141.mid", "photo290.mid"};
        int topRow = 0;
        const auto topOf = [this](int row) { return View().visualRect(View().model()->index(row, 0)).top(); };
        while (topOf(topRow) < 0)
            ++topRow;
        const std::string topName = Names().at(static_cast<std::size_t>(topRow));
        const int topAt = topOf(topRow);
        View().setAutoScroll(false);
        Select({"photo140.mid", "photo150.mid", "photo141.mid", "photo290.mid"});
        Select(chosen);
        Add("another.mid");
        std::filesystem::remove(folder + "/photo299.mid");

        Run(CommandId::refresh);
        Settle();

        EXPECT_EQ(Names().size(), 300U);
        EXPECT_EQ(SelectedNames(), chosen);
        EXPECT_EQ(View().currentIndex().row(), RowOf("photo290.mid"));
        EXPECT_EQ(topOf(RowOf(topName)), topAt);
        std::filesystem::remove(folder + "/another.mid");
    }
}

TEST_F(ListTest, TheSelectionGoesAlongFromOneViewToTheOther)
{
    AddMany(50);
    Open();
    const Texts chosen = {"photo3.jpg", "photo4.jpg", "photo40.jpg"};
    Select(chosen);
    for (const CommandId view : {CommandId::details, CommandId::thumbnails}) {
        Run(view);

        EXPECT_EQ(SelectedNames(), chosen);
        EXPECT_EQ(frame->Status()->SelectionText(), QStringLiteral("3 selected  \u00b7  21 bytes"));
        EXPECT_TRUE(View().isVisible());
    }
    Run(CommandId::details);
    Run(CommandId::invertSelection);
    EXPECT_EQ(List().Selection().files, 47);
    Run(CommandId::selectAll);
    EXPECT_EQ(List().Selection().files, 50);
    EXPECT_EQ(List().Selection().bytes, 50 * 7U);
    Run(CommandId::selectNone);
    EXPECT_EQ(List().Selection().files, 0);
}

TEST_F(ListTest, KeysAndMouseSelectOnTheGrid)
{
    AddMany(60, ".mid");
    Open();
    ui::CThumbnailView& view = *List().Thumbnails();
    const auto cell = [&](int row) { return view.visualRect(view.model()->index(row, 0)); };
    const int columns = view.indexAt(cell(0).center() + QPoint(0, cell(0).height() + 10)).row();
    ASSERT_GT(columns, 2);

    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, cell(1).center());
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(view.currentIndex().row(), columns + 1);
    QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(List().Selection().files, 2);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ShiftModifier, cell(1).center());
    EXPECT_EQ(List().Selection().files, columns + 1);
    QTest::keyClick(&view, Qt::Key_End);
    EXPECT_EQ(view.currentIndex().row(), 59);
    EXPECT_TRUE(view.viewport()->rect().contains(cell(59)));
    QTest::keyClick(&view, Qt::Key_PageUp);
    EXPECT_LT(view.currentIndex().row(), 59 - columns);
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(SelectedNames(), Texts{"photo0.mid"});

    // A band from the corner left of the first cell into the second one of the next row.
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, {1, 1});
    QTest::mouseMove(view.viewport(), cell(0).center());
    QTest::mouseMove(view.viewport(), cell(columns + 1).center());
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, cell(columns + 1).center());
    const Texts banded = {"photo0.mid", "photo1.mid", "photo" + std::to_string(columns) + ".mid",
                          "photo" + std::to_string(columns + 1) + ".mid"};
    EXPECT_EQ(SelectedNames(), banded);
}

TEST_F(ListTest, AScreenReaderSeesAListOfTheFilesNames)
{
    AddMany(20, ".mid");
    Open();

    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(List().Thumbnails());
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), QAccessible::List);
    EXPECT_EQ(seen->text(QAccessible::Name), QStringLiteral("Files"));
    ASSERT_EQ(seen->childCount(), 20);
    EXPECT_EQ(seen->child(7)->text(QAccessible::Name), QStringLiteral("photo7.mid"));
    EXPECT_TRUE(seen->rect().contains(seen->child(0)->rect()));
}

TEST_F(ListTest, OddNamesAreShownCopiedAndOpenedByTheirBytes)
{
    const Texts names = {"-rf.jpg",  "a b\nc.jpg", "caf\xE9.jpg",
                         "<b>x.jpg", "%41#?.jpg",  std::string(251, 'n') + ".jpg"};
    folder += "/f\xF6lder";
    std::filesystem::create_directories(folder);
    for (const std::string& name : names)
        Add(name);
    Open();

    ASSERT_EQ(Names().size(), names.size());
    for (const std::string& name : names) {
        const QModelIndex index = View().model()->index(RowOf(name), 0);
        ASSERT_TRUE(index.isValid());
        EXPECT_TRUE(List().List().Item(index.row()).thumbnail) << name;
        EXPECT_FALSE(index.data().toString().contains(QLatin1Char('\n')));
        EXPECT_FALSE(index.data(Qt::ToolTipRole).toString().contains(QStringLiteral("<b>")));

        List().Activate(index);
        EXPECT_EQ(frame->Pages()->Viewer()->Name(), name);
        frame->Pages()->Close();

        Select({name});
        Run(CommandId::copy);
        const QByteArray uri =
            QGuiApplication::clipboard()->mimeData()->data(QStringLiteral("text/uri-list")).trimmed();
        EXPECT_TRUE(uri.startsWith("file:///"));
        EXPECT_EQ(QByteArray::fromPercentEncoding(uri.mid(7)).toStdString(), folder + "/" + name);
    }
}

TEST_F(ListTest, AnEmptyListSaysWhy)
{
    Add("notes.txt");
    std::filesystem::create_directories(folder + "/none");
    files.forbidden = folder + "/secret";
    std::filesystem::create_directories(files.forbidden);
    const struct {
        CommandId filter;
        std::string path;
        const char* text;
    } rows[] = {
        {CommandId::filterMedia, folder, "No pictures here"},
        {CommandId::filterVideo, folder, "No videos here"},
        {CommandId::filterAllFiles, folder, ""},
        {CommandId::filterAllFiles, folder + "/none", "This folder is empty"},
        {CommandId::filterAllFiles, files.forbidden, "You may not look into this folder"},
        {CommandId::filterAllFiles, folder + "/gone", "This folder is no longer there"},
        {CommandId::filterAllFiles, folder + "/notes.txt", "This folder is no longer there"},
        {CommandId::filterAllFiles, folder, ""},
    };
    for (const auto& row : rows) {
        Run(row.filter);
        Open(row.path);

        EXPECT_EQ(List().EmptyState()->Heading().toStdString(), row.text) << row.path;
        EXPECT_EQ(List().EmptyState()->isVisible(), *row.text != 0);
        EXPECT_EQ(Names().empty(), *row.text != 0);
    }
}

TEST_F(ListTest, AFolderWithoutEndLeavesTheWindowLive)
{
    AddMany(3);
    Open();
    files.endless = folder + "/endless";
    std::filesystem::create_directories(files.endless);

    // Both return after a piece of the work; a fill in one go would never come back.
    frame->GoTo(files.endless);
    QCoreApplication::processEvents();

    EXPECT_TRUE(List().IsReading());
    EXPECT_TRUE(Names().empty());
    EXPECT_TRUE(frame->Status()->FilesText().startsWith(QStringLiteral("Reading")));
    Open(folder);
    EXPECT_EQ(Names().size(), 3U);
}

TEST_F(ListTest, SizesAreReadWhenThereIsNothingElseToDo)
{
    AddMany(1000, ".mid");
    Run(CommandId::details);
    Open();

    ASSERT_TRUE(QTest::qWaitFor([this] { return List().List().AllFactsKnown(); }, 30'000));
    EXPECT_EQ(List().List().KnownBytes(), 7000U);
    EXPECT_EQ(frame->Status()->FilesText(), QStringLiteral("1,000 files  \u00b7  6.8 kB"));
}
