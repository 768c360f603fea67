// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/options_dialog.h"

#include "platform/services.h"
#include "ui/background.h"
#include "ui/controls/dialog_buttons.h"
#include "ui/controls/message_box.h"
#include "ui/controls/panel.h"
#include "ui/display_text.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace ui
{

COptionsDialog::COptionsDialog(std::string iniFolder, QWidget* parent)
    : QDialog(parent), programFolder(std::move(iniFolder)), values(app::LoadOptions(programFolder)),
      leftPhotos(new QButtonGroup(this)), search(new QLineEdit(this)), onlyPresent(new QCheckBox(this)),
      ports(new QListWidget(this)), portHint(new CStaticEx(this))
{
    setObjectName(QStringLiteral("OptionsDlg"));
    setWindowTitle(Text(StringId::optionsTitle));
    auto* buttons = new QDialogButtonBox(this);
    AddButton(*buttons, QDialogButtonBox::Ok, "ok")->setDefault(true);
    AddButton(*buttons, QDialogButtonBox::Cancel, "cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &COptionsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(4 * kGrid);
    column->addWidget(MakeCameraGroup());
    column->addWidget(MakePortGroup(), 1);
    column->addWidget(buttons);
    resize(120 * kGrid, 130 * kGrid);

    // The numbers alone until it is known what stands behind them.
    ShowPorts(app::ListPorts(programFolder, {}));
    platform::CSerialPorts* lines = platform::Os().serialPorts;
    if (lines)
        InBackground(
            this, [lines] { return lines->Ports(); },
            [this](const std::vector<platform::SerialPort>& found) {
                values.portPosition = Port();
                ShowPorts(app::ListPorts(programFolder, found));
            });
}

QWidget* COptionsDialog::MakeCameraGroup()
{
    auto* group = new QGroupBox(Text(StringId::optionsLeftPhotos), this);
    group->setObjectName(QStringLiteral("left_photos"));
    auto* column = new QVBoxLayout(group);
    const struct {
        int value;
        StringId text;
        const char* name;
    } choices[] = {{2, StringId::optionsAsk, "ask"},
                   {0, StringId::optionsKeep, "keep"},
                   {1, StringId::optionsDelete, "delete"}};
    for (const auto& choice : choices) {
        auto* button = new QRadioButton(Text(choice.text), group);
        button->setObjectName(QString::fromLatin1(choice.name));
        leftPhotos->addButton(button, choice.value);
        column->addWidget(button);
    }
    // A value that this version does not know stays as it is unless another is chosen.
    if (QAbstractButton* chosen = leftPhotos->button(values.delDscPhoto))
        chosen->setChecked(true);
    return group;
}

QWidget* COptionsDialog::MakePortGroup()
{
    auto* group = new QGroupBox(Text(StringId::optionsPort), this);
    group->setObjectName(QStringLiteral("port"));
    search->setPlaceholderText(Text(StringId::optionsSearch));
    search->setAccessibleName(Text(StringId::optionsSearch));
    search->setClearButtonEnabled(true);
    onlyPresent->setText(Text(StringId::optionsOnlyPresent));
    ports->setAccessibleName(Text(StringId::optionsPort));
    ports->setUniformItemSizes(true);
    ports->setTextElideMode(Qt::ElideMiddle);
    portHint->setWordWrap(true);
    connect(search, &QLineEdit::textChanged, this, &COptionsDialog::Filter);
    connect(onlyPresent, &QCheckBox::toggled, this, &COptionsDialog::Filter);
    connect(ports, &QListWidget::currentRowChanged, this, &COptionsDialog::Filter);
    connect(ports, &QListWidget::itemDoubleClicked, this, &COptionsDialog::accept);
    auto* column = new QVBoxLayout(group);
    column->setSpacing(2 * kGrid);
    const std::pair<QWidget*, const char*> rows[] = {
        {search, "search"}, {ports, "ports"}, {onlyPresent, "only_present"}, {portHint, "hint"}};
    for (const auto& [row, name] : rows) {
        row->setObjectName(QString::fromLatin1(name));
        column->addWidget(row, row == ports ? 1 : 0);
    }
    return group;
}

QString COptionsDialog::PortText(const app::PortEntry& entry) const
{
    const QString number = Shown(entry.text);
    if (entry.device.empty())
        return number;
    const QString device = Shown(entry.device);
    const QString what =
        entry.name.empty() ? device : Text(StringId::optionsNamed, Shown(entry.name), device);
    return Text(entry.present ? StringId::optionsPortWith : StringId::optionsPortAway, number, what);
}

void COptionsDialog::ShowPorts(std::vector<app::PortEntry> entries)
{
    shown = std::move(entries);
    const QSignalBlocker quiet(ports);
    ports->clear();
    for (const app::PortEntry& entry : shown)
        ports->addItem(PortText(entry));
    ports->setCurrentRow(values.portPosition);
    const bool any = std::ranges::any_of(shown, &app::PortEntry::present);
    onlyPresent->setChecked(any);
    onlyPresent->setEnabled(any);
    Filter();
}

void COptionsDialog::Filter()
{
    const QString wanted = search->text().trimmed();
    for (int row = 0; row < ports->count(); ++row) {
        const app::PortEntry& entry = shown[static_cast<std::size_t>(row)];
        const bool matches = wanted.isEmpty()
                                 ? !onlyPresent->isChecked() || entry.present
                                 : ports->item(row)->text().contains(wanted, Qt::CaseInsensitive);
        ports->item(row)->setHidden(!matches && row != ports->currentRow());
    }
    ports->scrollToItem(ports->currentItem());
    const int row = ports->currentRow();
    StringId hint = StringId::optionsNoPort;
    if (row >= 0) {
        const app::PortEntry& entry = shown[static_cast<std::size_t>(row)];
        hint = entry.proposed  ? StringId::optionsPortNew
               : entry.present ? StringId::optionsPortReady
                               : StringId::optionsPortMissing;
    }
    portHint->setText(Text(hint));
}

void COptionsDialog::accept()
{
    if (leftPhotos->checkedId() >= 0)
        values.delDscPhoto = leftPhotos->checkedId();
    values.portPosition = Port();
    const bool kept = app::KeepPort(programFolder, shown, values.portPosition);
    if (app::SaveOptions(programFolder, values) && kept)
        return QDialog::accept();
    auto* box = new CMessageBox(CMessageBox::Warning, windowTitle(), Text(StringId::optionsNotSaved), this);
    box->Add(CMessageBox::Ok);
    box->Open();
}

}  // namespace ui
