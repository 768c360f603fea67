// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/select_source_dialog.h"

#include "platform/services.h"
#include "ui/background.h"
#include "ui/controls/dialog_buttons.h"
#include "ui/controls/panel.h"
#include "ui/display_text.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace ui
{

CSelectSourceDialog::CSelectSourceDialog(QWidget* parent)
    : QDialog(parent), what(new CStaticEx(Text(StringId::sourceLooking), this)), busy(new QProgressBar(this)),
      list(new QListWidget(this)), choose(nullptr)
{
    setObjectName(QStringLiteral("SelectSourceDlg"));
    setWindowTitle(Text(StringId::sourceTitle));
    what->setWordWrap(true);
    what->setBuddy(list);
    busy->setRange(0, 0);
    busy->setTextVisible(false);
    busy->setAccessibleName(Text(StringId::sourceLooking));
    list->setAccessibleName(Text(StringId::sourceTitle));
    list->setEnabled(false);
    auto* buttons = new QDialogButtonBox(this);
    choose = AddButton(*buttons, QDialogButtonBox::Ok, "ok");
    choose->setDefault(true);
    choose->setEnabled(false);
    AddButton(*buttons, QDialogButtonBox::Cancel, "cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &CSelectSourceDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(list, &QListWidget::itemDoubleClicked, this, &CSelectSourceDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(2 * kGrid);
    const std::pair<QWidget*, const char*> rows[] = {{what, "text"}, {busy, "progress"}, {list, "list"}};
    for (const auto& [row, name] : rows) {
        row->setObjectName(QString::fromLatin1(name));
        column->addWidget(row, row == list ? 1 : 0);
    }
    column->addWidget(buttons);
    resize(100 * kGrid, 70 * kGrid);
    InBackground(
        this,
        [manager = platform::Os().pictureSources] { return manager ? manager->Sources() : std::nullopt; },
        [this](std::optional<std::vector<platform::PictureSource>> found) { ShowSources(std::move(found)); });
}

void CSelectSourceDialog::ShowSources(std::optional<std::vector<platform::PictureSource>> found)
{
    looking = false;
    busy->hide();
    if (!found) {
        reject();
        Q_EMIT Failed();
        return;
    }
    sources = app::OfferedSources(std::move(*found));
    for (const platform::PictureSource& source : sources)
        list->addItem(Shown(source.name));
    list->setCurrentRow(app::DefaultSource(sources));
    list->setEnabled(!sources.empty());
    choose->setEnabled(!sources.empty());
    what->setText(Text(sources.empty() ? StringId::sourceNone : StringId::sourceChoose));
    if (!sources.empty())
        list->setFocus();
}

void CSelectSourceDialog::accept()
{
    if (list->currentRow() < 0)
        return;
    app::ChooseSource(sources[static_cast<std::size_t>(list->currentRow())]);
    QDialog::accept();
}

}  // namespace ui
