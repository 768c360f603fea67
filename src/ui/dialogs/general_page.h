// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CGeneralPage: name, place, kind, sizes and dates of one file, or what several of them come to.
#pragma once

#include "app/selection_reader.h"
#include "platform/string_ids.h"
#include "ui/dialogs/property_page.h"

#include <QFormLayout>
#include <QLabel>

namespace ui
{

class CGeneralPage : public CPropertyPage
{
    Q_OBJECT

public:
    explicit CGeneralPage(QWidget* parent = nullptr);
    QString Title() const override;
    void Show(const std::vector<std::string>& paths) override;

private:
    // A line of the form: a name, and a value that can be selected and copied.
    QLabel* AddLine(platform::StringId name, const QString& value);
    void ShowOne(const std::string& path);
    void ShowMany(const std::vector<std::string>& paths);
    void ShowDescription(const std::string& path, const app::FileDescription& description);
    void StartCounting(const std::vector<std::string>& paths);
    void Count(const std::shared_ptr<app::CSelectionReader>& reader);
    void ShowTotals(const app::SelectionTotals& totals, bool complete);

    QFormLayout* lines;
    QLabel* contents = nullptr;
    QLabel* size = nullptr;
    QLabel* changed = nullptr;
};

}  // namespace ui
