// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFolderTreeModel: places and the folders below them.
//
// A folder is read when it is opened, a piece at a time from a timer; until then it is taken to have
// sub-folders. Hidden folders are left out unless they were revealed. Paths are bytes.
#pragma once

#include "app/left_pane.h"
#include "platform/file_system.h"

#include <QAbstractItemModel>
#include <QTimer>

#include <deque>
#include <memory>

namespace ui
{

class CFolderTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit CFolderTreeModel(std::vector<app::Place> places, QObject* parent = nullptr);
    ~CFolderTreeModel() override;

    // Empty for a heading and for no index.
    std::string Path(const QModelIndex& index) const;
    // Whether it is a folder like any other, which may be renamed and deleted, and no place of the tree.
    bool IsPlainFolder(const QModelIndex& index) const;
    // Every index that shows the folder; none where the tree has not come to it.
    std::vector<QModelIndex> Find(const std::string& path) const;
    // The index of a folder, put into the tree where its place has sub-folders; none when no place leads
    // there. Nothing is read for it.
    QModelIndex Reveal(const std::string& path);
    // Starts reading the folder's sub-folders (anew).
    void Read(const QModelIndex& index) { ReadNode(NodeOf(index)); }
    // Starts reading all folders anew that have been read before.
    void ReadAgain() { ReadAgainBelow(root.get()); }
    bool IsReading() const { return !reading.empty(); }
    // Takes in which volumes there are now, below the heading where there is one, else beside the other
    // places. Those that stay keep what is below them.
    void UpdateVolumes(const std::vector<app::Place>& volumes);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& = {}) const override { return 1; }
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    void ReadingEnded();

private:
    struct Node;
    Node* NodeOf(const QModelIndex& index) const;
    QModelIndex IndexOf(const Node* node) const;
    static std::unique_ptr<Node> MakeNode(app::Place place, Node* parent);
    void Collect(const Node* from, const std::string& path, std::vector<QModelIndex>& found) const;
    Node* NearestPlace(Node* from, const std::string& path) const;
    Node* EnsureChild(Node* parent, const std::string& name);
    void ReadNode(Node* node);
    void ReadAgainBelow(Node* node);
    void ReadPiece();
    void TakeIn(Node* node);
    void Insert(Node* node, std::size_t row, std::vector<std::string> names);
    void RemoveVolume(Node* parent, std::size_t row);
    void RemoveGone(Node* node, const std::vector<std::string>& present);

    std::unique_ptr<Node> root;
    std::deque<Node*> reading;
    QTimer timer;
};

}  // namespace ui
