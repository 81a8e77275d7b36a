// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "change.h"
#include "featuresettings.h"
#include "settingsreport.h"
#include "settingstask.h"

#include <platform/parametercollection/iparameter.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QElapsedTimer>
#include <QHash>
#include <QList>
#include <QModelIndex>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QUndoStack>

#include <memory>

class ChangeList;
class FeatureSelectors;
class QAbstractItemModel;
class SettingsApplier;

/*! \brief What a user has changed of a camera, and the way back.
 *
 * An application hands over the camera's node maps and connects FeatureTreeWidget::edited() to record().
 * Every write becomes a line of changes(); those that can be taken back become steps of undo. Writes to the
 * same number with pauses under a second between them, as when a slider is dragged, are one step. What a
 * command that restores settings has overwritten cannot be undone any more.
 *
 * Undoing and redoing write to the parameter first, under the selectors that held when it was changed; a
 * refusal is shown as any other, and the step stays where it is. The history holds the node maps until
 * clear(), and 100,000 lines and steps at most.
 *
 * \ingroup settings
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT ChangeHistory : public QObject
{
    Q_OBJECT

public:
    /*! \brief The columns of changes(). */
    enum Column { TimeColumn, NameColumn, BeforeColumn, AfterColumn, ResultColumn, ColumnCount };
    /*! The role of changes() by which each line tells the full name of its parameter; none for a file. */
    static constexpr int NameRole = Qt::UserRole;

    explicit ChangeHistory(QObject *parent = nullptr);
    ~ChangeHistory() override;

    /*! Begins the history of a camera with \a nodeMaps; forgets all that was before. */
    void open(const QList<SettingsNodeMap> &nodeMaps);

    /*! Returns the changes, the newest first, with the columns of Column. */
    QAbstractItemModel *changes() const;
    /*! Returns the line of changes() at \a index. */
    Change change(const QModelIndex &index) const;

    /*! Returns whether there is something that undo() takes back. */
    bool canUndo() const;
    /*! Returns whether there is something that redo() brings back. */
    bool canRedo() const;
    /*! Returns the name of what undo() takes back, empty when there is nothing. */
    QString undoText() const;
    /*! Returns the name of what redo() brings back, empty when there is nothing. */
    QString redoText() const;

    /*! Returns whether values are known to differ from those at the time of setUnmodified(). */
    bool isModified() const;

    /*! Records that \a settings were applied, which came from a file, or from elsewhere that \a name tells,
     * and takes what holds now for what isModified() compares with. \a former brings back what was before. */
    void recordApplied(const QString &name, const FeatureSettings &settings, const FeatureSettings &former,
                       const SettingsReport &report);
    /*! Takes settings that were applied for those that isModified() compares with. */
    void setUnmodified(const SettingsReport &report);
    /*! Writes the value that a line of changes() has in \a column, before or after, once more, under the same
     * selectors, and records that. Returns whether it was taken. */
    bool putBack(const QModelIndex &index, Column column);

public Q_SLOTS:
    /*! Records what FeatureTreeWidget::edited() tells. */
    void record(QSharedPointer<ParameterCollection::IParameter> parameter, QString before, QString after,
                QString refusal);
    /*! Takes the last step back; that of a file begins to, see taskCreated(). Returns false when there is
     * none, or the parameter refused. */
    bool undo();
    /*! Brings the step back that was undone last; as undo(). */
    bool redo();
    /*! Takes the present values for those that isModified() compares with. */
    void setUnmodified();
    /*! Forgets all, as when the camera is closed. */
    void clear();

Q_SIGNALS:
    /*! What can be undone and redone has changed. */
    void stepsChanged();
    /*! isModified() has changed. */
    void modifiedChanged(bool isModified);
    /*! The way back from a file is \a task, which begins right after this; the step moves when it has
     * succeeded. */
    void taskCreated(SettingsTask *task);

private Q_SLOTS:
    void onTaskFinished();

private:
    class Step;
    class ValueStep;
    class FileStep;
    using ChangePtr = std::shared_ptr<Change>;
    struct Departure
    {
        QString from;
        QString to;
    };

    Change newChange(const ParameterCollection::IParameter &parameter) const;
    void add(const QSharedPointer<ParameterCollection::IParameter> &parameter, const Change &change);
    void recordCommand(const Change &change);
    bool merge(const Change &change);
    QString knownValue(const Change &feature) const;
    void skipVoidSteps(bool back);
    bool move(bool back);
    void begin(const FileStep &step, bool back);
    void finishMove(bool back);
    void depart(const Change &change, const QString &from, const QString &to);
    void setModified(bool isModified);
    const Step &nextStep(bool back) const;

    ChangeList *m_list;
    std::unique_ptr<FeatureSelectors> m_selectors;
    QList<SettingsNodeMap> m_nodeMaps;
    QUndoStack m_stack;
    QElapsedTimer m_sinceLast; // of m_mergeable
    ChangePtr m_mergeable; // may become one step with what comes next
    std::unique_ptr<SettingsApplier> m_task; // on the way back from a file
    bool m_isTaskBack = false;
    ChangePtr m_taskChange; // whose step moves at the end
    QHash<QString, Departure> m_departures; // from the values at setUnmodified(), by full name and selectors
    bool m_isModified = false;
    bool m_isLost = false; // what values are, compared to those at setUnmodified(), is not known any more
};
