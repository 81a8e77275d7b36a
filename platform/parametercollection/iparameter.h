// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "nodepropertyaccess.h"
#include "parameterdata.h"

#include <platform/platform_export.h>

#include <QObject>
#include <QSharedPointer>

namespace ParameterCollection {

/*! \brief One parameter (node) of a collection.
 *
 * Always held by QSharedPointer; the typed interfaces are obtained with qSharedPointerObjectCast. Any
 * operation may throw. Called on the GUI thread.
 */
class ZELTO_PLATFORM_EXPORT IParameter : public QObject
{
    Q_OBJECT

public:
    ~IParameter() override;

    /*! Writes the value given as \a text. The node's own access decides, not an imposed one. Throws an
     * exception that names the feature, the text and what is allowed. */
    virtual void setValueFromString(const QString &text) = 0;

    /*! Returns whether the parameter is to be kept out of the tree. */
    virtual bool isExcluded() const = 0;

    /*! Returns whether the tree may write now: the node's own access, limited by what was imposed. */
    virtual bool isWritableNow() const = 0;

    /*! Returns the visibility, imposed or own, whichever shows less. */
    virtual GenApi::EVisibility visibility() const = 0;
    /*! Returns the parameter's kind. */
    virtual ParameterType type() const = 0;
    /*! Returns the path within the collection's tree, such as "@CameraDevice/ExposureTime". */
    virtual QString fullName() const = 0;
    /*! Returns the short name, such as "ExposureTime". */
    virtual QString name() const = 0;
    /*! Returns the access to the node's static properties. */
    virtual QSharedPointer<NodePropertyAccess> propertyAccess() const = 0;

    /*! Returns the current snapshot. Never touches the device. */
    virtual QSharedPointer<const ParameterData> parameterData() const = 0;

    /*! Asks for a re-read of the node soon. With \a force the result is published even when it equals the
     * current snapshot, else only when it differs. */
    virtual void scheduleParameterDataChangedCheck(bool force) = 0;

    /*! Returns whether properties may be imposed although the parameter is excluded from the tree. */
    virtual bool isImposingAllowed() const = 0;

    /*! Returns the node's own access at the time of the current snapshot, not limited by what was imposed. */
    virtual GenApi::EAccessMode nodeAccessMode() const = 0;

Q_SIGNALS:
    /*! A new snapshot; delivered on the receiver's thread, never from inside a call of the receiver. */
    void parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData> data);

protected:
    explicit IParameter(QObject *parent = nullptr);
};

/*! \brief An integer feature; its snapshots are IntegerParameterData. */
class ZELTO_PLATFORM_EXPORT IIntegerParameter : public IParameter
{
    Q_OBJECT

public:
    ~IIntegerParameter() override;
    /*! Writes \a value. */
    virtual void setValue(qint64 value) = 0;

protected:
    using IParameter::IParameter;
};

/*! \brief A floating-point feature; its snapshots are FloatParameterData. */
class ZELTO_PLATFORM_EXPORT IFloatParameter : public IParameter
{
    Q_OBJECT

public:
    ~IFloatParameter() override;
    /*! Writes \a value. */
    virtual void setValue(double value) = 0;

protected:
    using IParameter::IParameter;
};

/*! \brief An enumeration; its snapshots are EnumParameterData. */
class ZELTO_PLATFORM_EXPORT IEnumParameter : public IParameter
{
    Q_OBJECT

public:
    ~IEnumParameter() override;
    /*! Selects the entry with the symbolic name \a name. */
    virtual void setValue(const QString &name) = 0;

protected:
    using IParameter::IParameter;
};

/*! \brief A command; its snapshots are CommandParameterData. */
class ZELTO_PLATFORM_EXPORT ICommandParameter : public IParameter
{
    Q_OBJECT

public:
    ~ICommandParameter() override;
    /*! Executes the command; with \a verify the access mode is checked first. */
    virtual void execute(bool verify) = 0;

protected:
    using IParameter::IParameter;
};

/*! \brief A boolean feature; its snapshots are BooleanParameterData. */
class ZELTO_PLATFORM_EXPORT IBooleanParameter : public IParameter
{
    Q_OBJECT

public:
    ~IBooleanParameter() override;
    /*! Writes \a value. */
    virtual void setValue(bool value) = 0;

protected:
    using IParameter::IParameter;
};

} // namespace ParameterCollection
