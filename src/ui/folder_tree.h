// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFolderTree: a tree of places in which one folder is selected.
#pragma once

#include "ui/folder_tree_model.h"

#include <QTreeView>

namespace ui
{

class CFolderTree : public QTreeView
{
    Q_OBJECT

public:
    CFolderTree(std::vector<app::Place> places, const QString& name, QWidget* parent = nullptr);

    // The selected folder; empty for none.
    std::string Folder() const;
    // Selects a folder without telling; false when no place leads to it.
    bool SelectFolder(const std::string& path);
    // Opens the places that the tree starts with.
    void ExpandPlaces();
    // Reads the sub-folders of the selected folder anew.
    void Refresh() { folders.Read(currentIndex()); }
    // Reads all folders anew that have been read before; nothing is told of a selected folder that is gone.
    void RefreshLoaded();
    // Reads the sub-folders of a folder anew where the tree shows them.
    void RefreshFolder(const std::string& path);
    std::string PathOf(const QModelIndex& index) const { return folders.Path(index); }
    bool IsPlainFolder(const QModelIndex& index) const { return folders.IsPlainFolder(index); }
    bool IsReading() const { return folders.IsReading(); }
    // Takes in which volumes there are now. A selected folder whose volume went is selected no more.
    void UpdateVolumes(const std::vector<app::Place>& volumes);

Q_SIGNALS:
    // The user has selected another folder.
    void FolderChosen(const std::string& path);
    void ReadingEnded();
    // The selected folder is being dragged out of the tree.
    void DragStarts();

protected:
    void startDrag(Qt::DropActions) override { Q_EMIT DragStarts(); }
    // A click beside the folders leaves the one on show selected.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void ForgetGone(const QModelIndex& parent, int first, int last);

    CFolderTreeModel folders;
    bool selecting = false;
    bool isRevealing = false;  // a folder was selected from outside, and what is above it is being read
};

}  // namespace ui
