// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "iparameter.h"

#include <platform/platform_export.h>

#include <QHash>
#include <QList>
#include <QMetaMethod>
#include <QMetaObject>
#include <QSharedPointer>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <optional>
#include <utility>

namespace ParameterCollection {

/*! \brief What all parameters of a SimpleCollection have in common.
 *
 * Values travel as the type that the parameter's snapshots have: qint64, double, bool or QString.
 */
class ZELTO_PLATFORM_EXPORT SimpleNode
{
public:
    SimpleNode() = default;
    virtual ~SimpleNode();
    Q_DISABLE_COPY_MOVE(SimpleNode)

    QString shortName;
    QString path;
    QHash<QString, QString> properties;
    QSharedPointer<ParameterData> snapshot; //!< not limited by what was imposed
    QStringList children; //!< short names, in order
    bool excluded = false;
    bool imposingAllowed = false;
    int pollingTime = 0; //!< in milliseconds; 0 for never

    std::function<void(const QVariant &value)> onWrite;
    std::function<QVariant()> onRead;
    std::function<void()> onExecute;

    /*! Returns the snapshot, limited by what was imposed. */
    ParameterDataPtr shownSnapshot() const;
    /*! Imposes a property; see NodePropertyAccess::setProperty(). */
    void impose(const QString &property, const QString &value);

    /*! Writes \a text as the user does; throws as IParameter::setValueFromString() does. */
    void writeText(const QString &text);
    /*! Writes \a value as the user does. */
    void writeValue(const QVariant &value);
    /*! Executes the command. */
    void execute(bool verify);
    /*! Asks onRead for the value. Publishes it when it is another one, and in any case with \a force. */
    void read(bool force);
    /*! Reads when the polling time has run out. */
    void poll(int elapsedMilliseconds);
    /*! Shows \a value as the application's own doing, without a check. */
    void show(const QVariant &value);
    /*! Changes a copy of the snapshot, and publishes it. */
    void change(const std::function<void(ParameterData &)> &change);

    /*! From now on the node has a value for each combination of values that the selectors have. */
    void addSelector(SimpleNode *selector);
    /*! Forgets all other nodes. */
    void isolate();

    /*! Called before \a operation ("setValue", "execute", ...) is carried out; may throw. */
    virtual void enter(const char *operation) const;

protected:
    /*! Called after a write was carried out. */
    virtual void onWritten(const QString &text);
    /*! Called after the command was executed. */
    virtual void onExecuted();

    /*! Publishes the snapshot that is current when the event loop comes round. */
    virtual void publishLater() = 0;

private:
    QVariant valueFrom(const QString &text) const;
    void check(const QVariant &value, const QString &text) const;
    void write(const QVariant &value, const QString &text);
    QSharedPointer<ParameterData> snapshotWith(const QVariant &value) const;
    void setSnapshot(const QSharedPointer<ParameterData> &data);
    void followSelectors();
    QString selection() const;

    std::optional<GenApi::EVisibility> m_imposedVisibility;
    std::optional<GenApi::EAccessMode> m_imposedAccess;
    bool m_isUnread = false; // the last attempt to read has failed
    bool m_wasReadable = true; // before that
    int m_sinceRead = 0;
    QList<SimpleNode *> m_selectors;
    QList<SimpleNode *> m_selected;
    QHash<QString, QSharedPointer<ParameterData>> m_snapshots; // for each selection that was made
    QSharedPointer<ParameterData> m_firstSnapshot; // for all others
};

/*! \brief Property access of a SimpleNode, which has to outlive it. */
class SimplePropertyAccess : public NodePropertyAccess
{
public:
    explicit SimplePropertyAccess(SimpleNode *node)
        : m_node(node)
    {
    }

    using NodePropertyAccess::property;
    QString property(const QString &name, const QString &defaultValue) const override
    {
        m_node->enter("property");
        return m_node->properties.value(name, defaultValue);
    }
    void setProperty(const QString &name, const QString &value) override { m_node->impose(name, value); }

private:
    SimpleNode *m_node;
};

/*! \brief A parameter of a SimpleCollection: an implementation of \a Interface over a \a Node, whose
 * snapshots are of the class \a Snapshot. */
template <typename Interface, typename Snapshot = ParameterData, typename Node = SimpleNode>
class SimpleParameter : public Interface, public Node
{
public:
    using Data = Snapshot;

    SimpleParameter(const QString &name, const QString &fullName)
    {
        this->shortName = name;
        this->path = fullName;
    }

    void setValueFromString(const QString &text) override
    {
        this->enter("setValueFromString");
        this->writeText(text);
    }
    bool isExcluded() const override { return entered("isExcluded").excluded; }
    bool isWritableNow() const override
    {
        const auto data = entered("isWritableNow").shownSnapshot();
        return data && GenApi::isWritable(data->accessMode());
    }
    GenApi::EVisibility visibility() const override
    {
        const auto data = entered("visibility").shownSnapshot();
        return data ? data->visibility : GenApi::UndefinedVisibility;
    }
    ParameterType type() const override
    {
        const auto &data = entered("type").snapshot;
        return data ? data->type : ParameterType::Unknown;
    }
    QString fullName() const override { return entered("fullName").path; }
    QString name() const override { return entered("name").shortName; }
    QSharedPointer<NodePropertyAccess> propertyAccess() const override
    {
        this->enter("propertyAccess");
        return QSharedPointer<SimplePropertyAccess>::create(const_cast<SimpleParameter *>(this));
    }
    ParameterDataPtr parameterData() const override { return entered("parameterData").shownSnapshot(); }
    void scheduleParameterDataChangedCheck(bool force) override
    {
        this->enter("scheduleParameterDataChangedCheck");
        QMetaObject::invokeMethod(
            this, [this, force] { this->read(force); }, Qt::QueuedConnection);
    }
    bool isImposingAllowed() const override { return this->imposingAllowed; }
    GenApi::EAccessMode nodeAccessMode() const override
    {
        return this->snapshot ? this->snapshot->accessMode() : GenApi::NI;
    }

    /*! Publishes the current snapshot at once, as if it arrived from the event loop. */
    void publish() { Q_EMIT this->parameterDataChangedDecoupled(this->shownSnapshot()); }

    void publishLater() override
    {
        static const QMetaMethod signal = QMetaMethod::fromSignal(&IParameter::parameterDataChangedDecoupled);
        if (!this->isSignalConnected(signal)) {
            return; // as while a collection is filled
        }
        QMetaObject::invokeMethod(
            this, [this] { publish(); }, Qt::QueuedConnection);
    }

private:
    const Node &entered(const char *operation) const
    {
        this->enter(operation);
        return *this;
    }
};

/*! \brief A parameter whose value can be set as \a Value, too. */
template <typename Interface, typename Snapshot, typename Value, typename Node = SimpleNode>
class SimpleValue : public SimpleParameter<Interface, Snapshot, Node>
{
public:
    using SimpleParameter<Interface, Snapshot, Node>::SimpleParameter;
    void setValue(Value value) override
    {
        this->enter("setValue");
        this->writeValue(QVariant::fromValue(value));
    }
};

/*! \brief A command. */
template <typename Node = SimpleNode>
class SimpleCommandParameter : public SimpleParameter<ICommandParameter, CommandParameterData, Node>
{
public:
    using SimpleParameter<ICommandParameter, CommandParameterData, Node>::SimpleParameter;
    void execute(bool verify) override
    {
        this->enter("execute");
        Node::execute(verify);
    }
};

template <typename Node>
using SimpleIntegerParameter = SimpleValue<IIntegerParameter, IntegerParameterData, qint64, Node>;
template <typename Node>
using SimpleFloatParameter = SimpleValue<IFloatParameter, FloatParameterData, double, Node>;
template <typename Node>
using SimpleEnumParameter = SimpleValue<IEnumParameter, EnumParameterData, const QString &, Node>;
template <typename Node>
using SimpleBooleanParameter = SimpleValue<IBooleanParameter, BooleanParameterData, bool, Node>;
/*! Strings and categories. */
template <typename Node>
using SimplePlainParameter = SimpleParameter<IParameter, ParameterData, Node>;

} // namespace ParameterCollection
