// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "filedrop.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

// Far beyond one path; a list that long is not even looked at.
constexpr qsizetype maximumPayload = 16384;

// Returns the one local, regular file, empty when the payload is anything else.
QString fileIn(const QMimeData *data)
{
    if (!data || !data->hasUrls() || data->data(QStringLiteral("text/uri-list")).size() > maximumPayload) {
        return {};
    }
    const QList<QUrl> urls = data->urls();
    // A host in a file's address would be looked for in the network.
    if (urls.size() != 1 || !urls.constFirst().isLocalFile() || !urls.constFirst().host().isEmpty()) {
        return {};
    }
    const QString fileName = urls.constFirst().toLocalFile();
    return QFileInfo(fileName).isFile() ? fileName : QString();
}

} // namespace

FileDrop::FileDrop(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    window->setAcceptDrops(true);
    qApp->installEventFilter(this);
}

FileDrop::~FileDrop() = default;

bool FileDrop::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) {
        return false;
    }
    const auto *const widget = qobject_cast<QWidget *>(watched);
    return widget && widget->window() == m_window && accept(static_cast<QDropEvent *>(event));
}

bool FileDrop::accept(QDropEvent *event)
{
    const QString fileName = fileIn(event->mimeData());
    if (fileName.isEmpty() || !event->possibleActions().testFlag(Qt::CopyAction)) {
        return false;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (event->type() == QEvent::Drop) {
        QMetaObject::invokeMethod(this, "dropped", Qt::QueuedConnection, Q_ARG(QString, fileName));
    }
    return true;
}
