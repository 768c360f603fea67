// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The context menus of CFileActions, and files dragged into and out of the panes.
#include "ui/files/file_actions.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "ui/files/desktop_apps.h"
#include "ui/files/file_mime.h"
#include "ui/icons.h"
#include "ui/ie_shell_list_ctrl.h"
#include "ui/left_view.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QClipboard>
#include <QDrag>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>

#include <memory>

namespace ui
{

namespace
{

constexpr int kDragSide = 12 * kGrid;

// What hangs on the mouse: a sheet with the number of files.
QPixmap DragPicture(std::size_t count, const QWidget& widget)
{
    const qreal ratio = widget.devicePixelRatioF();
    QPixmap picture = IconPixmap(count == 1 ? QStringLiteral("file") : QStringLiteral("photo"), kDragSide,
                                 CTheme::Colours().accent, ratio);
    if (count == 1)
        return picture;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QString text = QString::number(count);
    const int width = widget.fontMetrics().horizontalAdvance(text) + 2 * kGrid;
    const QRect badge(0, kDragSide - 5 * kGrid, std::max(width, 5 * kGrid), 5 * kGrid);
    painter.setPen(Qt::NoPen);
    painter.setBrush(CTheme::Colours().text);
    painter.drawRoundedRect(badge, badge.height() / 2.0, badge.height() / 2.0);
    painter.setPen(CTheme::Colours().view);
    painter.setFont(widget.font());
    painter.drawText(badge, Qt::AlignCenter, text);
    return picture;
}

}  // namespace

void CFileActions::WatchList()
{
    connect(&list, &CIEShellListCtrl::DragStarts, this, [this] { Drag(list.SelectedPaths(), list.View()); });
    for (QAbstractItemView* view :
         list.findChildren<QAbstractItemView*>(QString(), Qt::FindDirectChildrenOnly)) {
        auto* handler = new CDropHandler(view, [this, view](QPoint point) {
            const QModelIndex index = view->indexAt(point);
            const bool isFolder = index.isValid() && index.row() < list.List().Count() &&
                                  list.List().Item(index.row()).isFolder;
            return isFolder
                       ? CDropHandler::Receiver{list.List().PathOf(index.row()), index.siblingAtColumn(0)}
                       : CDropHandler::Receiver{list.List().Folder(), {}};
        });
        connect(handler, &CDropHandler::Dropped, this, &CFileActions::Transfer);
    }
}

void CFileActions::WatchTree(CFolderTree* tree)
{
    auto* handler = new CDropHandler(tree, [tree](QPoint point) {
        const QModelIndex index = tree->indexAt(point);
        return CDropHandler::Receiver{index.isValid() ? tree->PathOf(index) : std::string(), index};
    });
    connect(handler, &CDropHandler::Dropped, this, &CFileActions::Transfer);
    connect(tree, &CFolderTree::DragStarts, this, [this, tree] {
        if (tree->IsPlainFolder(tree->currentIndex()))
            Drag({tree->Folder()}, tree);
    });
}

void CFileActions::Drag(const std::vector<std::string>& paths, QWidget* from)
{
    if (paths.empty())
        return;
    auto* drag = new QDrag(from);
    drag->setMimeData(MakeFileMime({TransferKind::copy, paths}));
    drag->setPixmap(DragPicture(paths.size(), *from));
    drag->setHotSpot({kDragSide / 2, kDragSide / 2});
    drag->exec(Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::CopyAction);
}

void CFileActions::FillListMenu(QMenu& menu)
{
    const std::vector<std::string> paths = list.SelectedPaths();
    const bool any = !paths.empty();
    const auto add = [&](StringId text, const QKeySequence& keys, bool enabled, auto work) {
        QAction* action = menu.addAction(Text(text), this, work);
        action->setShortcut(keys);
        action->setEnabled(enabled);
    };
    if (any) {
        add(StringId::filesOpen, {}, paths.size() == 1,
            [this] { list.Activate(list.View()->currentIndex()); });
        FillOpenWith(*menu.addMenu(Text(StringId::filesOpenWith)), paths);
        menu.addSeparator();
    }
    add(StringId::filesCut, QKeySequence::Cut, any, [this] { Cut(); });
    add(StringId::filesCopy, QKeySequence::Copy, any, [this] { Copy(); });
    add(StringId::filesPaste, QKeySequence::Paste, !list.List().Folder().empty(), [this] { Paste(); });
    menu.addSeparator();
    add(StringId::filesRename, Qt::Key_F2, paths.size() == 1, [this] { RenameInList(); });
    add(StringId::filesDelete, Qt::Key_Delete, any, [this] { Delete(); });
    add(StringId::filesDeleteForGood, Qt::SHIFT | Qt::Key_Delete, any, [this] { DeleteForGood(); });
    menu.addSeparator();
    add(StringId::filesNewFolder, Qt::CTRL | Qt::SHIFT | Qt::Key_N, !list.List().Folder().empty(),
        [this] { AskForFolder(list.List().Folder()); });
}

void CFileActions::FillTreeMenu(QMenu& menu, CFolderTree& tree, const QModelIndex& folder)
{
    const std::string path = tree.PathOf(folder);
    if (path.empty())
        return;
    const bool plain = tree.IsPlainFolder(folder);
    const QPersistentModelIndex kept = folder;
    const auto add = [&](StringId text, const QKeySequence& keys, bool enabled, auto work) {
        QAction* action = menu.addAction(Text(text), this, work);
        action->setShortcut(keys);
        action->setEnabled(enabled);
    };
    const auto put = [this, path](TransferKind kind) {
        settingClipboard = true;
        QGuiApplication::clipboard()->setMimeData(MakeFileMime({kind, {path}}));
        settingClipboard = false;
        SetFaded({});
    };
    add(StringId::filesNewFolder, Qt::CTRL | Qt::SHIFT | Qt::Key_N, true,
        [this, path] { AskForFolder(path); });
    menu.addSeparator();
    add(StringId::filesCut, QKeySequence::Cut, plain, [put] { put(TransferKind::move); });
    add(StringId::filesCopy, QKeySequence::Copy, true, [put] { put(TransferKind::copy); });
    add(StringId::filesPaste, QKeySequence::Paste, MayHoldFiles(*QGuiApplication::clipboard()->mimeData()),
        [this, path] { PasteInto(path); });
    menu.addSeparator();
    add(StringId::filesRename, Qt::Key_F2, plain, [this, &tree, kept] { RenameInTree(tree, kept); });
    add(StringId::filesDelete, Qt::Key_Delete, plain, [this, path] {
        Start({browser::FileTask::trash, {path}, {}, {}, {}});
    });
}

void CFileActions::FillOpenWith(QMenu& menu, const std::vector<std::string>& paths)
{
    // Looked up when the menu is opened: most context menus never open it.
    connect(&menu, &QMenu::aboutToShow, this, [&menu, paths] {
        menu.clear();
        for (const DesktopApp& app : AppsFor(paths)) {
            // An "&" of the name is no mark of a key.
            const QString name = QString(app.name).replace(QLatin1Char('&'), QStringLiteral("&&"));
            menu.addAction(QIcon::fromTheme(app.icon), name, [app, paths] {
                for (const auto& command : CommandsFor(app, paths))
                    platform::Os().shell->StartProgram(command);
            });
        }
        if (menu.isEmpty())
            menu.addAction(Text(StringId::filesOpenWithNone))->setEnabled(false);
    });
}

}  // namespace ui
