// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CDropHandler: lets files be dropped onto a view, and tells where.
//
// Without a key held down, files of the receiver's own file system are moved and others copied; Ctrl copies
// and Shift moves. Near the upper and the lower edge the view scrolls; a folder of a tree opens when the
// mouse rests on it.
#pragma once

#include "ui/files/file_mime.h"

#include <QPersistentModelIndex>
#include <QTimer>

#include <functional>
#include <optional>

class QAbstractItemView;
class QDropEvent;

namespace ui
{

// How files go into a folder when they are dropped there.
TransferKind KindOfDrop(Qt::KeyboardModifiers keys, const std::vector<std::string>& paths,
                        const std::string& folder);

class CDropHandler : public QObject
{
    Q_OBJECT

public:
    // The folder at a point of the viewport, empty for none, and the item that shows it (none for all of the
    // view).
    struct Receiver {
        std::string folder;
        QModelIndex index;
    };

    CDropHandler(QAbstractItemView* itemView, std::function<Receiver(QPoint)> receiverAt);

Q_SIGNALS:
    void Dropped(const FileTransfer& transfer, const std::string& folder);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Consider(QDropEvent* event);
    void Drop(QDropEvent* event);
    void Leave();
    void Mark(const Receiver& receiver);
    void ScrollNear(QPoint point);

    QAbstractItemView* view;
    std::function<Receiver(QPoint)> find;
    FileTransfer carried;  // what is being dragged over the view
    QWidget* mark;
    QPersistentModelIndex hovered;
    QTimer opening;
    QTimer scrolling;
    int scrollStep = 0;
};

}  // namespace ui
