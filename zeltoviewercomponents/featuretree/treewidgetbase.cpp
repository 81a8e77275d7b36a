// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "treewidgetbase.h"

#include <QDataStream>
#include <QHeaderView>
#include <QIODevice>
#include <QTreeView>

TreeWidgetBase::TreeWidgetBase(QWidget *parent)
    : QWidget(parent)
{
}

TreeWidgetBase::~TreeWidgetBase() = default;

QByteArray TreeWidgetBase::saveState(int version)
{
    QByteArray state;
    const QTreeView *const tree = treeView();
    if (!tree) {
        return state;
    }
    const QHeaderView *const header = tree->header();
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream << static_cast<qint32>(version) << static_cast<qint32>(header->count());
    for (int section = 0; section < header->count(); ++section) {
        stream << static_cast<qint32>(header->sectionSize(section));
    }
    onSaveState(stream);
    return state;
}

bool TreeWidgetBase::restoreState(const QByteArray &state, int version)
{
    const QTreeView *const tree = treeView();
    if (state.isEmpty() || !tree) {
        return false;
    }
    QDataStream stream(state);
    qint32 storedVersion = 0;
    qint32 storedCount = 0;
    stream >> storedVersion >> storedCount;
    QHeaderView *const header = tree->header();
    if (stream.status() != QDataStream::Ok || storedVersion != version || storedCount != header->count()) {
        return false;
    }
    for (int section = 0; section < storedCount; ++section) {
        qint32 size = 0;
        stream >> size;
        if (stream.status() != QDataStream::Ok) {
            return false;
        }
        // The last section stretches to the width of the view, whatever it was before.
        if (section < storedCount - 1) {
            header->resizeSection(section, size);
        }
    }
    onRestoreState(stream);
    return true;
}

void TreeWidgetBase::onSaveState(QDataStream &) { }

void TreeWidgetBase::onRestoreState(QDataStream &) { }
