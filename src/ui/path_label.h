// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPathLabel: the folder on show, its parents dim before it. What does not fit is left out from the left.
#pragma once

#include <QWidget>

#include <string>

namespace ui
{

class CPathLabel : public QWidget
{
    Q_OBJECT

public:
    explicit CPathLabel(QWidget* parent = nullptr);
    void SetPath(const std::string& path);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QStringList parents;
    QString name;
};

}  // namespace ui
