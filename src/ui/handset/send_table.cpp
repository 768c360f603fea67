// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/handset/send_table.h"

#include "browser/file_names.h"
#include "handset/handset_fetch.h"
#include "sound/tune_conversion.h"
#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

namespace ui
{

namespace
{

using handset::Change;
using handset::SendPlan;
using handset::SendVerdict;

constexpr int kIconSide = 16;
enum Column { fileColumn, sentAsColumn, placeColumn, sizeColumn, noteColumn };

QString NameOf(std::string_view path)
{
    return Shielded(Shown(browser::FileName(path)));
}

QString BytesText(std::uint64_t bytes)
{
    return QLocale().toString(static_cast<qulonglong>(bytes));
}

QString ArchiveName(const SendPlan& plan)
{
    const std::string_view name = browser::FileName(plan.source);
    return NameOf(std::string(name.substr(0, name.size() - browser::Extension(name).size())) + "jar");
}

QString ChangeNote(const SendPlan& plan)
{
    switch (plan.prepared.change) {
    case Change::fitted:
        return Text(StringId::handsetFitted, QString::number(plan.prepared.size.width),
                    QString::number(plan.prepared.size.height));
    case Change::jpeg:
        return Text(StringId::handsetAsJpeg);
    case Change::smaf:
        return plan.prepared.leftOut.empty()
                   ? Text(StringId::handsetAsSmaf)
                   : Text(StringId::handsetAsSmaf) + QStringLiteral(" · ") + Text(StringId::toneNoteLossy);
    case Change::none:
        break;
    }
    if (!plan.prepared.problem.empty())
        return Text(StringId::handsetTuneKept, Shown(plan.prepared.problem));
    if (!plan.archive.empty())
        return Text(StringId::handsetWithArchive, NameOf(plan.archive));
    return Text(plan.isKnownKind ? StringId::handsetUnchanged : StringId::handsetOtherKind);
}

QString NoteOf(const SendPlan& plan)
{
    switch (plan.verdict) {
    case SendVerdict::good:
        return ChangeNote(plan);
    case SendVerdict::badDescriptor:
        return plan.descriptor == handset::DescriptorFault::noArchive
                   ? Text(StringId::handsetArchiveMissing, ArchiveName(plan))
                   : Text(StringId::handsetDescriptorBad);
    case SendVerdict::tooLong:
        return Text(StringId::handsetTooLong, BytesText(sound::kLongestRingTone));
    case SendVerdict::notAFile:
        return Text(StringId::handsetNotAFile);
    case SendVerdict::gone:
        return Text(StringId::handsetGone);
    case SendVerdict::notReady:
        return Text(StringId::handsetNotPrepared, Shown(plan.prepared.problem));
    }
    return {};
}

}  // namespace

CSendTable::CSendTable(std::vector<std::string> files, QWidget* parent)
    : QTreeWidget(parent), paths(handset::WithoutArchives(std::move(files)))
{
    setObjectName(QStringLiteral("files"));
    setAccessibleName(Text(StringId::handsetTable));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideMiddle);
    QStringList headings;
    for (const StringId text : {StringId::handsetFile, StringId::handsetSentAs, StringId::handsetPlace,
                                StringId::handsetSize, StringId::handsetNote})
        headings.append(Text(text));
    setHeaderLabels(headings);
    header()->setStretchLastSection(true);
    setIconSize({kIconSide, kIconSide});
    const int widths[] = {36 * kGrid, 32 * kGrid, 24 * kGrid};
    for (int column = 0; column < sizeColumn; ++column)
        header()->resizeSection(column, widths[column]);
    header()->setSectionResizeMode(sizeColumn, QHeaderView::ResizeToContents);
    QList<QTreeWidgetItem*> rows;
    for (const std::string& path : paths) {
        auto* item = new QTreeWidgetItem;
        item->setText(fileColumn, NameOf(path));
        item->setCheckState(fileColumn, Qt::Unchecked);
        item->setText(noteColumn, Text(StringId::handsetWaiting));
        item->setTextAlignment(sizeColumn, Qt::AlignRight | Qt::AlignVCenter);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        rows.append(item);
    }
    addTopLevelItems(rows);
    setCurrentItem(topLevelItem(0));
    connect(this, &QTreeWidget::itemChanged, this, &CSendTable::ChoiceChanged);
}

void CSendTable::SetNote(std::size_t row, const QString& note, bool isWarning)
{
    QTreeWidgetItem& item = *topLevelItem(static_cast<int>(row));
    item.setText(noteColumn, note);
    item.setToolTip(noteColumn, note);
    item.setIcon(noteColumn, isWarning ? ThemedIcon(QStringLiteral("warning")) : QIcon());
}

void CSendTable::Take(SendPlan plan)
{
    const QSignalBlocker quiet(this);
    const std::size_t row = plans.size();
    QTreeWidgetItem& item = *topLevelItem(static_cast<int>(row));
    item.setCheckState(fileColumn, plan.IsSent() ? Qt::Checked : Qt::Unchecked);
    if (plan.IsSent()) {
        item.setFlags(item.flags() | Qt::ItemIsUserCheckable);
        item.setText(sentAsColumn, Shielded(Shown(plan.sentAs)));
        item.setText(placeColumn, Text(handset::CategoryTitle(plan.type)));
    }
    if (plan.verdict != SendVerdict::gone && plan.verdict != SendVerdict::notAFile)
        item.setText(sizeColumn, SizeText(plan.size));
    SetNote(row, NoteOf(plan), plan.verdict != SendVerdict::good);
    plans.push_back(std::move(plan));
}

bool CSendTable::IsChosen(std::size_t row) const
{
    return row < plans.size() && plans[row].IsSent() &&
           topLevelItem(static_cast<int>(row))->checkState(fileColumn) == Qt::Checked;
}

std::vector<std::string> CSendTable::Chosen() const
{
    std::vector<std::string> chosen;
    for (std::size_t row = 0; row < plans.size(); ++row) {
        if (IsChosen(row))
            chosen.push_back(paths[row]);
    }
    return chosen;
}

std::uint64_t CSendTable::ChosenBytes() const
{
    std::uint64_t bytes = 0;
    for (std::size_t row = 0; row < plans.size(); ++row)
        bytes += IsChosen(row) ? plans[row].size : 0;
    return bytes;
}

bool CSendTable::HasWarnings() const
{
    return std::ranges::any_of(plans, [](const SendPlan& plan) { return plan.verdict != SendVerdict::good; });
}

void CSendTable::SetTickable(bool on)
{
    const QSignalBlocker quiet(this);
    for (std::size_t row = 0; row < plans.size(); ++row) {
        QTreeWidgetItem& item = *topLevelItem(static_cast<int>(row));
        if (plans[row].IsSent())
            item.setFlags(item.flags().setFlag(Qt::ItemIsUserCheckable, on));
    }
}

void CSendTable::BeginRun()
{
    running.clear();
    for (std::size_t row = 0; row < plans.size(); ++row) {
        if (IsChosen(row))
            running.push_back(row);
    }
    SetTickable(false);
}

void CSendTable::ShowUnderWay(int number)
{
    const QSignalBlocker quiet(this);
    const std::size_t row = running[static_cast<std::size_t>(number - 1)];
    SetNote(row, Text(StringId::handsetUnderWay), false);
    scrollToItem(topLevelItem(static_cast<int>(row)));
    viewport()->update();
}

void CSendTable::ShowEnd(int number, const handset::TransferredFile& file)
{
    const QSignalBlocker quiet(this);
    const bool isSent = file.result == platform::kHandsetDone;
    SetNote(running[static_cast<std::size_t>(number - 1)],
            Text(isSent ? StringId::handsetIsSent : StringId::handsetIsNotSent), !isSent);
    viewport()->update();
}

void CSendTable::EndRun()
{
    SetTickable(true);
}

}  // namespace ui
