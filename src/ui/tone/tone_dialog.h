// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CToneDialog: what will come out of the chosen files and what they lose, before anything is written.
//
// The files are looked at on another thread, one after the other. With several files a list tells of each;
// below it stands all about the one that is current there. app::CToneConversion decides, this draws.
#pragma once

#include "app/tone_conversion.h"

#include <QDialog>

#include <map>

class QCheckBox;
class QDialogButtonBox;
class QGridLayout;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QTreeWidget;

namespace ui
{

class CButtonEx;

class CToneDialog : public QDialog
{
    Q_OBJECT

public:
    // At least one path.
    CToneDialog(std::vector<std::string> paths, QWidget* parent);
    bool IsPlanning() const { return conversion.NextToPlan() != nullptr; }
    void accept() override;

Q_SIGNALS:
    void Chosen(const std::vector<app::ToneOrder>& orders);

private:
    void MakeParts();
    void MakeTable();
    void Arrange(QDialogButtonBox* buttons);
    void AddLine(QGridLayout& grid, platform::StringId name, QLabel* value);
    void PlanNext();
    void Update();
    void ShowRow(std::size_t row);
    void ShowCurrent();
    void SetLine(QLabel* value, const QString& text);
    void ShowHalving();
    std::size_t CurrentRow() const;

    app::CToneConversion conversion;
    QLabel* sign;
    QLabel* summary;
    QTreeWidget* table;
    QLabel* source;
    QLabel* target;
    QLabel* size;
    QProgressBar* room;
    QLabel* content;
    std::map<QLabel*, QLabel*> names;  // beside each of these values
    QPlainTextEdit* losses;
    QCheckBox* halve;
    CButtonEx* ok = nullptr;
};

}  // namespace ui
