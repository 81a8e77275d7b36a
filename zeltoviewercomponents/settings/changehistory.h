// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "change.h"

#include <platform/parametercollection/iparameter.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QElapsedTimer>
#include <QHash>
#include <QModelIndex>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QUndoStack>

#include <memory>

class ChangeList;
class QAbstractItemModel;

/*! \brief What a user has changed of a camera, and the way back.
 *
 * An application connects FeatureTreeWidget::edited() to record(). Every write becomes a line of changes();
 * those that can be taken back become steps of undo. Writes to the same number with pauses under a second
 * between them, as when a slider is dragged, are one step. What a command that restores settings has
 * overwritten cannot be undone any more.
 *
 * Undoing and redoing write to the parameter first; a refusal is shown as any other, and the step stays where
 * it is. The history knows parameters as long as others keep them, and 100,000 lines and steps at most.
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT ChangeHistory : public QObject
{
    Q_OBJECT

public:
    enum Column { timeColumn, nameColumn, beforeColumn, afterColumn, resultColumn, columns };
    /*! The role of changes() by which each line tells the full name of its parameter; none for a file. */
    static constexpr int NameRole = Qt::UserRole;

    explicit ChangeHistory(QObject *parent = nullptr);
    ~ChangeHistory() override;

    /*! Returns the changes, the newest first, with the columns of Column. */
    QAbstractItemModel *changes() const;
    /*! Returns the line of changes() at \a index. */
    Change change(const QModelIndex &index) const;

    bool canUndo() const;
    bool canRedo() const;
    /*! Returns the name of what undo() takes back, empty when there is nothing. */
    QString undoText() const;
    /*! Returns the name of what redo() brings back, empty when there is nothing. */
    QString redoText() const;

    /*! Returns whether values are known to differ from those at the time of setUnmodified(). */
    bool isModified() const;

    /*! Writes \a text to \a parameter and records that. Returns whether the parameter took it. */
    bool write(const QSharedPointer<ParameterCollection::IParameter> &parameter, const QString &text);

public slots:
    /*! Records what FeatureTreeWidget::edited() tells. */
    void record(QSharedPointer<ParameterCollection::IParameter> parameter, QString before, QString after,
                QString refusal);
    /*! Takes the last step back. Returns false when there is none, or the parameter refused. */
    bool undo();
    /*! Brings the step back that was undone last. Returns false when there is none, or the parameter refused.
     */
    bool redo();
    /*! Takes the present values for those that isModified() compares with. */
    void setUnmodified();
    /*! Forgets all, as when the camera is closed. */
    void clear();

signals:
    /*! What can be undone and redone has changed. */
    void stepsChanged();
    void modifiedChanged(bool isModified);

private:
    class Step;
    using ChangePtr = std::shared_ptr<Change>;
    struct Departure
    {
        QString from;
        QString to;
    };

    bool merge(const Change &change);
    void push(const QSharedPointer<ParameterCollection::IParameter> &parameter, const ChangePtr &change);
    void recordCommand(const Change &change);
    bool move(bool back);
    void depart(const Change &change, const QString &from, const QString &to);
    void setModified(bool isModified);
    const Step *stepAt(int index) const;

    ChangeList *m_list;
    QUndoStack m_stack;
    QElapsedTimer m_sinceLast; // of m_mergeable
    ChangePtr m_mergeable; // may become one step with what comes next
    QHash<QString, Departure> m_departures; // from the values at setUnmodified(), by full name
    bool m_isModified = false;
    bool m_isLost = false; // what the values are compared to those at setUnmodified() is not known any more
};
