// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/notice/notice_bar.h"

#include "ui/controls/button_ex.h"
#include "ui/icons.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

namespace ui
{

namespace
{

constexpr int kIconSide = 6 * kGrid;
constexpr int kCloseSide = 7 * kGrid;
constexpr int kAround = 12 * kGrid;     // margins and distances
constexpr int kTextWidth = 50 * kGrid;  // less than this for the text, and the buttons go below it

QLabel* MakeLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    // A name from left to right stands below the sentence all the same.
    label->setAlignment((parent->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                        Qt::AlignVCenter);
    return label;
}

}  // namespace

CNoticeBar::CNoticeBar(QWidget& widgetBefore)
    : before(widgetBefore), iconLabel(new QLabel(this)), sentenceLabel(MakeLabel(this)),
      detailLabel(MakeLabel(this)), column(new QVBoxLayout(this)), row(new QHBoxLayout),
      choices(new QHBoxLayout)
{
    setAccessibleName(Text(StringId::noticeBar));
    Build();
    hide();
}

void CNoticeBar::Build()
{
    detailLabel->setForegroundRole(QPalette::PlaceholderText);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch();
    texts->addWidget(sentenceLabel);
    texts->addWidget(detailLabel);
    texts->addStretch();
    auto* close = new QToolButton(this);
    close->setObjectName(QStringLiteral("close"));
    close->setIcon(ThemedIcon(QStringLiteral("close")));
    close->setIconSize({16, 16});
    close->setFixedSize(kCloseSide, kCloseSide);
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::TabFocus);
    close->setAccessibleName(Text(StringId::noticeClose));
    close->setToolTip(close->accessibleName());
    connect(close, &QToolButton::clicked, this, &CNoticeBar::Closed);
    choices->setSpacing(2 * kGrid);
    row->setSpacing(3 * kGrid);
    row->addWidget(iconLabel);
    row->addLayout(texts, 1);
    row->addLayout(choices);
    row->addWidget(close);
    column->setContentsMargins(4 * kGrid, 2 * kGrid, 2 * kGrid, 2 * kGrid);
    column->setSpacing(2 * kGrid);
    column->addLayout(row);
}

void CNoticeBar::Say(const QString& icon, const QString& sentence, const QString& detail)
{
    const bool isNew = isHidden() || sentence != sentenceLabel->text() || detail != detailLabel->text();
    iconName = icon;
    ShowIcon();
    sentenceLabel->setText(sentence);
    detailLabel->setText(detail);
    detailLabel->setVisible(!detail.isEmpty());
    setAccessibleDescription(detail.isEmpty() ? sentence : sentence + QLatin1Char(' ') + detail);
    show();
    if (isNew) {
        QAccessibleEvent told(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&told);
    }
}

void CNoticeBar::SetOffers(const std::vector<Offer>& offers)
{
    while (buttons.size() > offers.size()) {
        delete buttons.back();
        buttons.pop_back();
    }
    while (buttons.size() < offers.size()) {
        auto* button = new CButtonEx(this);
        button->setFocusPolicy(Qt::TabFocus);
        choices->addWidget(button);
        buttons.push_back(button);
    }
    for (std::size_t i = 0; i < offers.size(); ++i) {
        buttons[i]->setText(offers[i].text);
        buttons[i]->setMinimumSize(buttons[i]->sizeHint() + QSize(4 * kGrid, 0));
        disconnect(buttons[i], nullptr, this, nullptr);
        connect(buttons[i], &QPushButton::clicked, this,
                [this, command = offers[i].command] { Q_EMIT Chosen(command); });
    }
    OrderTabs();
    Arrange();
}

void CNoticeBar::OrderTabs()
{
    QWidget* last = &before;
    std::vector<QWidget*> stops(buttons.begin(), buttons.end());
    stops.push_back(findChild<QToolButton*>(QStringLiteral("close")));
    for (QWidget* stop : stops) {
        setTabOrder(last, stop);
        last = stop;
    }
}

void CNoticeBar::ShowIcon()
{
    iconLabel->setPixmap(IconPixmap(iconName, kIconSide, CTheme::Colours().text, devicePixelRatioF()));
}

// The bar takes the width that the list has.
QSize CNoticeBar::minimumSizeHint() const
{
    return {0, QWidget::minimumSizeHint().height()};
}

void CNoticeBar::Arrange()
{
    int together = 0;
    for (const QPushButton* button : buttons)
        together += button->minimumWidth() + choices->spacing();
    const int indent = kIconSide + row->spacing();
    const bool below = width() < kTextWidth + together + indent + kCloseSide + kAround;
    const bool stacked = below && width() < together + indent + kAround;
    choices->setDirection(stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    const int margin = below ? indent : 0;
    choices->setContentsMargins(isRightToLeft() ? 0 : margin, 0, isRightToLeft() ? margin : 0, 0);
    if (below != (column->indexOf(choices) >= 0)) {
        (below ? row : column)->removeItem(choices);
        choices->setParent(nullptr);
        below ? column->addLayout(choices) : row->insertLayout(2, choices);
        column->setAlignment(choices, Qt::AlignLeft);
    }
}

void CNoticeBar::resizeEvent(QResizeEvent*)
{
    Arrange();
}

void CNoticeBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const ThemeColours& colours = CTheme::Colours();
    painter.fillRect(rect(), colours.hover);
    painter.fillRect(QRect(0, height() - 1, width(), 1), colours.line);
}

void CNoticeBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && !iconName.isEmpty())
        ShowIcon();
    QWidget::changeEvent(event);
}

void CNoticeBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT Closed();
    else
        QWidget::keyPressEvent(event);
}

}  // namespace ui
