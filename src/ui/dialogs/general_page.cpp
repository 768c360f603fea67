// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/general_page.h"

#include "browser/file_names.h"
#include "ui/background.h"
#include "ui/display_text.h"
#include "ui/media_list_model.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QLocale>

namespace ui
{

namespace
{

// Files looked at before the figures on show are brought up to date.
constexpr std::size_t kFilesOfStep = 2000;

QString SizeWithBytes(std::uint64_t bytes)
{
    const QString text = SizeText(bytes);
    const QString exact = Counted(StringId::propertiesBytes, static_cast<qint64>(bytes));
    return bytes < 1000 ? exact : Text(StringId::propertiesSizeAndBytes, text, exact);
}

QString KindOf(const std::string& path, const platform::FileFacts& facts)
{
    browser::MediaItem item;
    item.name = std::string(browser::FileName(path));
    item.isFolder = facts.isFolder;
    item.types = static_cast<std::uint8_t>(facts.isFolder ? 0 : browser::TypeBits(item.name));
    return TypeText(item);
}

// The folder that all of them lie in; empty when there is no such one.
std::string CommonFolder(const std::vector<std::string>& paths)
{
    const std::string_view folder = browser::FolderOf(paths.front());
    for (const std::string& path : paths) {
        if (browser::FolderOf(path) != folder)
            return {};
    }
    return std::string(folder);
}

}  // namespace

CGeneralPage::CGeneralPage(QWidget* parent) : CPropertyPage(parent), lines(new QFormLayout(this))
{
    setObjectName(QStringLiteral("general"));
    lines->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    lines->setHorizontalSpacing(4 * kGrid);
    lines->setVerticalSpacing(2 * kGrid);
    lines->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
}

QString CGeneralPage::Title() const
{
    return Text(StringId::propertiesGeneral);
}

QLabel* CGeneralPage::AddLine(platform::StringId name, const QString& value)
{
    auto* label = new QLabel(value, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    // A path stands at the same side as the other values, whatever its letters.
    label->setAlignment((isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::TabFocus);
    label->setAccessibleName(Text(name));
    label->setMinimumWidth(70 * kGrid);
    lines->addRow(Text(name), label);
    return label;
}

void CGeneralPage::Show(const std::vector<std::string>& paths)
{
    if (paths.size() == 1)
        ShowOne(paths.front());
    else
        ShowMany(paths);
}

void CGeneralPage::ShowOne(const std::string& path)
{
    AddLine(StringId::propertiesName, Shown(browser::FileName(path)));
    AddLine(StringId::propertiesFolder, Shown(browser::FolderOf(path)));
    InBackground(
        this, [path] { return app::DescribeFile(path); },
        [this, path](const app::FileDescription& description) { ShowDescription(path, description); });
}

void CGeneralPage::ShowDescription(const std::string& path, const app::FileDescription& description)
{
    if (!description.found) {
        AddLine(StringId::propertiesKind, Text(StringId::propertiesGone));
        return;
    }
    const platform::FileFacts& facts = description.facts;
    AddLine(StringId::propertiesKind, KindOf(path, facts));
    if (description.width > 0)
        AddLine(StringId::propertiesPixels,
                Text(StringId::propertiesWidthAndHeight, QLocale().toString(description.width),
                     QLocale().toString(description.height)));
    if (facts.isFolder) {
        StartCounting({path});
    } else {
        AddLine(StringId::propertiesSize, SizeWithBytes(facts.size));
        AddLine(StringId::propertiesCreated, TimeText(facts.creationTime));
        AddLine(StringId::propertiesChanged, TimeText(facts.lastWriteTime));
    }
}

void CGeneralPage::ShowMany(const std::vector<std::string>& paths)
{
    AddLine(StringId::propertiesName,
            Counted(StringId::propertiesSelected, static_cast<qint64>(paths.size())));
    const std::string folder = CommonFolder(paths);
    AddLine(StringId::propertiesFolder,
            folder.empty() ? Text(StringId::propertiesSeveralFolders) : Shown(folder));
    StartCounting(paths);
}

void CGeneralPage::StartCounting(const std::vector<std::string>& paths)
{
    contents = AddLine(StringId::propertiesContents, Text(StringId::propertiesCounting));
    size = AddLine(StringId::propertiesSize, {});
    changed = AddLine(StringId::propertiesChanged, {});
    Count(std::make_shared<app::CSelectionReader>(paths));
}

void CGeneralPage::Count(const std::shared_ptr<app::CSelectionReader>& reader)
{
    InBackground(
        this, [reader] { return reader->Step(kFilesOfStep); },
        [this, reader](bool more) {
            ShowTotals(reader->Totals(), !more);
            if (more)
                Count(reader);
        });
}

void CGeneralPage::ShowTotals(const app::SelectionTotals& totals, bool complete)
{
    const QString files = Counted(StringId::statusFiles, static_cast<qint64>(totals.files));
    QString text = files;
    if (totals.folders > 0)
        text = Text(StringId::statusFoldersAndFiles,
                    Counted(StringId::statusFolders, static_cast<qint64>(totals.folders)), files);
    if (!complete)
        text += QLatin1Char('\n') + Text(StringId::propertiesCounting);
    if (totals.unreadable > 0)
        text += QLatin1Char('\n') +
                Counted(StringId::propertiesUnreadable, static_cast<qint64>(totals.unreadable));
    contents->setText(text);
    size->setText(SizeWithBytes(totals.bytes));
    const QString oldest = TimeText(totals.oldest);
    const QString newest = TimeText(totals.newest);
    changed->setText(oldest == newest ? oldest : Text(StringId::propertiesFromTo, oldest, newest));
}

}  // namespace ui
