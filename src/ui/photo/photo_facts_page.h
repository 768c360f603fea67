// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPhotoFactsPage: name, folder, type, sizes and dates of the selection, as far as they can be told. Of one
// sound also what is in it, with a button that plays it.
#pragma once

#include "platform/string_ids.h"
#include "ui/controls/panel.h"
#include "ui/photo/photo_reader.h"
#include "ui/tone/tone_bar.h"

#include <QGridLayout>

#include <map>

namespace ui
{

class CPhotoFactsPage : public CPanel
{
    Q_OBJECT

public:
    explicit CPhotoFactsPage(QWidget* parent = nullptr);
    // What is known at once; the rest is said to be read.
    void Begin(const std::vector<std::string>& paths);
    void Show(const std::vector<std::string>& paths, const PhotoInfo& info);
    // The value beside a name as the user reads it; empty when the line is not shown.
    QString Value(platform::StringId name) const;
    CToneBar* Tone() const { return tone; }

private:
    void AddLine(platform::StringId name, QWidget* value);
    // An empty value hides the line.
    void Set(platform::StringId name, const QString& value);

    struct Line {
        QLabel* name = nullptr;
        QWidget* value = nullptr;
    };
    QGridLayout* grid;
    std::map<platform::StringId, Line> lines;
    CToneBar* tone;
};

}  // namespace ui
