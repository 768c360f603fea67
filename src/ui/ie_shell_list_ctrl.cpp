// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ie_shell_list_ctrl.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "platform/shell.h"
#include "ui/display_text.h"
#include "ui/words.h"

#include <QApplication>
#include <QMenu>
#include <QScrollBar>

namespace ui
{

namespace
{

// Milliseconds to wait for another program that holds the store: while the window is live, and at its end.
constexpr int kPatience = 50;
constexpr int kPatienceAtEnd = 10'000;

}  // namespace

CIEShellListCtrl::CIEShellListCtrl(const std::string& storeFolder, const std::string& settingsFile,
                                   QWidget* parent)
    : QWidget(parent), storeManager(storeFolder), list(&storeManager), nameModel(list, Columns::name),
      iconModel(list, Columns::nameAndIcon), allModel(list, Columns::all), filler(list),
      thumbnails(new CThumbnailView(list, this)), details(new CDetailsView(this)),
      compact(new CCompactView(this)), pages(new QStackedLayout(this)), emptyState(new CEmptyState(this)),
      layout(*this, settingsFile)
{
    storeManager.Load();
    storeManager.SetPatience(kPatience);
    pages->addWidget(thumbnails);
    pages->addWidget(details);
    pages->addWidget(compact);
    thumbnails->setModel(&nameModel);
    details->setModel(&allModel);
    compact->setModel(&iconModel);
    setFocusProxy(thumbnails);
    WatchView(thumbnails);
    WatchView(details);
    WatchView(compact);
    connect(thumbnails, &CThumbnailView::VisibleChanged, this, &CIEShellListCtrl::WorkAppeared);
    connect(thumbnails, &CThumbnailView::DragStarts, this, &CIEShellListCtrl::DragStarts);
    connect(details, &CDetailsView::DragStarts, this, &CIEShellListCtrl::DragStarts);
    connect(compact, &CCompactView::DragStarts, this, &CIEShellListCtrl::DragStarts);
    connect(&filler, &CListFiller::PieceBegins, this, &CIEShellListCtrl::KeepState);
    connect(&filler, &CListFiller::Filled, this, &CIEShellListCtrl::OnFilled);
    connect(&filler, &CListFiller::ThumbnailsDue, this, &CIEShellListCtrl::WorkAppeared);
    connect(&follower, &CListFollower::RefreshDue, this, &CIEShellListCtrl::FollowChange);
    connect(&follower, &CListFollower::LostChanged, this, &CIEShellListCtrl::StatusChanged);
    connect(&filler, &CListFiller::FactsRead, this, &CIEShellListCtrl::OnFactsRead);
    connect(thumbnails, &CThumbnailView::SideWanted, this, &CIEShellListCtrl::SetThumbnailSide);
    connect(details, &CDetailsView::OrderChosen, this, &CIEShellListCtrl::SetOrder);
    connect(details, &CDetailsView::ColumnsChanged, this, &CIEShellListCtrl::LayoutChanged);
    connect(details, &CDetailsView::HeaderMenuWanted, this, &CIEShellListCtrl::ShowHeaderMenu);
    layout.Load();
}

CIEShellListCtrl::~CIEShellListCtrl()
{
    layout.Save();
    storeManager.SetPatience(kPatienceAtEnd);
    storeManager.Save(true);
}

void CIEShellListCtrl::WatchView(QAbstractItemView* view)
{
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        stateIsKept = false;
        Q_EMIT StatusChanged();
    });
    connect(view->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { stateIsKept = false; });
    connect(view, &QAbstractItemView::activated, this, &CIEShellListCtrl::Activate);
}

QAbstractItemView* CIEShellListCtrl::View() const
{
    switch (style) {
    case ViewStyle::thumbnails:
        return thumbnails;
    case ViewStyle::details:
        return details;
    default:
        return compact;
    }
}

CMediaListModel& CIEShellListCtrl::Model()
{
    switch (style) {
    case ViewStyle::thumbnails:
        return nameModel;
    case ViewStyle::details:
        return allModel;
    default:
        return iconModel;
    }
}

void CIEShellListCtrl::OpenFolder(const std::string& path, const std::string& selectName)
{
    if (path != list.Folder()) {
        // The list lets go of another folder's items at once.
        Model().Reset(false);
        keeper.Forget();
        stateIsKept = true;
    }
    if (!selectName.empty()) {
        keeper.Want(selectName);
        stateIsKept = true;
    }
    follower.Begin(path);
    filler.Start(path);
    if (filler.IsReading())
        SayWhyEmpty();
    Q_EMIT StatusChanged();
}

void CIEShellListCtrl::Refresh()
{
    list.ForgetFailures();
    Reread();
}

void CIEShellListCtrl::Reread()
{
    if (!list.Folder().empty())
        OpenFolder(list.Folder());
}

void CIEShellListCtrl::FollowChange()
{
    if (IsInUse())
        follower.Postpone();
    else
        Reread();
}

// In the middle of something that new items would break off: a drag, a band, a name being typed, a menu.
bool CIEShellListCtrl::IsInUse() const
{
    const QWidget* focus = QApplication::focusWidget();
    const bool isEditing =
        focus && focus != View() && focus != View()->viewport() && View()->isAncestorOf(focus);
    return isEditing || QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget();
}

int CIEShellListCtrl::FirstVisible() const
{
    if (style != ViewStyle::thumbnails)
        return View()->indexAt({0, 0}).row();
    const auto visible = thumbnails->Visible();
    return visible ? visible->first : -1;
}

void CIEShellListCtrl::KeepState()
{
    if (stateIsKept)
        return;
    keeper.Capture(*View(), list, FirstVisible());
    stateIsKept = true;
}

void CIEShellListCtrl::OnFilled()
{
    follower.End();
    if (!list.ItemsStayed() || Model().rowCount() != list.Count())
        Model().Reset(true);
    keeper.Restore(*View(), list);
    SayWhyEmpty();
    if (!thumbnails->Visible() || style != ViewStyle::thumbnails || list.IsUnsorted())
        filler.ReadFacts();
    Q_EMIT StatusChanged();
    Q_EMIT WorkAppeared();
    Q_EMIT Filled();
}

void CIEShellListCtrl::OnFactsRead()
{
    allModel.FactsChanged();
    if (list.SortIsDue())
        Rearrange([this] { list.Sort(); });
    Q_EMIT StatusChanged();
}

// The current item stays where it is seen; where it is not, the view stays where it is scrolled to.
void CIEShellListCtrl::Rearrange(const std::function<void()>& sort)
{
    QAbstractItemView& view = *View();
    const int scrolled = view.verticalScrollBar()->value();
    const QModelIndex current = view.currentIndex();
    const bool currentShows =
        current.isValid() && view.visualRect(current).intersects(view.viewport()->rect());
    CSelectionKeeper kept;
    kept.Capture(view, list, currentShows ? current.row() : -1);
    sort();
    if (Model().rowCount() == 0)
        return;
    Model().Reset(true);
    view.doItemsLayout();
    view.verticalScrollBar()->setValue(scrolled);
    kept.Restore(view, list);
    Q_EMIT WorkAppeared();
}

void CIEShellListCtrl::SetOrder(browser::SortOrder order)
{
    Rearrange([this, order] { list.SetOrder(order); });
    details->ShowOrder(order);
    if (list.IsUnsorted())
        filler.ReadFacts();
    Q_EMIT LayoutChanged();
    Q_EMIT StatusChanged();
}

void CIEShellListCtrl::ShowDateTaken(bool on)
{
    details->SetDateTakenShown(on);
    list.SetDatesWanted(on);
    if (on && style == ViewStyle::details)
        filler.ReadFacts();
    Q_EMIT LayoutChanged();
}

void CIEShellListCtrl::ShowHeaderMenu(const QPoint& place)
{
    QMenu menu(this);
    QAction* date = menu.addAction(Text(StringId::listDateTaken));
    date->setCheckable(true);
    date->setChecked(details->IsDateTakenShown());
    QAction* standard = menu.addAction(Text(StringId::listStandardColumns));
    const QAction* chosen = menu.exec(place);
    if (chosen == date) {
        ShowDateTaken(date->isChecked());
    } else if (chosen == standard) {
        details->ArrangeColumns({0, 1, 2, 3, 4}, {});
        ShowDateTaken(false);
    }
}

void CIEShellListCtrl::SetThumbnailSide(int pixels)
{
    const int side = browser::NearestThumbSize(pixels);
    if (side == thumbnails->ThumbnailSide())
        return;
    thumbnails->SetThumbnailSide(side);
    Q_EMIT LayoutChanged();
}

void CIEShellListCtrl::SayWhyEmpty()
{
    if (browser::IsSpecialPlace(list.Folder())) {
        emptyState->Show(QStringLiteral("folder"), Text(StringId::listSpecialPlace), {});
    } else if (list.State() == browser::FillState::failed) {
        const auto facts = platform::Os().files->FindFirstFile(list.Folder());
        // A file may have taken the folder's place.
        const bool missing =
            facts ? !facts->isFolder
                  : platform::Os().files->FindPresence(list.Folder()) == platform::Presence::missing;
        emptyState->Show(QStringLiteral("folder"),
                         Text(missing ? StringId::listFolderGone : StringId::listFolderForbidden),
                         Shown(list.Folder()) + QStringLiteral("\n") + Shown(list.FillError()));
    } else if (filler.IsReading() && Model().rowCount() == 0) {
        emptyState->Show(QStringLiteral("folder-open"), Text(StringId::listReading), {});
    } else if (list.Count() == 0) {
        const bool everything = list.Filter() == browser::kFilterAllFiles;
        emptyState->Show(everything ? QStringLiteral("folder-open") : QStringLiteral("photo"),
                         Text(everything                               ? StringId::listFolderEmpty
                              : list.Filter() == browser::kFilterVideo ? StringId::listNoVideos
                                                                       : StringId::listNoPictures),
                         everything ? QString() : Text(StringId::listOtherKinds));
    } else {
        emptyState->Show({}, {}, {});
    }
}

void CIEShellListCtrl::SetViewStyle(ViewStyle wanted)
{
    if (wanted == style)
        return;
    const bool hadFocus = View()->hasFocus();
    const bool hasItems = Model().rowCount() > 0;
    const int first = FirstVisible();
    const int current = View()->currentIndex().row();
    std::vector<std::pair<int, int>> ranges;
    for (const QItemSelectionRange& range : View()->selectionModel()->selection())
        ranges.emplace_back(range.top(), range.bottom());
    Model().Reset(false);
    style = wanted;
    if (View() == compact)
        compact->SetFlow(style == ViewStyle::list ? CCompactView::TopToBottom : CCompactView::LeftToRight);
    Model().Reset(hasItems);
    pages->setCurrentWidget(View());
    setFocusProxy(View());
    if (hadFocus)
        View()->setFocus();
    SelectRows(ranges, current);
    View()->scrollTo(Model().index(first, 0), QAbstractItemView::PositionAtTop);
    emptyState->raise();
    if (style != ViewStyle::thumbnails)
        filler.ReadFacts();
    Q_EMIT LayoutChanged();
    Q_EMIT StatusChanged();
    Q_EMIT WorkAppeared();
}

void CIEShellListCtrl::SetFilter(int mode, int includeFolders)
{
    if (!list.SetFilter(mode, includeFolders))
        return;
    Reread();
    Q_EMIT LayoutChanged();
}

void CIEShellListCtrl::SetFaded(const std::set<std::string>& paths)
{
    nameModel.SetFaded(paths);
    iconModel.SetFaded(paths);
    allModel.SetFaded(paths);
}

void CIEShellListCtrl::Activate(const QModelIndex& index)
{
    if (!index.isValid() || index.row() >= list.Count())
        return;
    const std::string path = list.PathOf(index.row());
    if (list.Item(index.row()).isFolder)
        Q_EMIT FolderActivated(path);
    else if ((list.Item(index.row()).types & browser::kTypesWithThumbnail) != 0)
        Q_EMIT PictureActivated(index.row());
    else
        platform::Os().shell->ShellExecute(path);
}

bool CIEShellListCtrl::ThumbnailStep()
{
    if (filler.IsReading())
        return false;
    const browser::StepOutcome outcome =
        list.ThumbnailStep(style == ViewStyle::thumbnails, thumbnails->Visible());
    if (outcome.redraw >= 0) {
        nameModel.ItemChanged(outcome.redraw);
        Q_EMIT ThumbnailMade();
    }
    if (!outcome.moreToDo) {
        // Those that failed change their looks, too.
        thumbnails->viewport()->update();
        Q_EMIT ThumbnailMade();
    }
    if (IsScreenComplete())
        filler.ReadFacts();
    return outcome.moreToDo;
}

bool CIEShellListCtrl::IsScreenComplete() const
{
    const auto visible = thumbnails->Visible();
    if (filler.IsReading())
        return false;
    if (style != ViewStyle::thumbnails || !visible)
        return true;
    for (int row = visible->first; row <= visible->last && row < list.Count(); ++row) {
        const browser::MediaItem& item = list.Item(row);
        if (item.needsThumbnail && !item.thumbnail && !item.thumbnailFailed)
            return false;
    }
    return true;
}

void CIEShellListCtrl::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    emptyState->setGeometry(rect());
    emptyState->raise();
}

}  // namespace ui
