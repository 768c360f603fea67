// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/photo/time_stamp_dialog.h"

#include "photo/local_time.h"
#include "ui/background.h"
#include "ui/controls/dialog_buttons.h"
#include "ui/controls/panel.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QRadioButton>
#include <QVBoxLayout>

#include <atomic>

namespace ui
{

namespace
{

using photo::TimeSource;

constexpr int kLookPeriod = 100;  // milliseconds

// The short forms of the user's language, with the whole year and with seconds.
QString DateForm()
{
    QString form = QLocale().dateFormat(QLocale::ShortFormat);
    return form.contains(QStringLiteral("yyyy")) ? form
                                                 : form.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
}

QString TimeForm()
{
    return QLocale().timeFormat(QLocale::ShortFormat).replace(QStringLiteral("mm"), QStringLiteral("mm:ss"));
}

QString ShownDate(const photo::ExifDate& date)
{
    return QLocale().toString(QDate(date.year, date.month, date.day), DateForm()) + QLatin1Char(' ') +
           QLocale().toString(QTime(date.hour, date.minute, date.second), TimeForm());
}

}  // namespace

struct CTimeStampDialog::Search {
    std::atomic<bool> stopped = false;
    std::atomic<int> looked = 0;
};

CTimeStampDialog::CTimeStampDialog(std::vector<std::string> paths, QWidget* parent)
    : QDialog(parent), files(std::move(paths)), search(std::make_shared<Search>()),
      what(new CStaticEx(Counted(StringId::stampWhat, static_cast<qint64>(files.size())), this)),
      creation(new QCheckBox(Text(StringId::stampCreation), this)),
      modified(new QCheckBox(Text(StringId::stampModified), this)), sources(new QButtonGroup(this)),
      date(new QDateEdit(QDate::currentDate(), this)), time(new QTimeEdit(QTime::currentTime(), this)),
      progress(new QProgressBar(this)), summary(new CStaticEx(this))
{
    setObjectName(QStringLiteral("TimestampDlg"));
    setWindowTitle(Text(StringId::stampTitle));
    MakeParts();
    MakePickers();
    Arrange(MakeButtons());
    Update();
    StartLooking();
}

CTimeStampDialog::~CTimeStampDialog()
{
    search->stopped = true;
}

void CTimeStampDialog::MakeParts()
{
    const struct {
        TimeSource source;
        StringId text;
        const char* name;
    } rows[] = {{TimeSource::created, StringId::stampFromCreation, "Radio_CreateTime"},
                {TimeSource::now, StringId::stampFromNow, "Radio_CurrentTime"},
                {TimeSource::exif, StringId::stampFromExif, "Radio_EXIF_Time"},
                {TimeSource::picked, StringId::stampFromPicked, "Radio_PickTime"}};
    for (const auto& row : rows) {
        auto* button = new QRadioButton(Text(row.text), this);
        button->setObjectName(QString::fromLatin1(row.name));
        sources->addButton(button, static_cast<int>(row.source));
    }
    connect(sources, &QButtonGroup::idClicked, this, [this](int id) { Decide(TimeSource(id)); });
    connect(creation, &QCheckBox::clicked, this, [this] {
        choice.ToggleCreation();
        Update();
    });
    connect(modified, &QCheckBox::clicked, this, [this] {
        choice.ToggleModified();
        Update();
    });
    QFont strong = what->font();
    strong.setWeight(QFont::DemiBold);
    what->setFont(strong);
    summary->setWordWrap(true);
    summary->setTextFormat(Qt::PlainText);
    summary->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    progress->setRange(0, static_cast<int>(files.size()));
    progress->setTextVisible(false);
    progress->setAccessibleName(Text(StringId::stampLooking));
    const std::pair<QWidget*, const char*> parts[] = {
        {what, "text"},        {creation, "Check_CreateTime"}, {modified, "Check_LastTime"},
        {date, "date_picker"}, {time, "time_picker"},          {progress, "progress"},
        {summary, "summary"}};
    for (const auto& [part, name] : parts)
        part->setObjectName(QString::fromLatin1(name));
}

void CTimeStampDialog::MakePickers()
{
    date->setDateRange(QDate(1601, 1, 1), QDate(9999, 12, 31));
    date->setCalendarPopup(true);
    date->setDisplayFormat(DateForm());
    date->setAccessibleName(Text(StringId::stampDate));
    date->setToolTip(Text(StringId::stampDate));
    // Qt would turn the order of the parts round, which clocks do in no language.
    time->setLayoutDirection(Qt::LeftToRight);
    time->setDisplayFormat(TimeForm());
    time->setAccessibleName(Text(StringId::stampTime));
    time->setToolTip(Text(StringId::stampTime));
    connect(date, &QDateEdit::dateChanged, this, [this] { Decide(TimeSource::picked); });
    connect(time, &QTimeEdit::timeChanged, this, [this] { Decide(TimeSource::picked); });
}

QDialogButtonBox* CTimeStampDialog::MakeButtons()
{
    auto* buttons = new QDialogButtonBox(this);
    ok = AddButton(*buttons, QDialogButtonBox::Ok, "Btn_Ok");
    ok->setDefault(true);
    AddButton(*buttons, QDialogButtonBox::Cancel, "Btn_Cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &CTimeStampDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void CTimeStampDialog::Arrange(QDialogButtonBox* buttons)
{
    auto* pickers = new QHBoxLayout;
    pickers->setSpacing(2 * kGrid);
    pickers->addSpacing(6 * kGrid);
    pickers->addWidget(date, 1);
    pickers->addWidget(time, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4 * kGrid, 4 * kGrid, 4 * kGrid, 4 * kGrid);
    column->setSpacing(kGrid);
    column->addWidget(what);
    column->addSpacing(kGrid);
    column->addWidget(creation);
    column->addWidget(modified);
    column->addSpacing(2 * kGrid);
    for (QAbstractButton* source : sources->buttons())
        column->addWidget(source);
    column->addLayout(pickers);
    column->addSpacing(2 * kGrid);
    column->addWidget(progress);
    column->addWidget(summary, 1);
    column->addSpacing(2 * kGrid);
    column->addWidget(buttons);
    setMinimumWidth(104 * kGrid);
    // Room for three lines, so that the buttons stay where they are.
    summary->setMinimumHeight(3 * fontMetrics().lineSpacing());
}

void CTimeStampDialog::StartLooking()
{
    lookTimer.setInterval(kLookPeriod);
    connect(&lookTimer, &QTimer::timeout, this, [this] { progress->setValue(search->looked); });
    lookTimer.start();
    InBackground(
        this,
        [paths = files, state = search] {
            return photo::FilesWithDate(paths, [&state] {
                ++state->looked;
                return !state->stopped;
            });
        },
        [this](std::vector<std::string> found) { OnFound(std::move(found)); });
}

void CTimeStampDialog::OnFound(std::vector<std::string> found)
{
    looking = false;
    lookTimer.stop();
    dated = std::move(found);
    const photo::CTimeStampChoice before = choice;
    choice = photo::CTimeStampChoice(!dated.empty());
    if (decided)
        choice.Choose(before.Source());
    if (before.ChangesModified())
        choice.ToggleModified();
    if (before.ChangesCreation())
        choice.ToggleCreation();
    const QLocale locale;
    sources->button(static_cast<int>(TimeSource::exif))
        ->setText(Text(StringId::stampFromExifIn, locale.toString(static_cast<qulonglong>(dated.size())),
                       locale.toString(static_cast<qulonglong>(files.size()))));
    Update();
}

void CTimeStampDialog::Decide(TimeSource source)
{
    decided = true;
    choice.Choose(source);
    Update();
}

void CTimeStampDialog::Update()
{
    creation->setEnabled(choice.CanChangeCreation());
    creation->setToolTip(choice.CanChangeCreation() ? QString() : Text(StringId::stampFromCreationTip));
    creation->setChecked(choice.ChangesCreation());
    modified->setChecked(choice.ChangesModified());
    sources->button(static_cast<int>(TimeSource::exif))->setEnabled(choice.OffersExif());
    sources->button(static_cast<int>(choice.Source()))->setChecked(true);
    date->setEnabled(choice.CanPick());
    time->setEnabled(choice.CanPick());
    progress->setVisible(looking);
    summary->setText(Summary());
    ok->setEnabled(CanApply());
}

bool CTimeStampDialog::CanApply() const
{
    return choice.CanApply() && (decided || !looking) &&
           (choice.Source() != TimeSource::picked || photo::LocalToFileTime(Picked()));
}

photo::ExifDate CTimeStampDialog::Picked() const
{
    const QDate day = date->date();
    const QTime hour = time->time();
    return {hour.second(), hour.minute(), hour.hour(), day.day(), day.month(), day.year()};
}

QString CTimeStampDialog::Value() const
{
    switch (choice.Source()) {
    case TimeSource::created:
        return Text(StringId::stampToCreation);
    case TimeSource::now:
        return Text(StringId::stampToNow);
    case TimeSource::exif:
        return Text(StringId::stampToExif);
    case TimeSource::picked:
        break;
    }
    // An hour that the clocks leave out in spring is shown as what becomes of it.
    const auto moment = photo::LocalToFileTime(Picked());
    return moment ? Shielded(ShownDate(photo::FileTimeToLocal(*moment))) : QString();
}

QString CTimeStampDialog::Summary() const
{
    if (looking && !decided)
        return Text(StringId::stampLooking);
    if (!choice.CanApply())
        return Text(StringId::stampNoFlag);
    const QString value = Value();
    if (value.isEmpty())
        return Text(StringId::stampNoDate);
    const bool isFromExif = choice.Source() == TimeSource::exif;
    const std::size_t count = isFromExif ? dated.size() : files.size();
    const StringId sets = !choice.ChangesCreation()   ? StringId::stampSetsModified
                          : !choice.ChangesModified() ? StringId::stampSetsCreation
                                                      : StringId::stampSetsBoth;
    QString text = Counted(sets, static_cast<qint64>(count)).arg(value);
    if (isFromExif && count < files.size())
        text += QLatin1Char('\n') + Counted(StringId::stampLeft, static_cast<qint64>(files.size() - count));
    return text;
}

void CTimeStampDialog::accept()
{
    if (!CanApply())
        return;
    photo::TimeStampRequest request;
    request.files = files;
    request.dated = dated;
    request.source = choice.Source();
    request.changeCreation = choice.ChangesCreation();
    request.changeModified = choice.ChangesModified();
    request.picked = Picked();
    Q_EMIT Chosen(request);
    QDialog::accept();
}

}  // namespace ui
