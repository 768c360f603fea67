// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/file_mime.h"

#include <QSysInfo>

namespace ui
{

namespace
{

const QString kUriList = QStringLiteral("text/uri-list");
const QString kGnomeFiles = QStringLiteral("x-special/gnome-copied-files");
const QString kKdeCut = QStringLiteral("application/x-kde-cutselection");

// "file://" and the path's bytes, all but the plain ones as "%41".
QByteArray FileUri(const std::string& path)
{
    return "file://" + QByteArray::fromStdString(path).toPercentEncoding("/");
}

// The path of a file of this machine; empty for any other address.
std::string PathOfUri(QByteArray uri)
{
    uri = uri.trimmed();
    if (!uri.startsWith("file:"))
        return {};
    uri.remove(0, 5);
    if (uri.startsWith("//")) {
        const qsizetype slash = uri.indexOf('/', 2);
        const QByteArray host = uri.mid(2, slash < 0 ? -1 : slash - 2);
        if (slash < 0 ||
            !(host.isEmpty() || host == "localhost" || host == QSysInfo::machineHostName().toUtf8()))
            return {};
        uri.remove(0, slash);
    }
    const QByteArray path = QByteArray::fromPercentEncoding(uri);
    return path.startsWith('/') && !path.contains('\0') ? path.toStdString() : std::string();
}

std::vector<std::string> Paths(const QList<QByteArray>& lines)
{
    std::vector<std::string> paths;
    for (const QByteArray& line : lines) {
        if (std::string path = PathOfUri(line); !line.startsWith('#') && !path.empty())
            paths.push_back(std::move(path));
    }
    return paths;
}

}  // namespace

QMimeData* MakeFileMime(const FileTransfer& transfer)
{
    QByteArray list;
    QByteArray gnome = transfer.kind == TransferKind::move ? "cut" : "copy";
    for (const std::string& path : transfer.paths) {
        list += FileUri(path) + "\r\n";
        gnome += '\n' + FileUri(path);
    }
    auto* data = new QMimeData;
    data->setData(kUriList, list);
    data->setData(kGnomeFiles, gnome);
    data->setData(kKdeCut, transfer.kind == TransferKind::move ? "1" : "0");
    return data;
}

bool MayHoldFiles(const QMimeData& data)
{
    return data.hasFormat(kUriList) || data.hasFormat(kGnomeFiles);
}

FileTransfer ReadFileMime(const QMimeData& data)
{
    FileTransfer transfer;
    QList<QByteArray> gnome = data.data(kGnomeFiles).split('\n');
    const bool cut = gnome.takeFirst().trimmed() == "cut" || data.data(kKdeCut).startsWith('1');
    transfer.kind = cut ? TransferKind::move : TransferKind::copy;
    transfer.paths = Paths(data.data(kUriList).split('\n'));
    if (transfer.paths.empty())
        transfer.paths = Paths(gnome);
    return transfer;
}

}  // namespace ui
