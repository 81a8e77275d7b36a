// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genericexception.h>
#include <platform/parametercollection/simplecollection.h>
#include <platform/parametercollection/simplenode_p.h>

#include <QStringList>

#include <functional>

/*! \brief What all parameters of a MemoryCollection have in common, open for tests to look at and to change.
 */
class MemoryNode : public ParameterCollection::SimpleNode
{
public:
    /*! Called with the operation's name ("setValue", "execute", "parameterData", "type", ...) before it is
     * carried out; may throw, to play a failing parameter. */
    std::function<void(const QString &operation)> before;

    /*! Called after a write was carried out, to play a camera that changes something else with it. */
    std::function<void()> written;

    QStringList writes; //!< every value that was written, as text
    int executions = 0;
    int forcedChecks = 0;
    int unforcedChecks = 0;

    void enter(const char *operation) const override;

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

protected:
    void onWritten(const QString &text) override;
    void onExecuted() override { ++executions; }
};

/*! \brief A parameter of a MemoryCollection; \a Base implements it. Answers each check. */
template <typename Base>
class MemoryParameter : public Base
{
public:
    using Base::Base;

    void scheduleParameterDataChangedCheck(bool force) override
    {
        this->enter("scheduleParameterDataChangedCheck");
        ++(force ? this->forcedChecks : this->unforcedChecks);
        this->publishLater();
    }

    /*! Replaces the snapshot by a copy that \a change has changed. Publishes nothing. */
    template <typename Changed = typename Base::Data, typename Change>
    void edit(const Change &change)
    {
        auto copy = QSharedPointer<Changed>::create(static_cast<const Changed &>(*this->snapshot));
        change(*copy);
        this->snapshot = copy;
    }

    /*! Changes the snapshot as edit() does and publishes it. */
    template <typename Change>
    void update(const Change &change)
    {
        edit(change);
        this->publish();
    }
};

using MemoryInteger = MemoryParameter<ParameterCollection::SimpleIntegerParameter<MemoryNode>>;
using MemoryFloat = MemoryParameter<ParameterCollection::SimpleFloatParameter<MemoryNode>>;
using MemoryEnum = MemoryParameter<ParameterCollection::SimpleEnumParameter<MemoryNode>>;
using MemoryBoolean = MemoryParameter<ParameterCollection::SimpleBooleanParameter<MemoryNode>>;
using MemoryCommand = MemoryParameter<ParameterCollection::SimpleCommandParameter<MemoryNode>>;
/*! \brief String, category and unknown parameters. */
using MemoryPlain = MemoryParameter<ParameterCollection::SimplePlainParameter<MemoryNode>>;

/*! \brief The simple collection that all tests share, with what makes it fail. */
class MemoryCollection : public ParameterCollection::SimpleCollection
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
    void select(const QString &selector, const QString &feature) { selectFeature(selector, feature); }
    /*! Makes \a alias what look-ups of \a name followed by "/Alias" find. */
    void setAlias(const QString &name, const QString &alias) { setAliasOf(name, alias); }

    /*! Returns what the parameter \a name has in common with all others. */
    MemoryNode *node(const QString &name) const;
    /*! Returns the parameter \a name as the class that it is. */
    template <typename Parameter>
    QSharedPointer<Parameter> get(const QString &name) const
    {
        return qSharedPointerDynamicCast<Parameter>(SimpleCollection::parameter(name));
    }

    QSharedPointer<ParameterCollection::IParameter> parameter(const QString &name) const override;
    bool hasParameter(const QString &name) const override;
    QStringList childNames(const QString &parent, int depth, bool fullNames) const override;
    void refresh() override;
    void poll(int elapsedMilliseconds) override;
    QString deviceClass() const override;

    int refreshes = 0;
    QList<int> polls; //!< the elapsed times handed in
    /*! As MemoryNode::before, for the collection's own operations. */
    std::function<void(const QString &operation)> before;

private:
    template <typename Parameter>
    QSharedPointer<Parameter> add(const QString &name, const QString &parent,
                                  const QSharedPointer<ParameterCollection::ParameterData> &snapshot);
    template <typename Parameter, typename Value>
    QSharedPointer<Parameter> addNumber(const QString &name, const QString &parent, Value value,
                                        Value minimum, Value maximum, Value increment,
                                        const QString &representation);
    void enter(const char *operation) const;
};
