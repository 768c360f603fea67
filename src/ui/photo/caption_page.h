// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CCaptionPage: the texts that the selected photos carry, and the name of a single one, to be edited.
//
// Where several files have different values the field is empty and says so. What the user has not touched is
// no part of the edits, so each file keeps its own.
#pragma once

#include "ui/controls/panel.h"
#include "ui/photo/photo_reader.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>

class QVBoxLayout;

namespace ui
{

struct PhotoEdits {
    photo::TextChange change;
    std::optional<std::string> newPath;  // of the one file that is renamed

    bool HasTexts() const { return change.caption || change.timeStamp || change.secondText; }
};

class CCaptionPage : public CPanel
{
    Q_OBJECT

public:
    explicit CCaptionPage(QWidget* parent = nullptr);

    // Shows what is stored. Fields that were touched keep what was typed, unless `afresh`.
    void Show(const PhotoQuestion& question, const PhotoInfo& info, bool afresh);
    // What is stored is as if these edits had been; `question` has the new name.
    void TakeAsStored(const PhotoQuestion& question, const PhotoEdits& edits);
    // Texts that could not be stored stand in their fields again.
    void PutBack(const photo::TextChange& change);
    // The captions to choose from.
    void Offer(const std::vector<std::string>& captions);
    void Revert();
    PhotoEdits Edits() const;
    bool IsEdited() const;
    // Whether no other text of several files, and no name, would be lost by the edits.
    bool IsHarmless() const;
    // What the user is told about the edits; may be empty.
    QString Note() const { return note->text(); }
    // What the caption field holds.
    std::string Caption() const { return caption->currentText().toStdString(); }
    // Why the name cannot be given; empty when it can, or is not changed. The name gets the focus.
    QString Objection();

Q_SIGNALS:
    void Edited();
    // Enter was pressed in a field.
    void Entered();

private:
    // What is stored of one of the texts.
    struct Stored {
        QString text;
        bool isSame = true;
    };
    struct Line {
        QLineEdit* field = nullptr;
        Stored stored;
        bool touched = false;
    };

    void BuildName(QVBoxLayout& column);
    void BuildStamp(QVBoxLayout& column);
    void CompareStored();
    void AddLabelled(QVBoxLayout& column, QLabel* label, QWidget* field);
    void Watch(Line& line);
    void ShowLine(Line& line);
    void ShowName();
    void ShowStamp();
    void OnStampState();
    void OnEdited();
    void ShowNote();
    std::optional<std::string> EditOf(const Line& line) const;
    std::optional<std::string> StampEdit() const;
    std::string NewPath() const;

    PhotoQuestion about;
    std::vector<photo::PhotoTexts> texts;
    std::vector<std::string> offered;
    platform::FileTime taken = 0;
    QLabel* nameLabel = nullptr;
    QLineEdit* name = nullptr;
    QLabel* ending = nullptr;
    QComboBox* caption = nullptr;
    QCheckBox* hasStamp = nullptr;
    QDateEdit* stamp = nullptr;
    QLabel* note = nullptr;
    Line captionLine;
    Line secondLine;
    Stored storedStamp;
};

}  // namespace ui
