// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CDetailsView: the files as a table of name, size, type and time.
#pragma once

#include <QTreeView>

namespace ui
{

class CDetailsView : public QTreeView
{
    Q_OBJECT

public:
    explicit CDetailsView(QWidget* parent = nullptr);
    void setModel(QAbstractItemModel* model) override;

private:
    void SizeColumns();
};

}  // namespace ui
