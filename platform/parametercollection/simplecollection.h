// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "iparametercollection.h"

#include <platform/genicam/genapi.h>
#include <platform/platform_export.h>

#include <QPointer>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWeakPointer>

#include <functional>
#include <memory>
#include <utility>

namespace ParameterCollection {

class SimpleCollection;
class SimpleNode;

/*! \brief A handle of one parameter of a SimpleCollection: what all kinds of it have in common.
 *
 * Handles are values: they are copied, kept and thrown away as one likes, and stand for the same parameter as
 * long as it lives. They do not keep it: when it has gone with its collection, everything but parameter()
 * throws GenICam::LogicalErrorException, as it does on a thread that is not the collection's.
 */
class ZELTO_PLATFORM_EXPORT SimpleHandle
{
public:
    /*! Returns the parameter's short name. */
    QString name() const;
    /*! Returns the parameter itself, null when it has gone. */
    QSharedPointer<IParameter> parameter() const;

protected:
    SimpleHandle(SimpleCollection *collection, const QSharedPointer<IParameter> &parameter, SimpleNode *node);

    SimpleCollection *collection() const;
    void setText(const QString &property, const QString &text) const;
    void setVisibility(GenApi::EVisibility visibility) const;
    void setAccess(GenApi::EAccessMode access) const;
    void setAlias(const QString &name) const;
    void setPollingTime(int milliseconds) const;
    void select(const QStringList &features) const;
    void setRepresentation(const QString &representation) const;
    void setNotation(GenApi::EDisplayNotation notation, int precision) const;
    void setIntegerLimits(qint64 minimum, qint64 maximum) const;
    void setIntegerIncrement(qint64 increment) const;
    void setFloatLimits(double minimum, double maximum) const;
    void setFloatIncrement(double increment) const;
    void setEntries(const QStringList &names, const QStringList &texts) const;
    QVariant shownValue() const;
    void show(const QVariant &value) const;
    void setReading(std::function<QVariant()> read) const;
    void setWriting(std::function<void(const QVariant &)> write) const;
    void setExecution(std::function<void()> execute) const;

private:
    friend class SimpleCategory;
    friend class SimpleCollection;

    struct Node;
    Node live() const;
    Node node() const;

    QPointer<SimpleCollection> m_collection;
    QWeakPointer<IParameter> m_parameter; // its callbacks may hold the handle
    SimpleNode *m_node;
};

/*! \brief The texts and properties of a parameter. Each setter may be called at any time and returns the
 * handle again; what is left out is named with each. */
template <typename Handle>
class SimpleNamed : public SimpleHandle
{
public:
    /*! Sets the name that people read; else they read the short name. */
    Handle setDisplayName(const QString &text) const { return with("DisplayName", text); }
    /*! Sets the tool tip; else there is none. */
    Handle setTooltip(const QString &text) const { return with("Tooltip", text); }
    /*! Sets the long description; else there is none. */
    Handle setDescription(const QString &text) const { return with("Description", text); }
    /*! Sets the address of a page about the parameter; else there is none. */
    Handle setDocumentation(const QString &address) const { return with("DocuURL", address); }
    /*! Sets any property of NodePropertyAccess, such as "Streamable". */
    Handle setProperty(const QString &property, const QString &text) const
    {
        setText(property, text);
        return handle();
    }
    /*! Sets the user level from which on the parameter is shown; else that is GenApi::Beginner. */
    Handle setVisibility(GenApi::EVisibility visibility) const
    {
        this->SimpleHandle::setVisibility(visibility);
        return handle();
    }

protected:
    using SimpleHandle::SimpleHandle;
    Handle handle() const { return static_cast<const Handle &>(*this); }

private:
    Handle with(const char *property, const QString &text) const
    {
        return setProperty(QString::fromLatin1(property), text);
    }
};

/*! \brief A parameter that has a value or does something. */
template <typename Handle>
class SimpleFeature : public SimpleNamed<Handle>
{
public:
    /*! Sets what can be done with it; else that is GenApi::RW, for commands GenApi::WO. */
    Handle setAccess(GenApi::EAccessMode access) const
    {
        this->SimpleHandle::setAccess(access);
        return this->handle();
    }
    /*! Gives each of \a features a value of its own for each value of this one; else it selects nothing. */
    Handle select(const QStringList &features) const
    {
        this->SimpleHandle::select(features);
        return this->handle();
    }

protected:
    using SimpleNamed<Handle>::SimpleNamed;
};

/*! \brief A parameter with a value of the type \a Value. */
template <typename Handle, typename Value>
class SimpleValued : public SimpleFeature<Handle>
{
public:
    /*! Returns the value that is shown. */
    Value value() const { return this->shownValue().template value<Value>(); }
    /*! Shows \a value, which the device has; onWrite() is not called. May be called from any thread: from
     * another one than the collection's it takes place when that thread's event loop comes round. */
    Handle setValue(const Value &value) const
    {
        this->show(QVariant::fromValue(value));
        return this->handle();
    }
    /*! Sets what gives a value, which was found usable, to the device. When it throws, the value was not
     * taken, and the user reads the exception's text. Without it values are kept in memory alone. */
    Handle onWrite(std::function<void(const Value &)> write) const
    {
        this->setWriting([write = std::move(write)](const QVariant &value) { write(value.value<Value>()); });
        return this->handle();
    }
    /*! Sets what gets the value from the device: now, after each write, and whenever somebody asks. While it
     * throws, the parameter cannot be read, which is logged once. Without it the value changes by setValue()
     * and by the user alone. */
    Handle onRead(std::function<Value()> read) const
    {
        this->setReading([read = std::move(read)] { return QVariant::fromValue(read()); });
        return this->handle();
    }
    /*! Sets after how many milliseconds a polling tree reads again; 0, as at first, for never. */
    Handle setPollingTime(int milliseconds) const
    {
        this->SimpleHandle::setPollingTime(milliseconds);
        return this->handle();
    }

protected:
    using SimpleFeature<Handle>::SimpleFeature;
};

/*! \brief A number. */
template <typename Handle, typename Value>
class SimpleNumber : public SimpleValued<Handle, Value>
{
public:
    /*! Sets the unit, which stands behind the value; else there is none. */
    Handle setUnit(const QString &unit) const { return this->setProperty(QStringLiteral("Unit"), unit); }
    /*! Sets the standard's representation, which chooses the editor: "Linear", "Logarithmic", "PureNumber"
     * (as at first), "HexNumber", "IPV4Address", "MACAddress" or "Boolean". */
    Handle setRepresentation(const QString &representation) const
    {
        this->SimpleHandle::setRepresentation(representation);
        return this->handle();
    }

protected:
    using SimpleValued<Handle, Value>::SimpleValued;
};

/*! \brief A handle of an integer. */
class ZELTO_PLATFORM_EXPORT SimpleInteger : public SimpleNumber<SimpleInteger, qint64>
{
public:
    /*! Sets the limits; else they are those of 64 bits. */
    SimpleInteger setRange(qint64 minimum, qint64 maximum) const;
    /*! Sets the distance of the values, counted from the minimum; else it is 1. */
    SimpleInteger setIncrement(qint64 increment) const;

private:
    using SimpleNumber::SimpleNumber;
};

/*! \brief A handle of a floating-point number. */
class ZELTO_PLATFORM_EXPORT SimpleFloat : public SimpleNumber<SimpleFloat, double>
{
public:
    /*! Sets the limits; else there are none. */
    SimpleFloat setRange(double minimum, double maximum) const;
    /*! Sets the distance of the values that editors step to, counted from the minimum; 0, as at first, for
     * none. Values in between can be written. */
    SimpleFloat setIncrement(double increment) const;
    /*! Sets how the value is printed for people; else automatically, with 6 significant digits. */
    SimpleFloat setNotation(GenApi::EDisplayNotation notation, int precision = 6) const;
    /*! Names the integer whose range divides the feature's slider, which "Linear" and "Logarithmic" ones have
     * with an alias alone. */
    SimpleFloat setAlias(const QString &integer) const;

private:
    using SimpleNumber::SimpleNumber;
};

/*! \brief A handle of a Boolean. */
class ZELTO_PLATFORM_EXPORT SimpleBoolean : public SimpleValued<SimpleBoolean, bool>
{
    using SimpleValued::SimpleValued;
};

/*! \brief A handle of a text. */
class ZELTO_PLATFORM_EXPORT SimpleString : public SimpleValued<SimpleString, QString>
{
    using SimpleValued::SimpleValued;
};

/*! \brief A handle of an enumeration; its values are the symbolic names of its entries. */
class ZELTO_PLATFORM_EXPORT SimpleEnumeration : public SimpleValued<SimpleEnumeration, QString>
{
public:
    /*! Sets the symbolic names of the entries that can be chosen, and what people read for each; without
     * \a texts they read the names. */
    SimpleEnumeration setEntries(const QStringList &names, const QStringList &texts = {}) const;

private:
    using SimpleValued::SimpleValued;
};

/*! \brief A handle of a command. */
class ZELTO_PLATFORM_EXPORT SimpleCommand : public SimpleFeature<SimpleCommand>
{
public:
    /*! Sets what the command does; an exception's text is read by the user. Else it does nothing. */
    SimpleCommand onExecute(std::function<void()> execute) const;
    /*! Sets whether the command has completed, which it has at first; its button is held down until then. As
     * SimpleValued::setValue(), from any thread. */
    SimpleCommand setDone(bool isDone) const;

private:
    using SimpleFeature::SimpleFeature;
};

/*! \brief A handle of a category: what parameters are added to.
 *
 * Each name may be given once in a collection. A second time, and an empty one, throw
 * GenICam::InvalidArgumentException.
 */
class ZELTO_PLATFORM_EXPORT SimpleCategory : public SimpleNamed<SimpleCategory>
{
public:
    /*! Adds a category, which is shown as soon as there is something in it. */
    SimpleCategory addCategory(const QString &name) const;
    /*! Adds an integer that has the value \a value. */
    SimpleInteger addInteger(const QString &name, qint64 value = 0) const;
    /*! Adds a number that has the value \a value. */
    SimpleFloat addFloat(const QString &name, double value = 0.0) const;
    /*! Adds a Boolean that has the value \a value. */
    SimpleBoolean addBoolean(const QString &name, bool value = false) const;
    /*! Adds a text. */
    SimpleString addString(const QString &name, const QString &value = {}) const;
    /*! Adds an enumeration that has the first of \a entries. */
    SimpleEnumeration addEnumeration(const QString &name, const QStringList &entries) const;
    /*! Adds a command that can be executed. */
    SimpleCommand addCommand(const QString &name) const;

private:
    using SimpleNamed::SimpleNamed;
    template <typename Handle, typename Parameter>
    Handle add(const QString &name, const QSharedPointer<ParameterData> &snapshot) const;
};

/*! \brief A ready-made parameter collection in memory, filled by handles:
 *
 * \code
 * const auto lamp = QSharedPointer<SimpleCollection>::create("@Lamp");
 * const auto light = lamp->addCategory("Light");
 * light.addFloat("Brightness", 40.0).setRange(0.0, 100.0).setUnit("%");
 * \endcode
 *
 * What users write is checked against type, access, limits, increment and entries, and refused with an
 * exception that says what is allowed. Everything but SimpleValued::setValue() and SimpleCommand::setDone()
 * belongs to the collection's thread, where callbacks are called, too.
 */
class ZELTO_PLATFORM_EXPORT SimpleCollection : public IParameterCollection
{
    Q_OBJECT

public:
    /*! \a name begins the full names of all parameters, such as "@Lamp/Brightness"; by convention it begins
     * with "@". */
    explicit SimpleCollection(const QString &name, QObject *parent = nullptr);
    ~SimpleCollection() override;

    /*! Returns the name that was given to the constructor. */
    QString name() const;
    /*! Returns the category "Root", whose name the top row has. */
    SimpleCategory root() const;
    /*! Adds a category below the root. */
    SimpleCategory addCategory(const QString &name) const;
    /*! Sets the device class word; else that is empty. */
    void setDeviceClass(const QString &word);

    QSharedPointer<IParameter> parameter(const QString &name) const override;
    bool hasParameter(const QString &name) const override;
    QStringList childNames(const QString &parent, int depth, bool fullNames) const override;
    void refresh() override;
    void poll(int elapsedMilliseconds) override;
    QString deviceClass() const override;

protected:
    /*! \brief Chooses the constructor that leaves out the category "Root", which is to be inserted. */
    enum class Without { Root };
    SimpleCollection(const QString &name, Without root);

    /*! Adds a parameter of any class below \a parent, which may be empty; \a node is its common part. Takes
     * the place of one that has its name. */
    void insert(const QString &parent, const QSharedPointer<IParameter> &parameter, SimpleNode *node);
    /*! Returns the common part of the parameter \a name, null when there is none. */
    SimpleNode *findNode(const QString &name) const;
    /*! Gives \a feature a value for each one of \a selector. */
    void selectFeature(const QString &selector, const QString &feature);
    /*! Makes \a alias what look-ups of \a name followed by "/Alias" find. */
    void setAliasOf(const QString &name, const QString &alias);

private:
    friend class SimpleHandle;
    friend class SimpleCategory;
    void requireNew(const QString &name) const;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace ParameterCollection
