// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CCompactView: files as names with small icons, as many as fit: in rows that go on downwards ("Small
// Icons"), or in columns that go on sidewards ("List").
#pragma once

#include "ui/list/type_ahead.h"

#include <QListView>

namespace ui
{

class CCompactView : public QListView
{
    Q_OBJECT

public:
    explicit CCompactView(QWidget* parent = nullptr);

    // QListView::LeftToRight for rows, QListView::TopToBottom for columns.
    void SetFlow(Flow wanted);
    void keyboardSearch(const QString& search) override;

Q_SIGNALS:
    // The selected items are being dragged.
    void DragStarts();

protected:
    void startDrag(Qt::DropActions) override { Q_EMIT DragStarts(); }

private:
    CTypeAhead typeAhead;
};

}  // namespace ui
