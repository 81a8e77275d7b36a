// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "changehistory.h"

#include "changelist_p.h"
#include "featureselectors_p.h"
#include "settingsapplier.h"
#include "unansweredwrites_p.h"

#include <platform/core/guard.h>
#include <platform/genicam/genericexception.h>
#include <zeltoviewercomponents/errorhandling/messagefunctions.h>

#include <QDateTime>
#include <QFileInfo>
#include <QUndoCommand>
#include <QWeakPointer>

#include <algorithm>
#include <array>
#include <utility>

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

// The features of a report that came to \a result, with what they were and what was asked for.
QList<Change> changesOf(const SettingsReport &report, SettingsReport::Result result)
{
    QList<Change> changes;
    for (const SettingsReport::Entry &entry : report.entries) {
        if (entry.result == result) {
            Change change;
            change.name = entry.setting.nodeMap + QLatin1Char('/') + entry.setting.name;
            change.selectors = entry.setting.selectors;
            change.before = result == SettingsReport::Result::Different ? entry.after : entry.before;
            change.after = entry.setting.value;
            changes.append(change);
        }
    }
    return changes;
}

QString failure(bool back)
{
    return back ? ChangeHistory::tr("Failed to undo a change.")
                : ChangeHistory::tr("Failed to redo a change.");
}

} // namespace

/*! \brief A change that can be taken back. The writing is done before the stack moves, not by it. */
class ChangeHistory::Step : public QUndoCommand
{
public:
    explicit Step(const ChangePtr &change)
        : m_change(change)
    {
    }
    ~Step() override = default;

    const ChangePtr &change() const { return m_change; }
    QString name() const
    {
        return m_change->kind == Change::Kind::File ? QFileInfo(m_change->name).fileName()
                                                    : m_change->title();
    }

private:
    ChangePtr m_change;
};

class ChangeHistory::ValueStep : public Step
{
public:
    ValueStep(const ChangePtr &change, const QSharedPointer<IParameter> &parameter)
        : Step(change)
        , m_parameter(parameter)
    {
    }
    ~ValueStep() override = default;

    void write(const FeatureSelectors &selectors, bool back) const
    {
        const QSharedPointer<IParameter> parameter = m_parameter.toStrongRef();
        if (!parameter) {
            throw GenICam::RuntimeException(tr("%1: the feature is gone").arg(change()->title()));
        }
        selectors.write(*parameter, change()->selectors, back ? change()->before : change()->after);
    }

private:
    QWeakPointer<IParameter> m_parameter;
};

class ChangeHistory::FileStep : public Step
{
public:
    FileStep(const ChangePtr &change, const FeatureSettings &settings, const FeatureSettings &former,
             const QList<Change> &values)
        : Step(change)
        , settings(settings)
        , former(former)
        , values(values)
    {
    }
    ~FileStep() override = default;

    const FeatureSettings settings;
    const FeatureSettings former;
    const QList<Change> values; //!< that the file has changed
};

ChangeHistory::ChangeHistory(QObject *parent)
    : QObject(parent)
    , m_list(new ChangeList(mostChanges, this))
    , m_selectors(std::make_unique<FeatureSelectors>())
{
    m_stack.setUndoLimit(mostChanges);
    connect(&m_stack, SIGNAL(indexChanged(int)), this, SIGNAL(stepsChanged()));
}

ChangeHistory::~ChangeHistory()
{
    m_stack.disconnect(this);
}

void ChangeHistory::open(const QList<SettingsNodeMap> &nodeMaps)
{
    clear();
    m_nodeMaps = nodeMaps;
    m_selectors->setNodeMaps(nodeMaps);
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
    return m_stack.canUndo() && !m_task;
}

bool ChangeHistory::canRedo() const
{
    return m_stack.canRedo() && !m_task;
}

QString ChangeHistory::undoText() const
{
    return m_stack.canUndo() ? nextStep(true).name() : QString();
}

QString ChangeHistory::redoText() const
{
    return m_stack.canRedo() ? nextStep(false).name() : QString();
}

bool ChangeHistory::isModified() const
{
    return m_isModified;
}

Change ChangeHistory::newChange(const IParameter &parameter) const
{
    Change change;
    change.type = parameter.type();
    change.name = parameter.fullName();
    change.kind = change.type == ParameterType::Command ? Change::Kind::Command : Change::Kind::Value;
    change.time = QDateTime::currentMSecsSinceEpoch();
    return change;
}

void ChangeHistory::record(QSharedPointer<IParameter> parameter, QString before, QString after,
                           QString refusal)
{
    const auto work = [this, &parameter, &before, &after, &refusal] {
        Change change = newChange(*parameter);
        change.reason = refusal;
        change.result = refusal.isEmpty() ? Change::Result::Done : Change::Result::Refused;
        if (change.kind == Change::Kind::Command) {
            recordCommand(change);
            return;
        }
        change.selectors = m_selectors->selectorsOf(change.name);
        if (change.selectors.isEmpty() || m_selectors->areSettled(change.name)) {
            change.before = before; // else it may be that of what the selectors pointed to until now
        }
        change.after = after;
        add(parameter, change);
    };
    Core::guardedRun({logCategory(), "ChangeHistory::record"}, QStringLiteral("Failed to record a change"),
                     work);
}

void ChangeHistory::recordCommand(const Change &change)
{
    m_list->add(std::make_shared<Change>(change));
    m_mergeable.reset();
    if (change.result == Change::Result::Done && overwritesSettings(change.name)) {
        m_stack.clear();
        m_isLost = true;
        setModified(true);
    }
}

void ChangeHistory::add(const QSharedPointer<IParameter> &parameter, const Change &change)
{
    if (merge(change)) {
        return;
    }
    const auto added = std::make_shared<Change>(change);
    m_list->add(added);
    if (change.result == Change::Result::Refused) {
        return;
    }
    m_mergeable.reset();
    depart(change, change.before, change.after);
    if (!change.before.isNull()) { // else nobody knows what to put back
        m_mergeable = added;
        m_sinceLast.start();
        m_stack.push(new ValueStep(added, parameter));
    }
}

// Returns whether the change became part of the step before it.
bool ChangeHistory::merge(const Change &change)
{
    const bool isNext = m_mergeable && isNumber(change.type) && change.result == Change::Result::Done
        && m_mergeable->isSameFeature(change) && !m_sinceLast.hasExpired(longestPause);
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

QString ChangeHistory::knownValue(const Change &feature) const
{
    const ChangePtr last = m_list->newestOf(feature);
    return !last ? QString() : last->result == Change::Result::Undone ? last->before : last->after;
}

bool ChangeHistory::putBack(const QModelIndex &index, Column column)
{
    const ChangePtr line = m_list->at(index);
    const QString text = !line ? QString() : column == BeforeColumn ? line->before : line->after;
    const auto parameter =
        line && line->kind == Change::Kind::Value ? m_selectors->parameter(line->name) : nullptr;
    if (!parameter || text.isNull() || m_task) {
        return false;
    }
    Change change = newChange(*parameter);
    change.selectors = line->selectors;
    const bool isPresent = line->selectors.isEmpty() || change.isSameFeature([&] {
        Change now = change;
        now.selectors = m_selectors->selectorsOf(change.name);
        return now;
    }());
    change.before = isPresent ? UnansweredWrites::presentText(*parameter) : knownValue(change);
    change.after = text;
    try {
        m_selectors->write(*parameter, change.selectors, text);
    } catch (const std::exception &exception) {
        change.result = Change::Result::Refused;
        change.reason = QString::fromUtf8(exception.what());
        showException(QStringLiteral("ChangeHistory::putBack"), exception,
                      tr("Failed to set a feature value."));
    }
    m_mergeable.reset();
    add(parameter, change);
    return change.result == Change::Result::Done;
}

void ChangeHistory::recordApplied(const QString &name, const FeatureSettings &settings,
                                  const FeatureSettings &former, const SettingsReport &report)
{
    const auto change = std::make_shared<Change>();
    change->kind = Change::Kind::File;
    change->name = name;
    change->time = QDateTime::currentMSecsSinceEpoch();
    change->after = tr("values set: %1").arg(report.count(SettingsReport::Result::Set));
    const QList<Change> values = changesOf(report, SettingsReport::Result::Set);
    m_list->add(change);
    m_mergeable.reset();
    for (const Change &value : values) {
        depart(value, value.before, value.after);
    }
    if (!values.isEmpty() || report.count(SettingsReport::Result::Different) > 0) {
        m_stack.push(new FileStep(change, settings, former, values));
    }
}

// What the camera would not take differs from what was asked for.
void ChangeHistory::setUnmodified(const SettingsReport &report)
{
    setUnmodified();
    for (const auto result : {SettingsReport::Result::Refused, SettingsReport::Result::Different,
                              SettingsReport::Result::NotTried}) {
        const QList<Change> values = changesOf(report, result);
        for (const Change &value : values) {
            depart(value, value.after, value.before);
        }
    }
}

const ChangeHistory::Step &ChangeHistory::nextStep(bool back) const
{
    return *static_cast<const Step *>(m_stack.command(back ? m_stack.index() - 1 : m_stack.index()));
}

bool ChangeHistory::undo()
{
    return canUndo() && move(true);
}

bool ChangeHistory::redo()
{
    return canRedo() && move(false);
}

// A slider that came back to where it was leaves a step that is none.
void ChangeHistory::skipVoidSteps(bool back)
{
    const auto isVoid = [this, back] {
        const Change &change = *nextStep(back).change();
        return change.kind == Change::Kind::Value
            && isSameValueText(change.type, change.before, change.after);
    };
    while ((back ? m_stack.canUndo() : m_stack.canRedo()) && isVoid()) {
        back ? m_stack.undo() : m_stack.redo();
    }
}

bool ChangeHistory::move(bool back)
{
    skipVoidSteps(back);
    if (!(back ? m_stack.canUndo() : m_stack.canRedo())) {
        return false;
    }
    const Step &step = nextStep(back);
    if (const auto *const file = dynamic_cast<const FileStep *>(&step)) {
        begin(*file, back);
        return true;
    }
    try {
        static_cast<const ValueStep &>(step).write(*m_selectors, back);
    } catch (const std::exception &exception) {
        showException(QStringLiteral("ChangeHistory::move"), exception, failure(back));
        return false;
    } catch (...) {
        showUnexpectedException(QStringLiteral("ChangeHistory::move"), failure(back));
        return false;
    }
    const Change &change = *step.change();
    depart(change, back ? change.after : change.before, back ? change.before : change.after);
    finishMove(back);
    return true;
}

void ChangeHistory::finishMove(bool back)
{
    const ChangePtr change = nextStep(back).change();
    m_mergeable.reset();
    change->result = back ? Change::Result::Undone : Change::Result::Done;
    m_list->update(change);
    if (back) {
        m_stack.undo();
    } else {
        m_stack.redo();
    }
}

void ChangeHistory::begin(const FileStep &step, bool back)
{
    m_task = std::make_unique<SettingsApplier>(back ? step.former : step.settings, m_nodeMaps,
                                               SettingsApplier::Before::Forget);
    m_isTaskBack = back;
    m_taskChange = step.change();
    emit taskCreated(m_task.get()); // whose receivers hear of the end first
    connect(m_task.get(), SIGNAL(finished()), this, SLOT(onTaskFinished()));
    emit stepsChanged();
    m_task->start();
}

void ChangeHistory::onTaskFinished()
{
    const SettingsReport report = m_task->report();
    m_task.release()->deleteLater(); // it is the sender
    const ChangePtr change = std::exchange(m_taskChange, nullptr);
    const bool isNext = m_isTaskBack ? m_stack.canUndo() : m_stack.canRedo();
    // What was recorded meanwhile, as a late answer or a command, may have taken the step away.
    if (report.isSuccess() && isNext && nextStep(m_isTaskBack).change() == change) {
        for (const Change &value : static_cast<const FileStep &>(nextStep(m_isTaskBack)).values) {
            depart(value, m_isTaskBack ? value.after : value.before,
                   m_isTaskBack ? value.before : value.after);
        }
        finishMove(m_isTaskBack);
        return;
    }
    m_isLost = true;
    setModified(true);
    emit stepsChanged();
    if (report.isSuccess()) {
        return;
    }
    showErrorMessage(failure(m_isTaskBack) + QLatin1Char(' ') + report.summary(),
                     report.problems().join(QLatin1Char('\n')));
}

// Keeps account of a value that has become another one.
void ChangeHistory::depart(const Change &change, const QString &from, const QString &to)
{
    const QString key =
        change.selectors.isEmpty() ? change.name : change.name + QLatin1Char('/') + change.title();
    const auto known = m_departures.find(key);
    const QString origin = known == m_departures.end() ? from : known->from;
    if (!origin.isNull() && isSameValueText(change.type, origin, to)) {
        m_departures.remove(key);
    } else {
        m_departures.insert(key, {origin, to});
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
    m_task.reset();
    m_mergeable.reset();
    m_stack.clear();
    m_list->clear();
    m_nodeMaps.clear();
    m_selectors->setNodeMaps({});
    setUnmodified();
}
