// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/job_dialog.h"

#include "ui/controls/dialog_buttons.h"
#include "ui/controls/panel.h"
#include "ui/display_text.h"
#include "ui/path_label.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui
{

namespace
{

constexpr int kWidth = 110 * kGrid;
constexpr int kSteps = 1000;

QString Heading(browser::FileTask task, std::size_t items)
{
    const auto count = static_cast<qint64>(items);
    switch (task) {
    case browser::FileTask::copy:
        return Counted(StringId::filesCopying, count);
    case browser::FileTask::move:
        return Counted(StringId::filesMoving, count);
    case browser::FileTask::trash:
        return Counted(StringId::filesTrashing, count);
    case browser::FileTask::remove:
        return Counted(StringId::filesRemoving, count);
    case browser::FileTask::rename:
        return items == 1 ? Text(StringId::filesRenaming) : Counted(StringId::filesRenamingAll, count);
    case browser::FileTask::changeTimes:
        return Counted(StringId::stampChanging, count);
    case browser::FileTask::setTexts:
        return Counted(StringId::captionStoring, count);
    case browser::FileTask::makeFolder:
        return Text(StringId::filesMakingFolder);
    case browser::FileTask::makePicture:
        return Text(StringId::filesMakingFile);
    case browser::FileTask::makeTones:
        return Counted(StringId::toneMaking, count);
    case browser::FileTask::removeFromHandset:
        return Text(StringId::handsetDeleting);
    case browser::FileTask::undo:
        return Counted(StringId::filesUndoing, count);
    }
    return {};
}

}  // namespace

CJobDialog::CJobDialog(QWidget* parent)
    : QDialog(parent), heading(new CStaticEx(this)), path(new CPathLabel(this)), bar(new QProgressBar(this)),
      more(new CStaticEx(this)), stop(nullptr)
{
    setObjectName(QStringLiteral("JobDlg"));
    auto* buttons = new QDialogButtonBox(this);
    stop = AddButton(*buttons, Text(StringId::filesCancel), QDialogButtonBox::RejectRole, "stop");
    connect(stop, &QPushButton::clicked, this, &CJobDialog::reject);
    bar->setRange(0, kSteps);
    bar->setTextVisible(false);
    bar->setAccessibleName(Text(StringId::filesProgress));
    QFont strong = heading->font();
    strong.setWeight(QFont::DemiBold);
    heading->setFont(strong);
    more->setForegroundRole(QPalette::PlaceholderText);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(2 * kGrid);
    const std::pair<QWidget*, const char*> rows[] = {
        {heading, "text"}, {path, "filename"}, {bar, "progress"}, {more, "waiting"}};
    for (const auto& [row, name] : rows) {
        row->setObjectName(QString::fromLatin1(name));
        column->addWidget(row);
    }
    column->addWidget(buttons);
    setFixedWidth(kWidth);
}

void CJobDialog::Show(browser::FileTask task, const browser::FileJobProgress& progress, std::size_t queued)
{
    const QString text = Heading(task, progress.items);
    heading->setText(text);
    setWindowTitle(text);
    path->SetPath(progress.path);
    bar->setValue(static_cast<int>(progress.fraction * kSteps));
    more->setText(queued == 0 ? QString() : Counted(StringId::filesWaiting, static_cast<qint64>(queued)));
    if (!isVisible())
        show();
}

void CJobDialog::Renew()
{
    stop->setEnabled(true);
    stop->setText(Text(StringId::filesCancel));
}

void CJobDialog::reject()
{
    // The dialog stays until the job has really ended.
    stop->setEnabled(false);
    stop->setText(Text(StringId::filesCancelling));
    Q_EMIT Cancelled();
}

}  // namespace ui
