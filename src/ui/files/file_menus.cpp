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
#include "ui/main_menu.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QClipboard>
#include <QDrag>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>

#include <array>

namespace ui
{

namespace
{

constexpr int kDragSide = 12 * kGrid;

using app::CommandId;

// What a selection is needed for, or a folder, or something to paste.
constexpr std::array kFileCommands = {CommandId::copy,   CommandId::cut,    CommandId::paste,
                                      CommandId::remove, CommandId::rename, CommandId::newFolder};

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

void CFileActions::Attend(QMenu& menu, const CMainMenu& commands)
{
    connect(&menu, &QMenu::aboutToShow, this, [this, &commands] { EnableCommands(commands); });
    // A key asks when it is pressed; it must not find what held for a menu.
    connect(&menu, &QMenu::aboutToHide, this, [&commands] {
        for (const CommandId id : kFileCommands)
            commands.Action(id)->setEnabled(true);
    });
}

void CFileActions::EnableCommands(const CMainMenu& commands) const
{
    const bool any = !Chosen().empty();
    const bool hasFolder = !Receiver().empty();
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    for (const CommandId id : {CommandId::cut, CommandId::remove, CommandId::rename})
        commands.Action(id)->setEnabled(any);
    commands.Action(CommandId::copy)->setEnabled(any || (IsInTree() && hasFolder));
    commands.Action(CommandId::paste)
        ->setEnabled(hasFolder && data && (MayHoldFiles(*data) || data->hasImage()));
    commands.Action(CommandId::newFolder)->setEnabled(hasFolder);
}

void CFileActions::AddOpening(QMenu& menu)
{
    QAction* const first = menu.actions().constFirst();
    QAction* const open = new QAction(Text(StringId::filesOpen), &menu);
    connect(open, &QAction::triggered, this, [this] { list.Activate(list.View()->currentIndex()); });
    auto* const with = new QMenu(Text(StringId::filesOpenWith), &menu);
    menu.insertAction(first, open);
    menu.insertMenu(first, with);
    menu.insertSeparator(first);
    connect(&menu, &QMenu::aboutToShow, this, [this, open, with] {
        const std::size_t count = list.SelectedPaths().size();
        open->setEnabled(count == 1);
        with->setEnabled(count > 0);
    });
    FillOpenWith(*with);
}

void CFileActions::FillOpenWith(QMenu& menu)
{
    // Looked up when the menu is opened: most context menus never open it.
    connect(&menu, &QMenu::aboutToShow, this, [this, &menu] {
        const std::vector<std::string> paths = list.SelectedPaths();
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
