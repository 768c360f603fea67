// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/folder_tree_model.h"

#include "browser/file_names.h"
#include "platform/change_notifications.h"
#include "platform/services.h"
#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/words.h"

#include <QFont>

#include <algorithm>

namespace ui
{

namespace
{

constexpr std::size_t kEntriesAtOnce = 500;

const char* IconOf(app::PlaceKind kind)
{
    switch (kind) {
    case app::PlaceKind::favourites:
        return "favourite";
    case app::PlaceKind::photo:
        return "photo";
    case app::PlaceKind::ring:
        return "ring";
    case app::PlaceKind::frame:
        return "frame";
    case app::PlaceKind::animation:
        return "animation";
    case app::PlaceKind::home:
        return "home";
    case app::PlaceKind::fileSystem:
        return "computer";
    case app::PlaceKind::volume:
        return "drive";
    case app::PlaceKind::removableVolume:
        return "removable-drive";
    default:
        return "folder";
    }
}

bool IsWithin(const std::string& path, const std::string& folder)
{
    if (folder.empty() || !path.starts_with(folder))
        return false;
    return path.size() == folder.size() || folder == "/" || path[folder.size()] == '/';
}

bool IsVolume(app::PlaceKind kind)
{
    return kind == app::PlaceKind::volume || kind == app::PlaceKind::removableVolume;
}

}  // namespace

struct CFolderTreeModel::Node {
    app::PlaceKind kind = app::PlaceKind::folder;
    std::string path;
    std::string name;
    bool subfolders = false;
    bool wasRead = false;
    Node* parent = nullptr;
    std::vector<std::unique_ptr<Node>> children;  // sorted by name below a folder that has been read
    std::unique_ptr<platform::CFolderReader> reader;
    std::unique_ptr<platform::CFollowedFolder> following;  // since it was first read
    std::vector<std::string> incoming;
};

CFolderTreeModel::CFolderTreeModel(std::vector<app::Place> places, QObject* parent)
    : QAbstractItemModel(parent), root(std::make_unique<Node>())
{
    for (app::Place& place : places)
        root->children.push_back(MakeNode(std::move(place), root.get()));
    connect(&timer, &QTimer::timeout, this, &CFolderTreeModel::ReadPiece);
}

CFolderTreeModel::~CFolderTreeModel() = default;

std::unique_ptr<CFolderTreeModel::Node> CFolderTreeModel::MakeNode(app::Place place, Node* parent)
{
    auto node = std::make_unique<Node>();
    node->kind = place.kind;
    node->path = std::move(place.path);
    node->name = place.caption == StringId::none ? std::move(place.label) : Text(place.caption).toStdString();
    node->subfolders = place.subfolders;
    node->parent = parent;
    for (app::Place& child : place.children)
        node->children.push_back(MakeNode(std::move(child), node.get()));
    return node;
}

CFolderTreeModel::Node* CFolderTreeModel::NodeOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : root.get();
}

QModelIndex CFolderTreeModel::IndexOf(const Node* node) const
{
    if (!node || node == root.get())
        return {};
    const auto& siblings = node->parent->children;
    const auto found = std::ranges::find(siblings, node, &std::unique_ptr<Node>::get);
    return createIndex(static_cast<int>(found - siblings.begin()), 0, node);
}

std::string CFolderTreeModel::Path(const QModelIndex& index) const
{
    return NodeOf(index)->path;
}

bool CFolderTreeModel::IsPlainFolder(const QModelIndex& index) const
{
    return index.isValid() && NodeOf(index)->kind == app::PlaceKind::folder;
}

std::vector<QModelIndex> CFolderTreeModel::Find(const std::string& path) const
{
    std::vector<QModelIndex> found;
    Collect(root.get(), path, found);
    return found;
}

void CFolderTreeModel::Collect(const Node* from, const std::string& path,
                               std::vector<QModelIndex>& found) const
{
    for (const auto& child : from->children) {
        if (child->path == path)
            found.push_back(IndexOf(child.get()));
        // A heading holds places of any path.
        if (child->path.empty() || IsWithin(path, child->path))
            Collect(child.get(), path, found);
    }
}

// The place, or the folder already in the tree, that lies nearest above the path.
CFolderTreeModel::Node* CFolderTreeModel::NearestPlace(Node* from, const std::string& path) const
{
    Node* best = nullptr;
    for (const auto& child : from->children) {
        Node* found = nullptr;
        if (IsWithin(path, child->path) && (child->subfolders || child->path == path))
            found = child.get();
        if (child->path.empty() || IsWithin(path, child->path)) {
            if (Node* deeper = NearestPlace(child.get(), path))
                found = deeper;
        }
        if (found && (!best || found->path.size() > best->path.size()))
            best = found;
    }
    return best;
}

QModelIndex CFolderTreeModel::Reveal(const std::string& path)
{
    Node* node = NearestPlace(root.get(), path);
    while (node && node->path != path) {
        const std::size_t begin = node->path == "/" ? 1 : node->path.size() + 1;
        const std::size_t end = path.find('/', begin);
        node = EnsureChild(node, path.substr(begin, end == std::string::npos ? end : end - begin));
    }
    return IndexOf(node);
}

CFolderTreeModel::Node* CFolderTreeModel::EnsureChild(Node* parent, const std::string& name)
{
    if (name.empty())
        return nullptr;
    auto& children = parent->children;
    const auto place =
        std::ranges::lower_bound(children, name, browser::NameBefore,
                                 [](const auto& child) -> const std::string& { return child->name; });
    if (place != children.end() && (*place)->name == name)
        return place->get();
    const auto row = static_cast<std::size_t>(place - children.begin());
    Insert(parent, row, {name});
    return children[row].get();
}

void CFolderTreeModel::Insert(Node* node, std::size_t row, std::vector<std::string> names)
{
    if (names.empty())
        return;
    std::vector<std::unique_ptr<Node>> added;
    for (std::string& name : names) {
        std::string path = browser::JoinPath(node->path, name);
        added.push_back(MakeNode({app::PlaceKind::folder, std::move(name), std::move(path), true, {}}, node));
    }
    beginInsertRows(IndexOf(node), static_cast<int>(row), static_cast<int>(row + added.size() - 1));
    node->children.insert(node->children.begin() + static_cast<std::ptrdiff_t>(row),
                          std::move_iterator(added.begin()), std::move_iterator(added.end()));
    endInsertRows();
}

void CFolderTreeModel::ReadNode(Node* node)
{
    if (!node->subfolders || node->reader)
        return;
    // Anew each time: another folder may have taken the place.
    if (platform::Os().changes)
        node->following = platform::Os().changes->FollowFolder(node->path);
    node->reader = platform::Os().files->ReadFolder(node->path);
    node->incoming.clear();
    if (!node->reader) {
        TakeIn(node);
        return;
    }
    reading.push_back(node);
    timer.start(0);
}

// Those below come first, so that a folder with all that is below it can go at once.
void CFolderTreeModel::ReadAgainBelow(Node* node)
{
    for (std::size_t i = 0; i < node->children.size(); ++i)
        ReadAgainBelow(node->children[i].get());
    if (node->wasRead)
        ReadNode(node);
}

void CFolderTreeModel::ReadPiece()
{
    if (reading.empty()) {
        timer.stop();
        Q_EMIT ReadingEnded();
        return;
    }
    Node* node = reading.front();
    std::vector<platform::FolderEntry> entries;
    const bool more = node->reader->Read(kEntriesAtOnce, entries);
    for (platform::FolderEntry& entry : entries) {
        if (entry.isFolder && !entry.name.starts_with('.'))
            node->incoming.push_back(std::move(entry.name));
    }
    if (more)
        return;
    reading.pop_front();
    node->reader.reset();
    TakeIn(node);
}

void CFolderTreeModel::TakeIn(Node* node)
{
    std::vector<std::string> names = std::move(node->incoming);
    node->incoming.clear();
    std::ranges::sort(names, browser::NameBefore);
    const bool couldBeOpened = hasChildren(IndexOf(node));
    node->wasRead = true;
    RemoveGone(node, names);
    auto next = names.begin();
    for (std::size_t row = 0; next != names.end(); ++row) {
        const bool atEnd = row == node->children.size();
        const auto until = atEnd ? names.end()
                                 : std::ranges::lower_bound(next, names.end(), node->children[row]->name,
                                                            browser::NameBefore);
        std::vector<std::string> before(next, until);
        const std::size_t added = before.size();
        Insert(node, row, std::move(before));
        row += added;
        next = until;
        if (next != names.end() && row < node->children.size() && *next == node->children[row]->name)
            ++next;
    }
    if (couldBeOpened && node->children.empty()) {
        // Views ask anew whether there is anything to open.
        const QList<QPersistentModelIndex> above = {QPersistentModelIndex(IndexOf(node))};
        Q_EMIT layoutAboutToBeChanged(above);
        Q_EMIT layoutChanged(above);
    }
}

void CFolderTreeModel::RemoveGone(Node* node, const std::vector<std::string>& present)
{
    for (std::size_t row = node->children.size(); row-- > 0;) {
        Node* child = node->children[row].get();
        const bool listed = std::ranges::binary_search(present, child->name, browser::NameBefore);
        const auto isBelow = [child](const Node* other) { return IsWithin(other->path, child->path); };
        if (listed || std::ranges::any_of(reading, isBelow) ||
            platform::Os().files->FindPresence(child->path) != platform::Presence::missing)
            continue;
        beginRemoveRows(IndexOf(node), static_cast<int>(row), static_cast<int>(row));
        node->children.erase(node->children.begin() + static_cast<std::ptrdiff_t>(row));
        endRemoveRows();
    }
}

void CFolderTreeModel::UpdateVolumes(const std::vector<app::Place>& volumes)
{
    const auto heading = std::ranges::find(root->children, app::PlaceKind::heading,
                                           [](const auto& node) { return node->kind; });
    Node* const parent = heading == root->children.end() ? root.get() : heading->get();
    for (std::size_t row = parent->children.size(); row-- > 0;) {
        const Node& node = *parent->children[row];
        if (IsVolume(node.kind) && std::ranges::find(volumes, node.path, &app::Place::path) == volumes.end())
            RemoveVolume(parent, row);
    }
    auto& children = parent->children;
    // The volumes stand behind everything else.
    auto row = static_cast<std::size_t>(
        std::ranges::find_if(children, [](const auto& node) { return IsVolume(node->kind); }) -
        children.begin());
    for (const app::Place& volume : volumes) {
        if (row == children.size() || children[row]->path != volume.path) {
            beginInsertRows(IndexOf(parent), static_cast<int>(row), static_cast<int>(row));
            children.insert(children.begin() + static_cast<std::ptrdiff_t>(row), MakeNode(volume, parent));
            endInsertRows();
        }
        ++row;
    }
}

void CFolderTreeModel::RemoveVolume(Node* parent, std::size_t row)
{
    const std::string path = parent->children[row]->path;
    std::erase_if(reading, [&path](const Node* node) { return IsWithin(node->path, path); });
    beginRemoveRows(IndexOf(parent), static_cast<int>(row), static_cast<int>(row));
    parent->children.erase(parent->children.begin() + static_cast<std::ptrdiff_t>(row));
    endRemoveRows();
}

QModelIndex CFolderTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    const Node* node = NodeOf(parent);
    if (column != 0 || row < 0 || row >= static_cast<int>(node->children.size()))
        return {};
    return createIndex(row, 0, node->children[static_cast<std::size_t>(row)].get());
}

QModelIndex CFolderTreeModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? IndexOf(NodeOf(index)->parent) : QModelIndex();
}

int CFolderTreeModel::rowCount(const QModelIndex& parent) const
{
    return static_cast<int>(NodeOf(parent)->children.size());
}

bool CFolderTreeModel::hasChildren(const QModelIndex& parent) const
{
    const Node* node = NodeOf(parent);
    return !node->children.empty() || (node->subfolders && !node->wasRead);
}

QVariant CFolderTreeModel::data(const QModelIndex& index, int role) const
{
    const Node* node = NodeOf(index);
    const bool heading = node->kind == app::PlaceKind::heading;
    switch (role) {
    case Qt::DisplayRole:
        return Shown(node->name);
    case Qt::ToolTipRole:
        return heading ? QString() : Shown(node->path).toHtmlEscaped();
    case Qt::DecorationRole:
        return heading ? QVariant() : ThemedIcon(QString::fromLatin1(IconOf(node->kind)));
    case Qt::FontRole: {
        QFont font;
        font.setWeight(QFont::DemiBold);
        return heading ? QVariant(font) : QVariant();
    }
    default:
        return {};
    }
}

Qt::ItemFlags CFolderTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    if (NodeOf(index)->kind == app::PlaceKind::heading)
        return Qt::ItemIsEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
}

}  // namespace ui
