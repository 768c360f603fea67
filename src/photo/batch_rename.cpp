// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/batch_rename.h"

#include "browser/file_names.h"
#include "photo/rename_pattern.h"
#include "platform/services.h"
#include "platform/shell.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace photo
{

namespace
{

// The names in use at a point of the batch: those that the folders held, as the renames so far have left
// them.
class CNames
{
public:
    bool IsTaken(const std::string& path) const
    {
        return given.contains(path) ||
               (!freed.contains(path) && platform::Os().shell->FindEntry(path).has_value());
    }
    // The first of `pathOf(1)`, `pathOf(2)` ... that is free. `group` stands for that row of names: what was
    // taken is not asked for again until a rename gives it up, so that ten thousand clashes stay quick.
    template <typename PathOf> std::string FirstFree(const std::string& group, const PathOf& pathOf)
    {
        int& number = firstToTry.try_emplace(group, 1).first->second;
        std::string path = pathOf(number);
        for (; IsTaken(path); path = pathOf(++number)) {
            tried.insert_or_assign(path, std::pair(group, number));
        }
        return path;
    }
    void Rename(const std::string& from, const std::string& to)
    {
        if (given.erase(from) == 0) {
            freed.insert(from);
        }
        freed.erase(to);
        given.insert(to);
        if (const auto known = tried.find(from); known != tried.end()) {
            int& number = firstToTry.at(known->second.first);
            number = std::min(number, known->second.second);
            tried.erase(known);
        }
    }

private:
    std::unordered_set<std::string> freed;
    std::unordered_set<std::string> given;
    std::unordered_map<std::string, int> firstToTry;
    std::unordered_map<std::string, std::pair<std::string, int>> tried;  // taken ones: group and number
};

}  // namespace

std::vector<PlannedRename> PlanBatchRename(const std::vector<std::string>& files, const std::string& pattern)
{
    std::vector<PlannedRename> plan;
    CNames names;
    int itemCounter = 1;
    for (const std::string& from : pattern.empty() ? std::vector<std::string>() : files) {
        const std::string extension = browser::LowerCase(browser::Extension(from));
        PlannedRename rename{from, {}, false};
        if (extension != "asr" && extension != "lnk") {
            const auto pathOf = [&](const std::string& name) {
                return browser::JoinPath(browser::FolderOf(from),
                                         extension.empty() ? name : name + "." + extension);
            };
            rename.to = pathOf(FormatPattern(pattern, itemCounter++));
            rename.hasClash = names.IsTaken(rename.to);
            if (rename.hasClash) {
                rename.to = names.FirstFree(pathOf({}), [&](int collisionCounter) {
                    return pathOf(FormatPattern(pattern + "-%d", collisionCounter));
                });
            }
            names.Rename(from, rename.to);
        }
        plan.push_back(std::move(rename));
    }
    return plan;
}

browser::FileJobRequest BatchRenameJob(const std::vector<PlannedRename>& plan, browser::JobStores stores)
{
    browser::FileJobRequest request{browser::FileTask::rename, {}, {}, {}, {}};
    for (const PlannedRename& rename : plan) {
        if (!rename.to.empty()) {
            request.sources.push_back(rename.from);
            request.targets.push_back(rename.to);
        }
    }
    request.stores = std::move(stores);
    return request;
}

}  // namespace photo
