// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "window_test_base.h"

#include "ui/controls/skin.h"

namespace support
{

namespace
{

class CEndlessFolder : public platform::CFolderReader
{
public:
    bool Read(std::size_t, std::vector<platform::FolderEntry>& entries) override
    {
        entries.push_back({"photo" + std::to_string(count++) + ".jpg", false, true, false});
        return true;
    }

private:
    int count = 0;
};

platform::Services With(platform::CShell& shell, platform::CFileSystem& files)
{
    platform::Services all = platform::Os();
    all.shell = &shell;
    all.files = &files;
    return all;
}

}  // namespace

std::unique_ptr<platform::CFolderReader> COddFolders::ReadFolder(const std::string& path)
{
    if (path == forbidden)
        return nullptr;
    if (path == endless)
        return std::make_unique<CEndlessFolder>();
    return CTestFileSystem::ReadFolder(path);
}

WindowTest::WindowTest() : guard(With(shell, files)), folder(services.folder.Path("pictures"))
{
    shell.base = services.folder.Path("user");
    services.utility.programFolder = services.folder.Path("program");
    std::filesystem::create_directories(folder);
    std::filesystem::create_directories(services.utility.programFolder);
    dataFolders.Prepare();
    application.InitInstance({});
    frame = std::make_unique<ui::CMainFrame>(application, dataFolders);
    frame->resize(1000, 700);
    frame->show();
}

// The skin is the process's and asks the services that end with this test.
WindowTest::~WindowTest()
{
    frame.reset();
    ui::UseSkin({});
}

std::string WindowTest::Add(const std::string& name, const std::string& bytes)
{
    const std::string path = folder + "/" + name;
    WriteBytes(path, bytes);
    return path;
}

void WindowTest::AddMany(int count, const std::string& extension)
{
    for (int i = 0; i < count; ++i)
        Add("photo" + std::to_string(i) + extension);
}

void WindowTest::Open(const std::string& path)
{
    frame->GoTo(path.empty() ? folder : path);
    Settle();
}

void WindowTest::Settle()
{
    ASSERT_TRUE(QTest::qWaitFor([this] { return !List().IsReading() && !frame->IsTicking(); }, 30'000));
}

std::vector<std::string> WindowTest::Names() const
{
    std::vector<std::string> names;
    for (int row = 0; row < frame->List()->View()->model()->rowCount(); ++row)
        names.push_back(frame->List()->List().Item(row).name);
    return names;
}

std::vector<std::string> WindowTest::SelectedNames() const
{
    std::vector<std::string> names;
    const std::vector<std::string> all = Names();
    for (std::size_t row = 0; row < all.size(); ++row) {
        const auto& view = *frame->List()->View();
        if (view.selectionModel()->isSelected(view.model()->index(static_cast<int>(row), 0)))
            names.push_back(all[row]);
    }
    return names;
}

int WindowTest::RowOf(const std::string& name) const
{
    const std::vector<std::string> all = Names();
    return static_cast<int>(std::ranges::find(all, name) - all.begin());
}

void WindowTest::Select(const std::vector<std::string>& names)
{
    View().clearSelection();
    for (const std::string& name : names) {
        View().selectionModel()->setCurrentIndex(View().model()->index(RowOf(name), 0),
                                                 QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

}  // namespace support
