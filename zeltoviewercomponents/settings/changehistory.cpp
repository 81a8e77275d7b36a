// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "changehistory.h"

#include "changelist_p.h"
#include "unansweredwrites_p.h"

#include <platform/core/guard.h>
#include <zeltoviewercomponents/errorhandling/messagefunctions.h>

#include <QDateTime>
#include <QUndoCommand>
#include <QWeakPointer>

#include <algorithm>
#include <array>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.components.settings.changeHistory")

namespace {

constexpr int mostChanges = 100'000;
constexpr qint64 longestPause = 1000; // in milliseconds, inside a step

// After these nobody knows what the values are.
bool overwritesSettings(const QString &command)
{
    static constexpr std::array names{
        QLatin1String("UserSetLoad"),         QLatin1String("DeviceReset"),
        QLatin1String("DeviceFactoryReset"),  QLatin1String("FactoryReset"),
        QLatin1String("DeviceSettingsReset"), QLatin1String("SequencerSetLoad"),
    };
    const QString name = command.section(QLatin1Char('/'), -1);
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool isNumber(ParameterType type)
{
    return type == ParameterType::Integer || type == ParameterType::Float;
}

} // namespace

/*! \brief A change that can be taken back. The writing is done before the stack moves, not by it. */
class ChangeHistory::Step : public QUndoCommand
{
public:
    Step(const QSharedPointer<IParameter> &parameter, const ChangePtr &change)
        : QUndoCommand(change->name.section(QLatin1Char('/'), -1))
        , m_parameter(parameter)
        , m_change(change)
    {
    }
    ~Step() override = default;

    const ChangePtr &change() const { return m_change; }

    void write(bool back) const
    {
        const QSharedPointer<IParameter> parameter = m_parameter.toStrongRef();
        if (parameter) {
            UnansweredWrites::write(*parameter, back ? m_change->before : m_change->after);
        }
    }

private:
    QWeakPointer<IParameter> m_parameter;
    ChangePtr m_change;
};

ChangeHistory::ChangeHistory(QObject *parent)
    : QObject(parent)
    , m_list(new ChangeList(mostChanges, this))
{
    m_stack.setUndoLimit(mostChanges);
    connect(&m_stack, SIGNAL(indexChanged(int)), this, SIGNAL(stepsChanged()));
}

ChangeHistory::~ChangeHistory()
{
    m_stack.disconnect(this);
}

QAbstractItemModel *ChangeHistory::changes() const
{
    return m_list;
}

Change ChangeHistory::change(const QModelIndex &index) const
{
    const ChangePtr change = m_list->at(index);
    return change ? *change : Change();
}

bool ChangeHistory::canUndo() const
{
    return m_stack.canUndo();
}

bool ChangeHistory::canRedo() const
{
    return m_stack.canRedo();
}

QString ChangeHistory::undoText() const
{
    return m_stack.undoText();
}

QString ChangeHistory::redoText() const
{
    return m_stack.redoText();
}

bool ChangeHistory::isModified() const
{
    return m_isModified;
}

bool ChangeHistory::write(const QSharedPointer<IParameter> &parameter, const QString &text)
{
    QString refusal;
    try {
        UnansweredWrites::announce(*parameter, text);
        UnansweredWrites::write(*parameter, text);
    } catch (const std::exception &exception) {
        refusal = QString::fromUtf8(exception.what());
        showException(QStringLiteral("ChangeHistory::write"), exception,
                      tr("Failed to set a feature value."));
    }
    const UnansweredWrites *const writes = UnansweredWrites::find(*parameter);
    record(parameter, writes ? writes->lastAttempt().before : QString(), text, refusal);
    return refusal.isEmpty();
}

void ChangeHistory::record(QSharedPointer<IParameter> parameter, QString before, QString after,
                           QString refusal)
{
    Change change;
    const bool isKnown = Core::guardedRun({logCategory(), "ChangeHistory::record"},
                                          QStringLiteral("Failed to record a change"), [&change, &parameter] {
                                              change.type = parameter->type();
                                              change.name = parameter->fullName();
                                          });
    if (!isKnown) {
        return;
    }
    change.time = QDateTime::currentMSecsSinceEpoch();
    change.before = before;
    change.after = after;
    change.reason = refusal;
    change.result = refusal.isEmpty() ? Change::Result::Done : Change::Result::Refused;
    if (change.type == ParameterType::Command) {
        recordCommand(change);
        return;
    }
    if (merge(change)) {
        return;
    }
    const auto added = std::make_shared<Change>(change);
    m_list->add(added);
    if (change.result == Change::Result::Done) {
        depart(change, change.before, change.after);
        push(parameter, added);
    }
}

void ChangeHistory::recordCommand(const Change &change)
{
    const auto added = std::make_shared<Change>(change);
    added->kind = Change::Kind::Command;
    added->before = added->after = QString();
    m_list->add(added);
    m_mergeable.reset();
    if (change.result == Change::Result::Done && overwritesSettings(change.name)) {
        m_stack.clear();
        m_isLost = true;
        setModified(true);
    }
}

// Returns whether the change became part of the step before it.
bool ChangeHistory::merge(const Change &change)
{
    const bool isNext = m_mergeable && m_mergeable->name == change.name && isNumber(change.type)
        && change.result == Change::Result::Done && !m_stack.canRedo()
        && !m_sinceLast.hasExpired(longestPause);
    if (!isNext) {
        return false;
    }
    depart(change, m_mergeable->after, change.after);
    m_mergeable->after = change.after;
    m_mergeable->time = change.time;
    m_sinceLast.start();
    m_list->update(m_mergeable);
    return true;
}

void ChangeHistory::push(const QSharedPointer<IParameter> &parameter, const ChangePtr &change)
{
    if (change->before.isNull()) {
        m_mergeable.reset();
        return; // nobody knows what to put back
    }
    m_mergeable = change;
    m_sinceLast.start();
    m_stack.push(new Step(parameter, change));
}

const ChangeHistory::Step *ChangeHistory::stepAt(int index) const
{
    return static_cast<const Step *>(m_stack.command(index));
}

bool ChangeHistory::undo()
{
    return m_stack.canUndo() && move(true);
}

bool ChangeHistory::redo()
{
    return m_stack.canRedo() && move(false);
}

bool ChangeHistory::move(bool back)
{
    const Step &step = *stepAt(back ? m_stack.index() - 1 : m_stack.index());
    const ChangePtr change = step.change();
    try {
        step.write(back);
    } catch (const std::exception &exception) {
        showException(QStringLiteral("ChangeHistory::move"), exception,
                      back ? tr("Failed to undo a change.") : tr("Failed to redo a change."));
        return false;
    } catch (...) {
        showUnexpectedException(QStringLiteral("ChangeHistory::move"),
                                back ? tr("Failed to undo a change.") : tr("Failed to redo a change."));
        return false;
    }
    m_mergeable.reset();
    change->result = back ? Change::Result::Undone : Change::Result::Done;
    m_list->update(change);
    depart(*change, back ? change->after : change->before, back ? change->before : change->after);
    if (back) {
        m_stack.undo();
    } else {
        m_stack.redo();
    }
    return true;
}

// Keeps account of a value that has become another one.
void ChangeHistory::depart(const Change &change, const QString &from, const QString &to)
{
    const auto known = m_departures.find(change.name);
    const QString origin = known == m_departures.end() ? from : known->from;
    if (!origin.isNull() && isSameValueText(change.type, origin, to)) {
        m_departures.remove(change.name);
    } else {
        m_departures.insert(change.name, {origin, to});
    }
    setModified(m_isLost || !m_departures.isEmpty());
}

void ChangeHistory::setModified(bool isModified)
{
    if (m_isModified != isModified) {
        m_isModified = isModified;
        emit modifiedChanged(isModified);
    }
}

void ChangeHistory::setUnmodified()
{
    m_departures.clear();
    m_isLost = false;
    setModified(false);
}

void ChangeHistory::clear()
{
    m_mergeable.reset();
    m_stack.clear();
    m_list->clear();
    setUnmodified();
}
