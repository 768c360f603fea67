// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/photo/caption_page.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "platform/shell.h"
#include "ui/controls/dialog_skin.h"
#include "ui/display_text.h"
#include "ui/files/name_editor.h"
#include "ui/files/name_text.h"
#include "ui/photo/caption_losses.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QCompleter>
#include <QDateTime>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace ui
{

namespace
{

constexpr qsizetype kLongestPath = 260;    // characters
constexpr std::size_t kLongestName = 255;  // bytes
const QString kDayFormat = QStringLiteral("yyyy/MM/dd");

QDate DayOf(const QString& text)
{
    return QDate::fromString(text, kDayFormat);
}

QDate DayOf(platform::FileTime moment)
{
    constexpr qint64 kUnixEpoch = 11'644'473'600'000;  // milliseconds since that of file times
    return moment == 0
               ? QDate()
               : QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(moment / 10'000) - kUnixEpoch, Qt::UTC)
                     .date();
}

// Whether another file has that path. Another spelling of the own name is the same file where the file system
// does not tell case.
bool IsTaken(const std::string& path, const std::string& own)
{
    const auto there = platform::Os().shell->FindEntry(path);
    const auto here = platform::Os().shell->FindEntry(own);
    return there && !(here && here->stamp == there->stamp);
}

QString EndingOf(const std::string& path)
{
    const std::string_view extension = browser::Extension(path);
    return extension.empty() ? QString() : QLatin1Char('.') + NameText(extension);
}

QString StemOf(const std::string& path)
{
    return NameText(browser::FileName(path)).chopped(EndingOf(path).size());
}

}  // namespace

CCaptionPage::CCaptionPage(QWidget* parent) : CPanel(parent)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(kGrid);
    BuildName(*column);

    caption = new QComboBox(this);
    caption->setObjectName(QStringLiteral("caption"));
    caption->setEditable(true);
    caption->setInsertPolicy(QComboBox::NoInsert);
    caption->setToolTip(Text(StringId::captionTextTip));
    caption->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    caption->setMinimumContentsLength(8);
    // What is typed stays as it is typed.
    caption->completer()->setCaseSensitivity(Qt::CaseSensitive);
    caption->completer()->setCompletionMode(QCompleter::PopupCompletion);
    auto* captionLabel = new CStaticEx(Text(StringId::captionText), this);
    captionLabel->setObjectName(QStringLiteral("text1"));
    AddLabelled(*column, captionLabel, caption);
    captionLine.field = caption->lineEdit();
    captionLine.field->setAccessibleName(caption->accessibleName());
    Watch(captionLine);
    connect(caption, &QComboBox::textActivated, this, [this] {
        captionLine.touched = true;
        OnEdited();
    });

    BuildStamp(*column);
    secondLine.field = new QLineEdit(this);
    secondLine.field->setObjectName(QStringLiteral("second"));
    AddLabelled(*column, new QLabel(Text(StringId::captionSecond), this), secondLine.field);
    Watch(secondLine);

    note = new QLabel(this);
    note->setObjectName(QStringLiteral("note"));
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    column->addWidget(note);
    column->addStretch(1);
    new CDialogSkin(*this, "RollMgr/tab4.ini");
}

void CCaptionPage::AddLabelled(QVBoxLayout& column, QLabel* label, QWidget* field)
{
    label->setBuddy(field);
    field->setAccessibleName(label->text().remove(QLatin1Char('&')));
    column.addWidget(label);
    column.addWidget(field);
    column.addSpacing(2 * kGrid);
}

void CCaptionPage::BuildName(QVBoxLayout& column)
{
    nameLabel = new QLabel(Text(StringId::captionName), this);
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGrid);
    name = new QLineEdit(box);
    name->setObjectName(QStringLiteral("name"));
    ending = new QLabel(box);
    ending->setTextFormat(Qt::PlainText);
    row->addWidget(name, 1);
    row->addWidget(ending);
    // A name is read from the left, with its ending behind it, in every language.
    box->setLayoutDirection(Qt::LeftToRight);
    column.addWidget(nameLabel);
    column.addWidget(box);
    column.addSpacing(2 * kGrid);
    nameLabel->setBuddy(name);
    name->setAccessibleName(nameLabel->text().remove(QLatin1Char('&')));
    connect(name, &QLineEdit::textEdited, this, &CCaptionPage::OnEdited);
    connect(name, &QLineEdit::returnPressed, this, &CCaptionPage::Entered);
}

void CCaptionPage::BuildStamp(QVBoxLayout& column)
{
    hasStamp = new QCheckBox(Text(StringId::captionTimeStamp), this);
    hasStamp->setObjectName(QStringLiteral("text2"));
    hasStamp->setToolTip(Text(StringId::captionTimeStampTip));
    stamp = new QDateEdit(this);
    stamp->setObjectName(QStringLiteral("TimeStamp"));
    stamp->setDisplayFormat(kDayFormat);
    stamp->setCalendarPopup(true);
    stamp->setSpecialValueText(QStringLiteral(" "));
    stamp->setAccessibleName(Text(StringId::captionDay));
    column.addWidget(hasStamp);
    column.addWidget(stamp);
    column.addSpacing(2 * kGrid);
    connect(hasStamp, &QCheckBox::stateChanged, this, &CCaptionPage::OnStampState);
    connect(stamp, &QDateEdit::dateChanged, this, &CCaptionPage::OnEdited);
}

void CCaptionPage::Watch(Line& line)
{
    connect(line.field, &QLineEdit::textEdited, this, [this, &line] {
        line.touched = true;
        OnEdited();
    });
    connect(line.field, &QLineEdit::returnPressed, this, &CCaptionPage::Entered);
}

void CCaptionPage::Offer(const std::vector<std::string>& captions)
{
    if (captions == offered)
        return;
    offered = captions;
    const QString typed = caption->currentText();
    const QSignalBlocker quiet(caption);
    caption->clear();
    for (const std::string& each : captions)
        caption->addItem(QString::fromStdString(each));
    caption->setCurrentIndex(-1);
    caption->setEditText(typed);
}

void CCaptionPage::Show(const PhotoQuestion& question, const PhotoInfo& info, bool afresh)
{
    const bool stampKept = !afresh && StampEdit();
    const bool nameKept = !afresh && name->text() != StemOf(about.paths.front());
    about = question;
    texts = info.texts;
    taken = info.taken[0];
    CompareStored();
    for (Line* line : {&captionLine, &secondLine}) {
        line->touched = line->touched && !afresh;
        if (!line->touched)
            ShowLine(*line);
    }
    if (!stampKept)
        ShowStamp();
    if (!nameKept)
        ShowName();
    const bool carries = !texts.empty();
    for (QWidget* field : {static_cast<QWidget*>(caption), static_cast<QWidget*>(hasStamp),
                           static_cast<QWidget*>(secondLine.field)})
        field->setEnabled(carries);
    OnEdited();
}

void CCaptionPage::CompareStored()
{
    const auto stored = [this](std::string photo::PhotoTexts::*field) {
        Stored common;
        if (!texts.empty())
            common.text = QString::fromStdString(texts.front().*field);
        common.isSame = std::ranges::all_of(
            texts, [&](const photo::PhotoTexts& each) { return each.*field == texts.front().*field; });
        return common;
    };
    captionLine.stored = stored(&photo::PhotoTexts::caption);
    secondLine.stored = stored(&photo::PhotoTexts::secondText);
    storedStamp = stored(&photo::PhotoTexts::timeStamp);
}

void CCaptionPage::TakeAsStored(const PhotoQuestion& question, const PhotoEdits& edits)
{
    about = question;
    for (photo::PhotoTexts& each : texts) {
        each.caption = edits.change.caption.value_or(each.caption);
        each.timeStamp = edits.change.timeStamp.value_or(each.timeStamp);
        each.secondText = edits.change.secondText.value_or(each.secondText);
    }
    CompareStored();
    Revert();
}

void CCaptionPage::PutBack(const photo::TextChange& change)
{
    const auto putBack = [](Line& line, const std::optional<std::string>& text) {
        if (!text || line.touched)
            return;
        line.touched = true;
        line.field->setText(QString::fromStdString(*text));
    };
    putBack(captionLine, change.caption);
    putBack(secondLine, change.secondText);
    if (change.timeStamp && !StampEdit()) {
        hasStamp->setCheckState(change.timeStamp->empty() ? Qt::Unchecked : Qt::Checked);
        if (!change.timeStamp->empty())
            stamp->setDate(DayOf(QString::fromStdString(*change.timeStamp)));
    }
    OnEdited();
}

void CCaptionPage::Revert()
{
    captionLine.touched = false;
    secondLine.touched = false;
    ShowLine(captionLine);
    ShowLine(secondLine);
    ShowStamp();
    ShowName();
    OnEdited();
}

void CCaptionPage::ShowLine(Line& line)
{
    const QSignalBlocker quiet(line.field);
    line.field->setText(line.stored.isSame ? line.stored.text : QString());
    line.field->setCursorPosition(0);
}

void CCaptionPage::ShowName()
{
    const bool isOne = about.paths.size() == 1;
    nameLabel->setVisible(isOne);
    name->parentWidget()->setVisible(isOne);
    if (!isOne)
        return;
    name->setText(StemOf(about.paths.front()));
    name->setCursorPosition(0);
    ending->setText(EndingOf(about.paths.front()));
}

void CCaptionPage::ShowStamp()
{
    const QDate day = DayOf(storedStamp.text);
    // The third state of the box leaves each file the stamp that it has.
    const bool isOpen = !storedStamp.isSame || (!storedStamp.text.isEmpty() && !day.isValid());
    const QSignalBlocker quietBox(hasStamp);
    const QSignalBlocker quietDay(stamp);
    hasStamp->setTristate(isOpen);
    hasStamp->setCheckState(isOpen                       ? Qt::PartiallyChecked
                            : storedStamp.text.isEmpty() ? Qt::Unchecked
                                                         : Qt::Checked);
    stamp->setDate(!isOpen && day.isValid() ? day : stamp->minimumDate());
    stamp->setEnabled(hasStamp->checkState() == Qt::Checked);
}

void CCaptionPage::OnStampState()
{
    const bool isOn = hasStamp->checkState() == Qt::Checked;
    {
        const QSignalBlocker quiet(stamp);
        QDate day = DayOf(storedStamp.text);
        if (!day.isValid())
            day = DayOf(taken);
        if (!day.isValid())
            day = QDate::currentDate();
        stamp->setDate(isOn ? day : stamp->minimumDate());
        stamp->setEnabled(isOn);
    }
    OnEdited();
}

void CCaptionPage::OnEdited()
{
    for (const Line* line : {&captionLine, &secondLine}) {
        const bool isOpen = !line->stored.isSame && !line->touched;
        line->field->setPlaceholderText(isOpen ? Text(StringId::infoSeveral) : QString());
    }
    ShowNote();
    Q_EMIT Edited();
}

std::optional<std::string> CCaptionPage::EditOf(const Line& line) const
{
    if (!line.touched || (line.stored.isSame && line.field->text() == line.stored.text))
        return std::nullopt;
    return line.field->text().toStdString();
}

std::optional<std::string> CCaptionPage::StampEdit() const
{
    if (hasStamp->checkState() == Qt::PartiallyChecked)
        return std::nullopt;
    const bool isOn = hasStamp->checkState() == Qt::Checked && stamp->date() > stamp->minimumDate();
    const QString text = isOn ? stamp->date().toString(kDayFormat) : QString();
    if (storedStamp.isSame && text == storedStamp.text)
        return std::nullopt;
    return text.toStdString();
}

std::string CCaptionPage::NewPath() const
{
    const std::string_view folder = browser::FolderOf(about.paths.front());
    return browser::JoinPath(folder, NameBytes(name->text() + ending->text()));
}

PhotoEdits CCaptionPage::Edits() const
{
    PhotoEdits edits;
    if (!texts.empty())
        edits.change = {EditOf(captionLine), StampEdit(), EditOf(secondLine)};
    if (about.paths.size() == 1 && name->text() != StemOf(about.paths.front()))
        edits.newPath = NewPath();
    return edits;
}

bool CCaptionPage::IsEdited() const
{
    const PhotoEdits edits = Edits();
    return edits.HasTexts() || edits.newPath;
}

bool CCaptionPage::IsHarmless() const
{
    const PhotoEdits edits = Edits();
    return !edits.newPath && DescribeLosses(texts, edits.change).isEmpty();
}

QString CCaptionPage::Objection()
{
    const std::optional<std::string> path = Edits().newPath;
    if (!path)
        return {};
    const std::string newName(browser::FileName(*path));
    QString reason;
    if (!browser::IsValidFileName(NameBytes(name->text())))
        reason = Text(StringId::renameBadCharacters);
    else if (NameText(*path).size() > kLongestPath || newName.size() > kLongestName)
        reason = Text(StringId::renameTooLong);
    else if (name->text().isEmpty())
        reason = Text(StringId::filesNameEmpty);
    else if (reason = NameObjection(newName); reason.isEmpty() && IsTaken(*path, about.paths.front()))
        reason = Text(StringId::filesNameTaken, Shown(newName));
    if (!reason.isEmpty()) {
        name->setFocus(Qt::OtherFocusReason);
        name->selectAll();
    }
    return reason;
}

// What the edits do to whom, where that is not plain to see.
void CCaptionPage::ShowNote()
{
    QStringList lines;
    const PhotoEdits edits = Edits();
    if (texts.empty()) {
        lines.append(Text(StringId::captionNone));
    } else if (storedStamp.isSame && !edits.change.timeStamp && !storedStamp.text.isEmpty() &&
               !DayOf(storedStamp.text).isValid()) {
        lines.append(Text(StringId::captionOtherStamp, storedStamp.text));
    }
    const qsizetype all = static_cast<qsizetype>(texts.size());
    if (all > 1 && edits.HasTexts())
        lines.append(Counted(StringId::captionGives, all));
    lines.append(DescribeLosses(texts, edits.change));
    note->setText(lines.join(QLatin1Char('\n')));
}

}  // namespace ui
