// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CViewerBar: the controls of the large view and the line that tells of its picture.
#pragma once

#include <QKeyEvent>
#include <QLabel>
#include <QWidget>

#include <map>
#include <optional>

class QToolButton;

namespace ui
{

enum class ViewerAction {
    back,
    previous,
    next,
    pageUp,
    pageDown,
    first,
    last,
    zoomOut,
    zoomIn,
    whole,
    pixels,
    fullScreen,
    remove,
};

// What a key means in the large view.
std::optional<ViewerAction> ViewerActionOf(const QKeyEvent& event, Qt::LayoutDirection direction);

class CViewerBar : public QWidget
{
    Q_OBJECT

public:
    explicit CViewerBar(QWidget* parent = nullptr);

    // The name is shortened in its middle where room is short, the facts are not.
    void ShowText(const QString& name, const QString& facts);
    QString FactsText() const { return factsLabel->text(); }
    void SetFullScreen(bool on);
    QToolButton* Button(ViewerAction action) const { return buttons.at(action); }

Q_SIGNALS:
    void Chosen(ViewerAction action);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QToolButton* AddButton(ViewerAction action, const QString& drawing, const QString& text, Qt::Key key);
    void ShortenName();

    QString fullName;
    QLabel* nameLabel;
    QLabel* factsLabel;
    std::map<ViewerAction, QToolButton*> buttons;
};

}  // namespace ui
