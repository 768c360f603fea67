// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of captions, renames and time stamps share: real files, a real store and journal, and
// pictures whose content is their size, such as "400x300".
#pragma once

#include "browser/change_journal.h"
#include "browser/file_job.h"
#include "photo/caption_store.h"
#include "platform_linux/linux_file_system.h"
#include "platform_linux/linux_shell.h"
#include "support/services_guard.h"
#include "support/temp_folder.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

class CQuietHost : public browser::CFileJobHost
{
public:
    int itemsUntilStop = -1;

    browser::ClashReply AskAboutClash(const browser::Clash&) override { return {}; }
    bool Progress(const browser::FileJobProgress&) override
    {
        return itemsUntilStop < 0 || itemsUntilStop-- > 0;
    }
};

class CPhotoFixture : public testing::Test
{
protected:
    CPhotoFixture() { std::filesystem::create_directories(folder.Path("p")); }

    std::string Path(const std::string& name) const { return folder.Path("p/" + name); }
    std::string Make(const std::string& name, const std::string& content = "400x300") const
    {
        return folder.Make("p/" + name, content);
    }
    std::vector<std::string> MakeAll(const std::vector<std::string>& names) const
    {
        std::vector<std::string> paths;
        for (const std::string& name : names)
            paths.push_back(Make(name));
        return paths;
    }
    photo::CaptionReport Caption(const std::vector<std::string>& paths, const std::string& caption)
    {
        return photo::CCaptionStore(Manager()).Set(paths, {caption, {}, {}}, host);
    }
    std::string CaptionOf(const std::string& path)
    {
        return photo::CCaptionStore(Manager()).Get(path).caption;
    }
    // As another process would see the store.
    browser::CThumbDbMgr& Manager()
    {
        manager.emplace(stores.thumbnails);
        manager->Load();
        return *manager;
    }
    browser::FileJobReport Run(browser::FileJobRequest request)
    {
        request.stores = stores;
        return browser::RunFileJob(request, host);
    }
    browser::FileJobReport Undo(const browser::UndoRecord& record)
    {
        return Run({browser::FileTask::undo, {}, {}, record, {}});
    }

    support::CTempFolder folder;
    platform_linux::CLinuxFileSystem files;
    platform_linux::CLinuxShell shell;
    support::CTestProfiles profiles;
    support::CTestUtility utility{profiles};
    support::CTestImages images;
    support::CServicesGuard guard{
        platform::Services{&files, nullptr, &profiles, &shell, nullptr, &utility, &images}};
    browser::JobStores stores{folder.Path("ThumbDB"), folder.Path("Journal")};
    browser::CChangeJournal journal{stores.journal};
    std::optional<browser::CThumbDbMgr> manager;
    CQuietHost host;
};
