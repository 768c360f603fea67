// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/name_editor.h"

#include "browser/clash_names.h"
#include "browser/file_names.h"
#include "ui/files/name_text.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>

namespace ui
{

namespace
{
constexpr std::size_t kMostNameBytes = 255;
constexpr int kLeastWidth = 40 * kGrid;
}  // namespace

QString NameObjection(const std::string& name)
{
    if (name.empty())
        return Text(StringId::filesNameEmpty);
    if (!browser::IsValidFileName(name) || name.find('\0') != std::string::npos)
        return Text(StringId::filesNameForbidden);
    if (name == "." || name == "..")
        return Text(StringId::filesNameReserved);
    return name.size() > kMostNameBytes ? Text(StringId::filesNameTooLong) : QString();
}

void SelectStem(QLineEdit& line, bool isFolder)
{
    const std::string name = NameBytes(line.text());
    const auto kind = isFolder ? browser::NameKind::folder : browser::NameKind::file;
    const std::string_view ending = browser::NameEnding(name, kind);
    line.setSelection(0, static_cast<int>(line.text().size() - NameText(ending).size()));
}

CNameEditor::CNameEditor(const std::string& name, bool isFolder, const QRect& place, QWidget* parent)
    : QLineEdit(NameText(name), parent), former(name), message(new QLabel(parent))
{
    setObjectName(QStringLiteral("nameEditor"));
    setAccessibleName(Text(StringId::filesNameLabel));
    message->setWordWrap(true);
    message->setTextFormat(Qt::PlainText);
    message->setAutoFillBackground(true);
    message->setBackgroundRole(QPalette::ToolTipBase);
    message->setForegroundRole(QPalette::ToolTipText);
    message->setMargin(kGrid);
    message->hide();
    QRect box = place;
    box.setHeight(std::max(place.height(), sizeHint().height()));
    box.setWidth(std::max(place.width(), kLeastWidth));
    box.moveLeft(std::clamp(box.left(), 0, std::max(0, parent->width() - box.width())));
    box.moveTop(std::clamp(box.top(), 0, std::max(0, parent->height() - box.height())));
    setGeometry(box);
    SelectStem(*this, isFolder);
    connect(this, &QLineEdit::textEdited, this, [this] { message->hide(); });
    show();
    setFocus(Qt::OtherFocusReason);
}

QString CNameEditor::Message() const
{
    return message->isVisible() ? message->text() : QString();
}

bool CNameEditor::event(QEvent* event)
{
    // Enter, Escape and the arrows are the editor's, not the window's shortcuts.
    if (event->type() == QEvent::ShortcutOverride)
        event->accept();
    return QLineEdit::event(event);
}

void CNameEditor::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Close();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Accept();
    else
        QLineEdit::keyPressEvent(event);
    event->accept();
}

void CNameEditor::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    // A menu of the editor's own is not the end of it.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        Close();
}

void CNameEditor::Accept()
{
    const std::string name = NameBytes(text());
    if (name == former)
        return Close();
    QString reason = NameObjection(name);
    if (reason.isEmpty() && objection)
        reason = objection(name);
    if (!reason.isEmpty())
        return Refuse(reason);
    Close();
    Q_EMIT Accepted(name);
}

void CNameEditor::Refuse(const QString& reason)
{
    message->setText(reason);
    setAccessibleDescription(reason);
    message->setFixedWidth(width());
    message->adjustSize();
    const int below = geometry().bottom() + 1;
    const bool fits = below + message->height() <= parentWidget()->height();
    message->move(x(), fits ? below : y() - message->height());
    message->show();
    message->raise();
    if (QAccessible::isActive()) {
        QAccessibleEvent told(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&told);
    }
}

void CNameEditor::Close()
{
    if (closing)
        return;
    closing = true;
    if (hasFocus())
        parentWidget()->parentWidget()->setFocus(Qt::OtherFocusReason);
    hide();
    message->deleteLater();
    deleteLater();
}

}  // namespace ui
