// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genericexception.h>
#include <platform/parametercollection/iparametercollection.h>

#include <QHash>
#include <QPointer>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <utility>

/*! \brief What all parameters of a MemoryCollection have in common, open for tests to look at and to change.
 */
struct MemoryNode
{
    QString shortName;
    QString path;
    QHash<QString, QString> properties;
    QSharedPointer<ParameterCollection::ParameterData> snapshot;
    QStringList children; //!< short names, in order

    bool excluded = false;
    bool imposingAllowed = false;

    /*! Called with the operation's name ("setValue", "execute", "parameterData", "type", ...) before it is
     * carried out; may throw, to play a failing parameter. */
    std::function<void(const QString &operation)> before;

    /*! Called after a write was carried out, to play a camera that changes something else with it. */
    std::function<void()> written;

    QStringList writes; //!< every value that was written, as text
    int executions = 0;
    int forcedChecks = 0;
    int unforcedChecks = 0;

    void enter(const char *operation) const
    {
        if (before) {
            before(QString::fromLatin1(operation));
        }
    }

    /*! Makes each of \a operations throw \a exception until `before` is reset. */
    template <typename Exception>
    void fail(const QStringList &operations, const Exception &exception)
    {
        before = [operations, exception](const QString &operation) {
            if (operations.contains(operation)) {
                throw exception;
            }
        };
    }
};

/*! Writes \a text into the snapshot of \a node; throws as IParameter::setValueFromString() does. */
void writeMemoryNode(MemoryNode &node, const QString &text);

/*! \brief Property access of a MemoryNode; imposed properties are stored like any other. */
class MemoryPropertyAccess : public ParameterCollection::NodePropertyAccess
{
public:
    explicit MemoryPropertyAccess(MemoryNode *node);

    using NodePropertyAccess::property;
    QString property(const QString &name, const QString &defaultValue) const override;
    void setProperty(const QString &name, const QString &value) override;

private:
    MemoryNode *m_node;
};

/*! \brief A parameter that lives in memory: an implementation of \a Interface over a MemoryNode, whose
 * snapshots are of the class \a Snapshot. */
template <typename Interface, typename Snapshot = ParameterCollection::ParameterData>
class MemoryParameter : public Interface, public MemoryNode
{
public:
    using Data = Snapshot;

    explicit MemoryParameter(const QString &name, const QString &fullName)
    {
        shortName = name;
        path = fullName;
    }

    void setValueFromString(const QString &text) override
    {
        enter("setValueFromString");
        writeMemoryNode(*this, text);
        publishLater();
    }
    bool isExcluded() const override { return entered("isExcluded").excluded; }
    bool isWritableNow() const override
    {
        const auto data = entered("isWritableNow").snapshot;
        return data && data->isImplemented && data->isWritable;
    }
    GenApi::EVisibility visibility() const override
    {
        const auto data = entered("visibility").snapshot;
        return data ? data->visibility : GenApi::UndefinedVisibility;
    }
    ParameterCollection::ParameterType type() const override
    {
        const auto data = entered("type").snapshot;
        return data ? data->type : ParameterCollection::ParameterType::Unknown;
    }
    QString fullName() const override { return entered("fullName").path; }
    QString name() const override { return entered("name").shortName; }
    QSharedPointer<ParameterCollection::NodePropertyAccess> propertyAccess() const override
    {
        enter("propertyAccess");
        return QSharedPointer<MemoryPropertyAccess>::create(const_cast<MemoryParameter *>(this));
    }
    QSharedPointer<const ParameterCollection::ParameterData> parameterData() const override
    {
        return entered("parameterData").snapshot;
    }
    void scheduleParameterDataChangedCheck(bool force) override
    {
        enter("scheduleParameterDataChangedCheck");
        ++(force ? forcedChecks : unforcedChecks);
        publishLater();
    }
    bool isImposingAllowed() const override { return imposingAllowed; }
    GenApi::EAccessMode nodeAccessMode() const override
    {
        if (!snapshot || !snapshot->isImplemented) {
            return GenApi::NI;
        }
        if (snapshot->isReadable) {
            return snapshot->isWritable ? GenApi::RW : GenApi::RO;
        }
        return snapshot->isWritable ? GenApi::WO : GenApi::NA;
    }

    /*! Replaces the snapshot by a copy that \a change has changed. Publishes nothing. */
    template <typename Changed = Snapshot, typename Change>
    void edit(const Change &change)
    {
        auto copy = QSharedPointer<Changed>::create(static_cast<const Changed &>(*snapshot));
        change(*copy);
        snapshot = copy;
    }

    /*! Changes the snapshot as edit() does and publishes it. */
    template <typename Change>
    void update(const Change &change)
    {
        edit(change);
        publish();
    }

    /*! Publishes the current snapshot at once, as if it arrived from the event loop. */
    void publish() { emit this->parameterDataChangedDecoupled(snapshot); }

    /*! Publishes the snapshot that is current when the event loop comes round. */
    void publishLater()
    {
        QMetaObject::invokeMethod(
            this, [this] { publish(); }, Qt::QueuedConnection);
    }

private:
    const MemoryNode &entered(const char *operation) const
    {
        enter(operation);
        return *this;
    }
};

/*! \brief A parameter in memory whose value can be set as \a Value, too. */
template <typename Interface, typename Snapshot, typename Value>
class MemoryValue : public MemoryParameter<Interface, Snapshot>
{
public:
    using MemoryParameter<Interface, Snapshot>::MemoryParameter;
    void setValue(Value value) override
    {
        this->enter("setValue");
        writeMemoryNode(*this, QVariant(value).toString());
        this->publishLater();
    }
};

using MemoryInteger =
    MemoryValue<ParameterCollection::IIntegerParameter, ParameterCollection::IntegerParameterData, qint64>;
using MemoryFloat =
    MemoryValue<ParameterCollection::IFloatParameter, ParameterCollection::FloatParameterData, double>;
using MemoryEnum =
    MemoryValue<ParameterCollection::IEnumParameter, ParameterCollection::EnumParameterData, const QString &>;
using MemoryBoolean =
    MemoryValue<ParameterCollection::IBooleanParameter, ParameterCollection::BooleanParameterData, bool>;

class MemoryCommand : public MemoryParameter<ParameterCollection::ICommandParameter,
                                             ParameterCollection::CommandParameterData>
{
public:
    using MemoryParameter::MemoryParameter;
    void execute(bool verify) override;
};

/*! \brief String, category and unknown parameters. */
using MemoryPlain = MemoryParameter<ParameterCollection::IParameter>;

/*! \brief A parameter collection without a device, shared by all tests.
 *
 * Writes check type, range and access as a camera would, are kept, and publish the node from the event loop.
 */
class MemoryCollection : public ParameterCollection::IParameterCollection
{
public:
    explicit MemoryCollection(const QString &name = QStringLiteral("@CameraDevice"),
                              const QString &deviceClassWord = QStringLiteral("GEV"));

    /*! Returns a collection with the category "Root" and, below it, categories that hold a parameter of each
     * type. */
    static QSharedPointer<MemoryCollection>
    createSample(const QString &name = QStringLiteral("@CameraDevice"));

    QSharedPointer<MemoryPlain> addCategory(const QString &name,
                                            const QString &parent = QStringLiteral("Root"));
    QSharedPointer<MemoryInteger> addInteger(const QString &name, const QString &parent, qint64 value = 0,
                                             qint64 minimum = 0, qint64 maximum = 100, qint64 increment = 1,
                                             const QString &representation = QStringLiteral("PureNumber"));
    QSharedPointer<MemoryFloat> addFloat(const QString &name, const QString &parent, double value = 0.0,
                                         double minimum = 0.0, double maximum = 100.0, double increment = 0.0,
                                         const QString &representation = QStringLiteral("PureNumber"));
    QSharedPointer<MemoryEnum> addEnum(const QString &name, const QString &parent, const QStringList &entries,
                                       const QString &value);
    QSharedPointer<MemoryBoolean> addBoolean(const QString &name, const QString &parent, bool value = false);
    QSharedPointer<MemoryCommand> addCommand(const QString &name, const QString &parent);
    QSharedPointer<MemoryPlain> addString(const QString &name, const QString &parent, const QString &value);
    /*! Makes \a selector select \a feature, which has a value for each of the selector's from then on. */
    void select(const QString &selector, const QString &feature);
    /*! Makes \a alias what look-ups of \a name followed by "/Alias" find. */
    void setAlias(const QString &name, const QString &alias);

    /*! Returns what the parameter \a name has in common with all others. */
    MemoryNode *node(const QString &name) const;
    /*! Returns the parameter \a name as the class that it is. */
    template <typename Parameter>
    QSharedPointer<Parameter> get(const QString &name) const
    {
        return qSharedPointerDynamicCast<Parameter>(m_entries.value(shortName(name)).parameter);
    }

    QSharedPointer<ParameterCollection::IParameter> parameter(const QString &name) const override;
    bool hasParameter(const QString &name) const override;
    QStringList childNames(const QString &parent, int depth, bool fullNames) const override;
    void refresh() override;
    void poll(int elapsedMilliseconds) override;
    QString deviceClass() const override;

    QString name() const { return m_name; }

    int refreshes = 0;
    QList<int> polls; //!< the elapsed times handed in
    /*! As MemoryNode::before, for the collection's own operations. */
    std::function<void(const QString &operation)> before;

private:
    struct Entry
    {
        QSharedPointer<ParameterCollection::IParameter> parameter;
        MemoryNode *node = nullptr;
    };

    template <typename Parameter>
    QSharedPointer<Parameter> add(const QString &name, const QString &parent,
                                  const QSharedPointer<ParameterCollection::ParameterData> &snapshot);
    template <typename Parameter, typename Value>
    QSharedPointer<Parameter> addNumber(const QString &name, const QString &parent, Value value,
                                        Value minimum, Value maximum, Value increment,
                                        const QString &representation);
    QString shortName(const QString &name) const;
    void enter(const char *operation) const;

    QString m_name;
    QString m_deviceClass;
    QHash<QString, Entry> m_entries;
    QHash<QString, QString> m_aliases;
};
