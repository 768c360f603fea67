// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the user does with files and folders, in the real window on real files.
#include "real_files_test.h"
#include "ui/files/clash_dialog.h"
#include "ui/files/desktop_apps.h"
#include "ui/files/job_dialog.h"
#include "ui/files/name_editor.h"
#include "ui/files/name_text.h"

#include <QClipboard>
#include <QDragEnterEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>

#include <atomic>
#include <gmock/gmock.h>

using app::CommandId;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

// The real shell, which can be made to wait within a step until that is cancelled.
class CSlowShell : public platform_linux::CLinuxShell
{
public:
    std::atomic<bool> waits = false;
    std::atomic<bool> waiting = false;
    Texts started;

    platform::FileStepResult DoFileStep(const platform::FileStep& step) override
    {
        if (!waits || !step.progress)
            return CLinuxShell::DoFileStep(step);
        waiting = true;
        while (step.progress(1, 2))
            std::this_thread::yield();
        return {false, {}, {{step.source, platform::FileFailure::cancelled, {}}}};
    }
    bool StartProgram(const Texts& words) override
    {
        started = words;
        return true;
    }
};

class FilesTest : public support::RealFilesTest<CSlowShell>
{
protected:
    FilesTest() : other(services.folder.Path("other"))
    {
        fs::create_directories(other);
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString(services.folder.Path("data")));
    }
    ~FilesTest() override
    {
        frame.reset();
        qunsetenv("XDG_DATA_HOME");
    }

    // Waits for the jobs and for what they change in the window.
    void Finish()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !frame->Files()->Jobs().IsBusy(); }, 30'000));
        Settle();
        ASSERT_TRUE(QTest::qWaitFor([this] {
            return std::ranges::none_of(frame->LeftView()->Trees(), &ui::CFolderTree::IsReading);
        }));
    }
    void Do(CommandId id)
    {
        Run(id);
        Finish();
    }
    QString UndoText() { return frame->Menu()->Action(CommandId::undo)->text(); }
    ui::CNameEditor* Editor() { return frame->findChild<ui::CNameEditor*>(); }
    template <typename Box> Box* Wait()
    {
        Box* box = nullptr;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            const auto all = frame->findChildren<Box*>();
            const auto shown = std::ranges::find_if(all, &QWidget::isVisible);
            box = shown == all.end() ? nullptr : *shown;
            return box != nullptr;
        }));
        return box;
    }
    void Press(QMessageBox* box, const QString& text)
    {
        for (QAbstractButton* button : box->buttons()) {
            if (button->text().remove(QLatin1Char('&')) == text)
                return button->click();
        }
        ADD_FAILURE() << "no button " << text.toStdString();
    }
    static Texts FilesIn(const std::string& place)
    {
        Texts names;
        for (const auto& entry : fs::directory_iterator(place))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

    std::string other;
};

const QString kUriList = QStringLiteral("text/uri-list");
const QString kGnomeFiles = QStringLiteral("x-special/gnome-copied-files");

}  // namespace

TEST(NameText, KeepsEveryByteOfAName)
{
    for (const std::string name : {"plain.jpg", "caf\xC3\xA9", "caf\xE9 \xF0\x9F\x8C\x8A.jpg", "\xED\xB2\x80",
                                   "\xC0\xAF\xF5", "\xE2\x82", "\n\t\x7F"})
        EXPECT_EQ(ui::NameBytes(ui::NameText(name)), name);
    EXPECT_EQ(ui::NameText("\xF0\x9F\x8C\x8A"), QString::fromUtf8("\xF0\x9F\x8C\x8A"));
}

TEST_F(FilesTest, CutFilesAreFadedMovedByPasteSelectedThereAndComeBack)
{
    const std::string odd = "caf\xE9 #%.jpg";
    for (const std::string& name : {std::string("a.jpg"), odd, std::string("stays.jpg")})
        Add(name);
    Open();
    Select({"a.jpg", odd});

    Run(CommandId::cut);
    const QMimeData& data = *QGuiApplication::clipboard()->mimeData();
    const std::string uris = data.data(kUriList).toStdString();
    EXPECT_EQ(uris, "file://" + folder + "/a.jpg\r\nfile://" + folder + "/caf%E9%20%23%25.jpg\r\n");
    EXPECT_TRUE(data.data(kGnomeFiles).startsWith("cut\nfile:///"));
    EXPECT_EQ(data.data(QStringLiteral("application/x-kde-cutselection")), "1");
    const auto faded = [&](const std::string& name) {
        return View().model()->index(RowOf(name), 0).data(ui::CMediaListModel::kFadedRole).toBool();
    };
    EXPECT_TRUE(faded(odd) && !faded("stays.jpg"));

    Open(other);
    Do(CommandId::paste);
    EXPECT_THAT(FilesIn(folder), ElementsAre("stays.jpg"));
    EXPECT_THAT(SelectedNames(), ElementsAre("a.jpg", odd));
    EXPECT_FALSE(faded("a.jpg"));
    EXPECT_EQ(UndoText(), QStringLiteral("Undo Move of 2 Items"));

    Do(CommandId::undo);
    EXPECT_THAT(FilesIn(other), IsEmpty());
    EXPECT_THAT(FilesIn(folder), ElementsAre("a.jpg", odd, "stays.jpg"));
    EXPECT_EQ(UndoText(), QStringLiteral("Undo"));
    EXPECT_FALSE(frame->Menu()->Action(CommandId::undo)->isEnabled());
}

TEST_F(FilesTest, WhatOtherProgramsPutOnTheClipboardIsUnderstood)
{
    const std::string from = Add("x y.jpg");
    const QByteArray uri = "file://" + QByteArray::fromStdString(folder) + "/x%20y.jpg";
    const struct {
        QString format;
        QByteArray bytes;
        Texts pasted;
    } rows[] = {
        {kUriList, "# comment\r\n" + uri + "\r\n", {"x y.jpg"}},
        {kUriList, QByteArray(uri).replace("file://", "file://localhost") + "\n", {"x y.jpg"}},
        {kUriList, QByteArray(uri).replace("file://", "file:"), {"x y.jpg"}},
        {kGnomeFiles, "copy\n" + uri, {"x y.jpg"}},
        {kUriList, "https://example.org/x.jpg\r\nfile://elsewhere/x.jpg\r\nfile:relative\r\n", {}},
        {kUriList, uri + "%00/x", {}},
    };
    Open(other);
    for (const auto& row : rows) {
        auto* data = new QMimeData;
        data->setData(row.format, row.bytes);
        QGuiApplication::clipboard()->setMimeData(data);

        Do(CommandId::paste);

        EXPECT_EQ(FilesIn(other), row.pasted) << row.bytes.toStdString();
        EXPECT_TRUE(fs::exists(from));
        fs::remove(other + "/x y.jpg");
    }

    support::WriteBytes(other + "/Image0001.bmp", "taken");
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QGuiApplication::clipboard()->setImage(picture);
    Do(CommandId::paste);
    EXPECT_EQ(QImage(QString::fromStdString(other + "/Image0002.bmp")).size(), QSize(3, 2));
    EXPECT_THAT(SelectedNames(), ElementsAre("Image0002.bmp"));
}

TEST_F(FilesTest, DeletingSelectsTheNextAndUndoBringsBackTheDeleted)
{
    for (const char* name : {"1.jpg", "2.jpg", "3.jpg", "4.jpg"})
        Add(name);
    Open();
    Select({"2.jpg", "3.jpg"});
    QTest::keyClick(&View(), Qt::Key_Delete);
    Finish();
    EXPECT_THAT(SelectedNames(), ElementsAre("4.jpg"));
    EXPECT_EQ(UndoText(), QStringLiteral("Undo Delete of 2 Items"));
    Do(CommandId::remove);
    EXPECT_THAT(SelectedNames(), ElementsAre("1.jpg"));

    Do(CommandId::undo);
    Do(CommandId::undo);
    EXPECT_THAT(SelectedNames(), ElementsAre("2.jpg", "3.jpg"));
    EXPECT_THAT(Names(), ElementsAre("1.jpg", "2.jpg", "3.jpg", "4.jpg"));

    for (const char* answer : {"Cancel", "Delete"}) {
        QTest::keyClick(&View(), Qt::Key_Delete, Qt::ShiftModifier);
        auto* box = Wait<QMessageBox>();
        EXPECT_EQ(box->defaultButton()->text(), QStringLiteral("Cancel"));
        Press(box, QLatin1String(answer));
        Finish();
    }
    EXPECT_THAT(FilesIn(folder), ElementsAre("1.jpg", "4.jpg"));
    EXPECT_EQ(UndoText(), QStringLiteral("Undo"));
}

TEST_F(FilesTest, TheSearchPanelAndTheTabsHaveNothingToWorkOn)
{
    Add("1.jpg");
    Open();
    Select({"1.jpg"});
    Run(CommandId::search);
    for (QWidget* place :
         {frame->LeftView()->focusProxy(), static_cast<QWidget*>(frame->LeftView()->Tabs())}) {
        place->setFocus();
        ASSERT_TRUE(frame->LeftView()->isAncestorOf(frame->focusWidget()));
        for (const CommandId command :
             {CommandId::cut, CommandId::rename, CommandId::remove, CommandId::newFolder})
            Run(command);
        Settle();
        EXPECT_TRUE(fs::exists(folder + "/1.jpg"));
        EXPECT_EQ(frame->findChild<QDialog*>(), nullptr);
    }
    EXPECT_EQ(UndoText(), QStringLiteral("Undo"));
}

TEST_F(FilesTest, ANameIsEditedInPlaceAndOneThatCannotBeIsRefusedThere)
{
    Add("b\xE9.old.jpg");
    Add("taken.jpg");
    Run(CommandId::details);
    Open();
    for (const bool details : {true, false}) {
        if (!details)
            Run(CommandId::thumbnails);
        const std::string name = details ? "b\xE9.old.jpg" : "new\xE9.jpg";
        const std::string next = details ? "new\xE9.jpg" : "last.jpg";
        Select({name});
        QTest::keyClick(&View(), Qt::Key_F2);
        ASSERT_TRUE(Editor());
        EXPECT_EQ(ui::NameBytes(Editor()->selectedText()) + ".jpg", name);
        const struct {
            std::string typed;
            const char* message;
        } rows[] = {{"a/b.jpg", "may not hold"},
                    {"", "is needed"},
                    {"..", "of its own"},
                    {std::string(256, 'n'), "too long"},
                    {"taken.jpg", "already there"}};
        for (const auto& row : rows) {
            Editor()->setText(QString::fromStdString(row.typed));
            QTest::keyClick(Editor(), Qt::Key_Return);
            EXPECT_TRUE(Editor()->Message().contains(QLatin1String(row.message))) << row.typed;
        }
        Editor()->setText(ui::NameText(next));
        QTest::keyClick(Editor(), Qt::Key_Return);
        Finish();
        EXPECT_THAT(SelectedNames(), ElementsAre(next));
        EXPECT_TRUE(View().hasFocus());
    }
    EXPECT_EQ(UndoText(), QString(QStringLiteral("Undo Rename of “new%1.jpg”")).arg(QChar(0xFFFD)));

    QTest::keyClick(&View(), Qt::Key_F2);
    QTest::keyClicks(Editor(), QStringLiteral("unwanted"));
    QTest::keyClick(Editor(), Qt::Key_Escape);
    Finish();
    EXPECT_FALSE(Editor() && Editor()->isVisible());
    EXPECT_THAT(FilesIn(folder), ElementsAre("last.jpg", "taken.jpg"));
}

TEST_F(FilesTest, ATakenNameIsAskedAboutAndWhatFailsIsToldOnce)
{
    for (const char* name : {"1.jpg", "2.jpg", "gone.jpg"}) {
        Add(name, "new");
        support::WriteBytes(other + "/" + name, "old");
    }
    Open();
    Run(CommandId::selectAll);
    Run(CommandId::copy);
    fs::remove(folder + "/gone.jpg");
    Open(other);
    Run(CommandId::paste);

    auto* dialog = Wait<ui::CClashDialog>();
    EXPECT_TRUE(dialog->accessibleDescription().contains(QStringLiteral("“1.jpg” is already in “other”.")));
    EXPECT_FALSE(dialog->findChild<QPushButton*>(QStringLiteral("merge")));  // merging is for folders
    dialog->findChild<QPushButton*>(QStringLiteral("replace"))->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Wait<ui::CClashDialog>() != dialog; }));
    QTest::keyClick(Wait<ui::CClashDialog>()->focusWidget(), Qt::Key_Return);
    Finish();

    EXPECT_EQ(support::ReadBytes(other + "/1.jpg"), "new");
    EXPECT_EQ(support::ReadBytes(other + "/2.jpg"), "old");
    EXPECT_EQ(support::ReadBytes(other + "/2 (2).jpg"), "new");
    auto* box = Wait<QMessageBox>();
    EXPECT_EQ(box->text(), QStringLiteral("1 item could not be copied."));
    EXPECT_TRUE(box->informativeText().startsWith(QStringLiteral("gone.jpg: it is no longer there")));
    Do(CommandId::undo);
    EXPECT_EQ(support::ReadBytes(other + "/1.jpg"), "old");
}

TEST_F(FilesTest, ALongJobShowsItselfAndStopsWhenToldWhileTheWindowLives)
{
    Add("1.jpg");
    Open();
    Select({"1.jpg"});
    realShell.waits = true;
    Run(CommandId::remove);
    EXPECT_FALSE(frame->findChild<ui::CJobDialog*>());

    auto* dialog = Wait<ui::CJobDialog>();
    EXPECT_TRUE(realShell.waiting);
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog->findChild<QProgressBar*>()->value() == 500; }));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Moving 1 item to the trash"));
    Select({"1.jpg"});
    EXPECT_THAT(SelectedNames(), ElementsAre("1.jpg"));
    QTest::keyClick(dialog, Qt::Key_Escape);
    Finish();

    EXPECT_THAT(FilesIn(folder), ElementsAre("1.jpg"));
    EXPECT_FALSE(frame->findChild<ui::CJobDialog*>());

    // The end of the window stops what is still going on.
    Run(CommandId::remove);
    frame.reset();
    EXPECT_THAT(FilesIn(folder), ElementsAre("1.jpg"));
}

TEST_F(FilesTest, DroppedFilesAreMovedOrCopiedIntoTheFolderUnderTheMouse)
{
    fs::create_directories(folder + "/Sub");
    support::WriteBytes(other + "/x.jpg", "x");
    const support::CTempFolder away("/dev/shm");
    away.Make("y.jpg", "y");
    Run(CommandId::includeFolder);
    Open();
    QWidget& ground = *View().viewport();
    const QPoint sub = View().visualRect(View().model()->index(RowOf("Sub"), 0)).center();
    const QPoint free(ground.width() - 4, ground.height() - 4);
    const struct {
        std::string source;
        Qt::KeyboardModifiers keys;
        QPoint place;
        std::string target;  // empty: refused
        bool stays;
    } rows[] = {
        {other + "/x.jpg", Qt::ControlModifier, free, folder + "/x.jpg", true},
        {folder + "/x.jpg", Qt::NoModifier, free, "", true},
        {folder + "/Sub", Qt::NoModifier, sub, "", true},
        {folder + "/x.jpg", Qt::NoModifier, sub, folder + "/Sub/x.jpg", false},
        {away.Path("y.jpg"), Qt::NoModifier, free, folder + "/y.jpg", true},
        {away.Path("y.jpg"), Qt::ShiftModifier, sub, folder + "/Sub/y.jpg", false},
    };
    for (const auto& row : rows) {
        QMimeData data;
        data.setData(kUriList, "file://" + QByteArray::fromStdString(row.source));
        const auto actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(row.place, actions, &data, Qt::LeftButton, row.keys);
        QCoreApplication::sendEvent(&ground, &enter);
        QDropEvent drop(row.place, actions, &data, Qt::LeftButton, row.keys);
        QCoreApplication::sendEvent(&ground, &drop);
        Finish();

        EXPECT_EQ(drop.isAccepted(), !row.target.empty()) << row.source;
        EXPECT_TRUE(row.target.empty() || fs::exists(row.target)) << row.target;
        EXPECT_EQ(fs::exists(row.source), row.stays) << row.source;
    }
}

TEST_F(FilesTest, AlbumsAreMadeRenamedAndDeletedInTheTree)
{
    frame->GoToStart();
    Settle();
    ui::CFolderTree& tree = *frame->LeftView()->Tree();
    const std::string photo = tree.Folder();
    tree.setFocus();
    Run(CommandId::newFolder);
    auto* dialog = Wait<QDialog>();
    dialog->findChild<QLineEdit*>()->setText(QStringLiteral("Lake:"));
    EXPECT_FALSE(dialog->findChild<QPushButton*>()->isEnabled());
    dialog->findChild<QLineEdit*>()->setText(QStringLiteral("Lake"));
    QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
    Finish();
    ASSERT_TRUE(fs::is_directory(photo + "/Lake"));
    const auto albums = [&] {
        Texts names;
        for (int row = 0; row < tree.model()->rowCount(tree.currentIndex()); ++row)
            names.push_back(tree.model()->index(row, 0, tree.currentIndex()).data().toString().toStdString());
        return names;
    };
    EXPECT_THAT(albums(), testing::Contains("Lake"));

    // The places themselves stay what they are.
    Run(CommandId::rename);
    EXPECT_FALSE(Editor());
    Do(CommandId::remove);
    EXPECT_TRUE(fs::exists(photo));

    frame->GoTo(photo + "/Lake");
    Finish();
    // Without a window manager nobody makes the window active again after a dialog.
    frame->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_F2);
    ASSERT_TRUE(Editor());
    Editor()->setText(QStringLiteral("Sea"));
    QTest::keyClick(Editor(), Qt::Key_Return);
    Finish();
    EXPECT_EQ(List().List().Folder(), photo + "/Sea");
    EXPECT_EQ(tree.Folder(), photo + "/Sea");

    tree.setFocus();
    Do(CommandId::remove);
    EXPECT_EQ(List().List().Folder(), photo);
    EXPECT_TRUE(fs::exists(services.folder.Path("data/Trash/files/Sea")));
    EXPECT_THAT(albums(), testing::Not(testing::Contains("Sea")));
}

TEST_F(FilesTest, OpenWithOffersTheDesktopsProgramsInItsOrder)
{
    const std::string apps = services.folder.Path("data/applications");
    fs::create_directories(apps + "/sub");
    const auto entry = [&](const std::string& name, const std::string& lines) {
        support::WriteBytes(apps + "/" + name,
                            "[Desktop Entry]\nType=Application\n" + lines + "\n[Other]\nName=no\n");
    };
    const std::string jpeg = "MimeType=image/png;image/jpeg;\n";
    entry("one.desktop", "Name=One\nName[en]=The One\nExec=sh -c \"a \\\\\"b\" %% %i %F\nIcon=one\n" + jpeg);
    entry("sub/two.desktop", "Name=Two\nExec=sh --name=%c %u\n" + jpeg);
    entry("three.desktop", "Name=Three\nExec=sh\nMimeType=image/png\n");
    entry("hidden.desktop", "Name=H\nExec=sh %f\nHidden=true\n" + jpeg);
    entry("lost.desktop", "Name=L\nExec=kelvo-no-such-program %f\n" + jpeg);
    entry("other.desktop", "Name=O\nExec=sh %f\nOnlyShowIn=Nowhere;\n" + jpeg);
    entry("removed.desktop", "Name=R\nExec=sh %f\n" + jpeg);
    support::WriteBytes(
        apps + "/mimeapps.list",
        "[Default Applications]\nimage/jpeg=gone.desktop;sub-two.desktop\n[Added Associations]\n"
        "image/jpeg=three.desktop;\n[Removed Associations]\nimage/jpeg=removed.desktop\n");
    const Texts paths = {Add("-a b.jpg"), Add("c\xE9.JPG")};

    // This machine may have programs of its own.
    std::vector<ui::DesktopApp> found = ui::AppsFor(paths);
    std::erase_if(found, [&](const auto& app) { return !app.file.startsWith(QString::fromStdString(apps)); });
    QStringList names;
    for (const ui::DesktopApp& app : found)
        names.append(app.name);
    ASSERT_EQ(names.join(QLatin1Char(' ')), QStringLiteral("Two Three The One"));
    EXPECT_THAT(ui::CommandsFor(found[0], paths),
                ElementsAre(Texts{"sh", "--name=Two", "file://" + folder + "/-a%20b.jpg"},
                            Texts{"sh", "--name=Two", "file://" + folder + "/c%E9.JPG"}));
    EXPECT_THAT(ui::CommandsFor(found[1], paths), ElementsAre(Texts{"sh", paths[0]}, Texts{"sh", paths[1]}));
    EXPECT_THAT(ui::CommandsFor(found[2], paths),
                ElementsAre(Texts{"sh", "-c", "a \"b", "%", "--icon", "one", paths[0], paths[1]}));

    Open();
    Select({"-a b.jpg"});
    auto* with = frame->ContextMenus().Menu(app::MenuPane::list)->findChild<QMenu*>();
    Q_EMIT with->aboutToShow();
    with->actions().at(1)->trigger();
    EXPECT_THAT(realShell.started, ElementsAre("sh", paths[0]));
}
