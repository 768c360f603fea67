// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/photo/photo_facts_page.h"

#include "browser/file_names.h"
#include "ui/display_text.h"
#include "ui/media_list_model.h"
#include "ui/theme.h"
#include "ui/tone/tone_text.h"
#include "ui/words.h"

#include <QLineEdit>
#include <QLocale>

#include <algorithm>

namespace ui
{

namespace
{

using FileTimes = std::array<platform::FileTime, 2>;

QString NameOf(const std::vector<std::string>& paths)
{
    return paths.size() == 1 ? Shown(browser::FileName(paths.front()))
                             : Counted(StringId::propertiesSelected, static_cast<qint64>(paths.size()));
}

QString FolderTextOf(const std::vector<std::string>& paths)
{
    const std::string_view folder = browser::FolderOf(paths.front());
    const bool isSame = std::ranges::all_of(
        paths, [folder](const std::string& path) { return browser::FolderOf(path) == folder; });
    return isSame ? Shown(folder) : Text(StringId::propertiesSeveralFolders);
}

QString KindText(const std::string& path, const PhotoInfo& info)
{
    if (!info.types.isSame)
        return Text(StringId::infoSeveral);
    browser::MediaItem item;
    item.name = std::string(browser::FileName(path));
    item.isFolder = info.file.facts.isFolder;
    item.types = static_cast<std::uint8_t>(item.isFolder ? 0 : info.types.value);
    return TypeText(item);
}

QString PixelText(const PhotoInfo& info)
{
    if (!info.pixels.isSame)
        return Text(StringId::infoSeveral);
    const platform::Extent size = info.pixels.value;
    return size.width == 0 ? QString()
                           : Text(StringId::propertiesWidthAndHeight, QLocale().toString(size.width),
                                  QLocale().toString(size.height));
}

QString SizeTextOf(const PhotoInfo& info, bool isAll)
{
    if (!isAll)
        return Text(StringId::infoAndMore, SizeText(info.bytes));
    const QString exact = Counted(StringId::propertiesBytes, static_cast<qint64>(info.bytes));
    return info.bytes < 1000 ? exact : Text(StringId::propertiesSizeAndBytes, SizeText(info.bytes), exact);
}

QString RangeText(const FileTimes& range, QString (*text)(platform::FileTime))
{
    const QString first = text(range[0]);
    const QString last = text(range[1]);
    return first == last ? first : Text(StringId::propertiesFromTo, first, last);
}

// At the side where the window's texts begin, whatever the value's own letters or digits are.
Qt::Alignment OwnSide(const QWidget& value)
{
    return (value.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
}

// A value of one line, however long: it can be walked through, selected and copied.
QLineEdit* MakeLongValue(QWidget* parent)
{
    auto* line = new QLineEdit(parent);
    line->setReadOnly(true);
    line->setFrame(false);
    line->setFixedHeight(QFontMetrics(line->font()).height() + 2);
    QPalette palette = line->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    line->setPalette(palette);
    line->setAlignment(OwnSide(*line));
    return line;
}

QLabel* MakeValue(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(OwnSide(*label) | Qt::AlignVCenter);
    // As far from its edge as the text of a field.
    label->setContentsMargins(2, 0, 2, 0);
    label->setMinimumHeight(QFontMetrics(label->font()).height() + 2);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::TabFocus);
    return label;
}

}  // namespace

CPhotoFactsPage::CPhotoFactsPage(QWidget* parent)
    : CPanel(parent), grid(new QGridLayout(this)), tone(new CToneBar(this))
{
    grid->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    grid->setHorizontalSpacing(3 * kGrid);
    grid->setVerticalSpacing(2 * kGrid);
    grid->setColumnStretch(1, 1);
    AddLine(StringId::infoName, MakeLongValue(this));
    AddLine(StringId::infoFolder, MakeLongValue(this));
    using enum StringId;
    AddLine(infoKind, MakeValue(this));
    for (const auto& [name, value] : LinesOf({}))
        AddLine(name, MakeValue(this));
    for (const StringId name : {infoPixels, infoSize, infoTaken, infoCreated, infoModified})
        AddLine(name, MakeValue(this));
    grid->addWidget(tone, grid->rowCount(), 0, 1, 2);
    grid->setRowStretch(grid->rowCount(), 1);
}

void CPhotoFactsPage::AddLine(StringId name, QWidget* value)
{
    auto* label = new QLabel(Text(name), this);
    label->setMinimumHeight(value->minimumHeight());
    value->setAccessibleName(Text(name));
    value->setMinimumWidth(20 * kGrid);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0, Qt::AlignTop);
    grid->addWidget(value, row, 1, Qt::AlignTop);
    lines.emplace(name, Line{label, value});
}

void CPhotoFactsPage::Set(StringId name, const QString& value)
{
    const Line& shown = lines.at(name);
    if (auto* line = qobject_cast<QLineEdit*>(shown.value)) {
        line->setText(value);
        line->setCursorPosition(0);
        line->setToolTip(value);
    } else if (auto* label = qobject_cast<QLabel*>(shown.value)) {
        label->setText(value);
    }
    shown.name->setVisible(!value.isEmpty());
    shown.value->setVisible(!value.isEmpty());
}

QString CPhotoFactsPage::Value(StringId name) const
{
    const QWidget* shown = lines.at(name).value;
    const auto* line = qobject_cast<const QLineEdit*>(shown);
    return line ? line->text() : qobject_cast<const QLabel*>(shown)->text();
}

void CPhotoFactsPage::Begin(const std::vector<std::string>& paths)
{
    for (const auto& [name, line] : lines)
        Set(name, {});
    Set(StringId::infoName, NameOf(paths));
    Set(StringId::infoFolder, FolderTextOf(paths));
    Set(StringId::infoKind, Text(StringId::infoReading));
}

void CPhotoFactsPage::Show(const std::vector<std::string>& paths, const PhotoInfo& info)
{
    Begin(paths);
    tone->Show(paths.front(), info.tone, info.toneNeeds);
    for (const auto& [name, value] : LinesOf(info.tone))
        Set(name, value);
    if (!info.found)
        return Set(StringId::infoKind, Text(StringId::propertiesGone));
    Set(StringId::infoKind, KindText(paths.front(), info));
    Set(StringId::infoPixels, PixelText(info));
    if (!(paths.size() == 1 && info.file.facts.isFolder))
        Set(StringId::infoSize, SizeTextOf(info, info.looked == paths.size()));
    Set(StringId::infoTaken, RangeText(info.taken, ClockText));
    Set(StringId::infoCreated, RangeText(info.created, TimeText));
    Set(StringId::infoModified, RangeText(info.modified, TimeText));
}

}  // namespace ui
