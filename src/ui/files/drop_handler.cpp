// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/drop_handler.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "platform/shell.h"
#include "ui/theme.h"

#include <QAbstractItemView>
#include <QDropEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTreeView>

#include <algorithm>

namespace ui
{

namespace
{

constexpr int kOpenAfter = 700;    // milliseconds that the mouse rests on a folder
constexpr int kScrollPeriod = 30;  // milliseconds
constexpr int kEdge = 6 * kGrid;

// The frame around what would receive the files.
class CMark : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor colour = CTheme::Colours().accent;
        painter.setPen(QPen(colour, 2));
        colour.setAlpha(30);
        painter.setBrush(colour);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kCornerRadius, kCornerRadius);
    }
};

bool AllLieIn(const std::vector<std::string>& paths, const std::string& folder)
{
    return std::ranges::all_of(paths,
                               [&](const std::string& path) { return browser::FolderOf(path) == folder; });
}

}  // namespace

TransferKind KindOfDrop(Qt::KeyboardModifiers keys, const std::vector<std::string>& paths,
                        const std::string& folder)
{
    if (keys & Qt::ControlModifier)
        return TransferKind::copy;
    if ((keys & Qt::ShiftModifier) || paths.empty())
        return TransferKind::move;
    const auto from = platform::Os().shell->FindEntry(paths.front());
    // Through "/." a link says what it leads to.
    const auto to = platform::Os().shell->FindEntry(browser::JoinPath(folder, "."));
    const bool same = from && to && from->stamp.device == to->stamp.device;
    return same ? TransferKind::move : TransferKind::copy;
}

CDropHandler::CDropHandler(QAbstractItemView* itemView, std::function<Receiver(QPoint)> receiverAt)
    : QObject(itemView), view(itemView), find(std::move(receiverAt)), mark(new CMark(itemView->viewport()))
{
    mark->setAttribute(Qt::WA_TransparentForMouseEvents);
    mark->hide();
    view->setAcceptDrops(true);
    view->viewport()->setAcceptDrops(true);
    view->viewport()->installEventFilter(this);
    opening.setSingleShot(true);
    opening.setInterval(kOpenAfter);
    scrolling.setInterval(kScrollPeriod);
    connect(&opening, &QTimer::timeout, this, [this] {
        if (auto* tree = qobject_cast<QTreeView*>(view); tree && hovered.isValid())
            tree->expand(hovered);
    });
    connect(&scrolling, &QTimer::timeout, this, [this] {
        QScrollBar* bar = view->verticalScrollBar();
        bar->setValue(bar->value() + scrollStep);
    });
}

bool CDropHandler::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != view->viewport())
        return false;
    switch (event->type()) {
    case QEvent::DragEnter:
        carried = ReadFileMime(*static_cast<QDropEvent*>(event)->mimeData());
        Consider(static_cast<QDropEvent*>(event));
        // What is not for this place may be for the next one: the moves must be heard.
        event->setAccepted(!carried.paths.empty());
        return true;
    case QEvent::DragMove:
        Consider(static_cast<QDropEvent*>(event));
        return true;
    case QEvent::DragLeave:
        Leave();
        return true;
    case QEvent::Drop:
        Drop(static_cast<QDropEvent*>(event));
        return true;
    default:
        return false;
    }
}

void CDropHandler::Consider(QDropEvent* event)
{
    const QPoint point = event->position().toPoint();
    ScrollNear(point);
    Receiver receiver = carried.paths.empty() ? Receiver{} : find(point);
    const TransferKind kind = KindOfDrop(event->modifiers(), carried.paths, receiver.folder);
    // Nothing would happen to what is there already, and a folder does not go into itself.
    if ((kind == TransferKind::move && AllLieIn(carried.paths, receiver.folder)) ||
        std::ranges::find(carried.paths, receiver.folder) != carried.paths.end())
        receiver = {};
    Mark(receiver);
    if (receiver.folder.empty()) {
        event->ignore();
        return;
    }
    const Qt::DropAction wanted = kind == TransferKind::copy ? Qt::CopyAction : Qt::MoveAction;
    event->setDropAction(event->possibleActions() & wanted ? wanted : Qt::CopyAction);
    event->accept();
}

void CDropHandler::Drop(QDropEvent* event)
{
    carried = ReadFileMime(*event->mimeData());
    Consider(event);
    const Receiver receiver = event->isAccepted() ? find(event->position().toPoint()) : Receiver{};
    const TransferKind kind = event->dropAction() == Qt::MoveAction ? TransferKind::move : TransferKind::copy;
    const FileTransfer transfer{kind, carried.paths};
    Leave();
    if (!receiver.folder.empty())
        Q_EMIT Dropped(transfer, receiver.folder);
}

void CDropHandler::Leave()
{
    carried = {};
    scrolling.stop();
    Mark({});
}

void CDropHandler::Mark(const Receiver& receiver)
{
    if (hovered != receiver.index) {
        hovered = receiver.index;
        opening.start();
    }
    if (!hovered.isValid())
        opening.stop();
    const QRect box = hovered.isValid() ? view->visualRect(hovered) : view->viewport()->rect();
    mark->setGeometry(box);
    mark->setVisible(!receiver.folder.empty());
}

void CDropHandler::ScrollNear(QPoint point)
{
    const int height = view->viewport()->height();
    scrollStep = point.y() < kEdge ? -kEdge / 2 : point.y() >= height - kEdge ? kEdge / 2 : 0;
    if (scrollStep == 0)
        scrolling.stop();
    else if (!scrolling.isActive())
        scrolling.start();
}

}  // namespace ui
