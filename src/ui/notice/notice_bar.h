// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CNoticeBar: a quiet bar that says what has come and offers what can be done with it.
//
// It never takes the focus by itself; Tab reaches its buttons, and Escape on one of them closes it. Where the
// room is short the buttons go below the text, and below each other.
#pragma once

#include "app/commands.h"

#include <QLabel>
#include <QWidget>

#include <map>
#include <vector>

class QBoxLayout;
class QPushButton;

namespace ui
{

class CNoticeBar : public QWidget
{
    Q_OBJECT

public:
    struct Offer {
        app::CommandId command;
        QString text;
    };

    // Hidden until it has something to say. The Tab key comes to it from `before`.
    explicit CNoticeBar(QWidget& before);
    // `detail` may be empty. Told to screen readers unless the bar already says so.
    void Say(const QString& icon, const QString& sentence, const QString& detail);
    void SetOffers(const std::vector<Offer>& offers);
    QString Sentence() const { return sentenceLabel->text(); }
    // The buttons of the offers, in their order.
    const std::vector<QPushButton*>& Buttons() const { return buttons; }
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void Chosen(app::CommandId command);
    void Closed();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Build();
    void ShowIcon();
    void Arrange();
    void OrderTabs();

    QWidget& before;
    QString iconName;
    QLabel* iconLabel;
    QLabel* sentenceLabel;
    QLabel* detailLabel;
    QBoxLayout* column;  // the row with the text, and below it the buttons where they have no room in it
    QBoxLayout* row;
    QBoxLayout* choices;
    std::vector<QPushButton*> buttons;
};

}  // namespace ui
