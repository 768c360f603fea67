// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CDetailsView: the files as a table of name, size, type, time and, where wanted, the date taken.
//
// Columns are moved and sized in the header; the name takes what the others leave until the user sizes it. A
// drag that begins beside a name, on a row that is not selected, draws a band over the rows to select.
#pragma once

#include "browser/list_order.h"
#include "ui/list/type_ahead.h"

#include <QTreeView>

#include <optional>

namespace ui
{

class CDetailsView : public QTreeView
{
    Q_OBJECT

public:
    explicit CDetailsView(QWidget* parent = nullptr);
    void setModel(QAbstractItemModel* model) override;

    // The arrow in the header.
    void ShowOrder(browser::SortOrder order);
    void SetDateTakenShown(bool on);
    bool IsDateTakenShown() const;
    // Whether a row is selected and shows its selection as a whole, or in its name alone.
    void SetRowSelection(bool on);
    bool RowSelection() const { return wholeRows; }
    void SetColumnSizing(bool on);
    bool ColumnSizing() const;
    // `shown`: column numbers from the first to the last; a column without a width gets a fitting one.
    void ArrangeColumns(const std::vector<int>& shown, const std::vector<std::optional<int>>& widths);
    // Where each column stands, and how wide it is; 0 for a name that takes what is left.
    std::vector<int> ColumnPositions() const;
    std::vector<int> ColumnWidths() const;

    QModelIndex indexAt(const QPoint& point) const override;
    void keyboardSearch(const QString& search) override;

Q_SIGNALS:
    void OrderChosen(browser::SortOrder order);
    void ColumnsChanged();
    // The header asks for its menu at that place of the screen.
    void HeaderMenuWanted(const QPoint& place);
    // The selected items are being dragged.
    void DragStarts();

protected:
    void startDrag(Qt::DropActions) override { Q_EMIT DragStarts(); }
    int sizeHintForColumn(int column) const override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void SetUpHeader();
    void OnSectionResized(int column);
    int FittingWidth(int column) const;
    void FitName();
    bool IsOnContent(const QPoint& point) const;

    CTypeAhead typeAhead;
    bool wholeRows = true;
    bool nameFits = true;  // the name takes what is left
    bool arranging = false;
    bool mayBand = false;  // the mouse button went down where a band may begin
    QPoint bandStart;      // in content coordinates
    QPoint bandEnd;        // in viewport coordinates
};

}  // namespace ui
