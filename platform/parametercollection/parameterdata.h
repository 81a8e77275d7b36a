// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>
#include <platform/platform_export.h>

#include <QMetaType>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

namespace ParameterCollection {

/*! \brief The kind of a parameter; codes above Category are treated like Unknown. */
enum class ParameterType : quint32 {
    Unknown = 0,
    Integer = 1,
    Boolean = 2,
    Float = 3,
    Command = 4,
    String = 5,
    Enumeration = 6,
    Category = 7,
};

/*! Returns whether parameters of \a type are features: they have a value or do something. */
constexpr bool isFeatureType(ParameterType type)
{
    return type > ParameterType::Unknown && type < ParameterType::Category;
}

/*! \brief Snapshot of a parameter's dynamic state.
 *
 * A snapshot is filled by its maker and shared as QSharedPointer<const ParameterData>; from then on it never
 * changes, so it may be read on any thread. Typed parameters deliver derived records.
 */
class ZELTO_PLATFORM_EXPORT ParameterData
{
public:
    /*! Makes a snapshot that nothing can be done with, and that no level shows: all flags and the
     * visibility have to be set. */
    explicit ParameterData(ParameterType parameterType = ParameterType::Unknown);
    /*! Copies all fields. */
    ParameterData(const ParameterData &) = default;
    /*! Copies all fields. */
    ParameterData &operator=(const ParameterData &) = default;
    virtual ~ParameterData();

    /*! Returns whether \a other is a record of the same class with the same contents. */
    virtual bool equals(const ParameterData &other) const;
    /*! Returns a new record of the same class with the same contents. */
    virtual QSharedPointer<ParameterData> copy() const;

    /*! Returns what can be done with the parameter, as the three flags say it. */
    GenApi::EAccessMode accessMode() const;
    /*! Sets the three flags to what \a mode allows. */
    void setAccessMode(GenApi::EAccessMode mode);

    ParameterType type; //!< as given to the constructor
    /*! The level from which on the row is shown. Left out: shown at no level, and logged as a mistake. */
    GenApi::EVisibility visibility = GenApi::UndefinedVisibility;
    bool isReadable = false; //!< the value can be read now; left out: the row shows no value
    bool isWritable = false; //!< the value can be written now; left out: the editor is disabled
    bool isImplemented = false; //!< the node exists on this device; left out: the row is hidden
    bool isCacheable = true; //!< whether the value may be kept between reads; not consulted by the tree
    /*! The current value as text, with all digits. Left out: an empty cell, and nothing to compare with. */
    QString valueString;
};

/*! \brief Snapshot of an integer with its limits. */
class ZELTO_PLATFORM_EXPORT IntegerParameterData : public ParameterData
{
public:
    IntegerParameterData();
    ~IntegerParameterData() override;
    bool equals(const ParameterData &other) const override;
    QSharedPointer<ParameterData> copy() const override;

    qint64 value = 0; //!< the current value
    qint64 minimum = 0; //!< the least value; left out: 0
    qint64 maximum = 0; //!< the largest value; left out: 0, so that nothing else can be entered
    qint64 increment = 1; //!< the distance of the values, counted from the minimum
    QString
        representation; //!< GenICam representation, "PureNumber" when the description has none; never empty
};

/*! \brief Snapshot of a floating-point number with its limits and how it is to be printed. */
class ZELTO_PLATFORM_EXPORT FloatParameterData : public ParameterData
{
public:
    FloatParameterData();
    ~FloatParameterData() override;
    bool equals(const ParameterData &other) const override;
    QSharedPointer<ParameterData> copy() const override;

    double value = 0.0; //!< the current value
    double minimum = 0.0; //!< the least value; left out: 0
    double maximum = 0.0; //!< the largest value; left out: 0, so that nothing else can be entered
    double increment = 0.0; //!< 0 when the feature has none
    QString representation; //!< as for integers
    GenApi::EDisplayNotation displayNotation = GenApi::fnAutomatic; //!< how people read it
    int displayPrecision = 6; //!< significant digits asked for by the description
};

/*! \brief Snapshot of a boolean. */
class ZELTO_PLATFORM_EXPORT BooleanParameterData : public ParameterData
{
public:
    BooleanParameterData();
    ~BooleanParameterData() override;
    bool equals(const ParameterData &other) const override;
    QSharedPointer<ParameterData> copy() const override;

    bool value = false; //!< the current value
};

/*! \brief Snapshot of a command. */
class ZELTO_PLATFORM_EXPORT CommandParameterData : public ParameterData
{
public:
    CommandParameterData();
    ~CommandParameterData() override;
    bool equals(const ParameterData &other) const override;
    QSharedPointer<ParameterData> copy() const override;

    bool isDone = true; //!< the command has completed, or never ran
};

/*! \brief Snapshot of an enumeration with its entries; the current one is valueString. */
class ZELTO_PLATFORM_EXPORT EnumParameterData : public ParameterData
{
public:
    EnumParameterData();
    ~EnumParameterData() override;
    bool equals(const ParameterData &other) const override;
    QSharedPointer<ParameterData> copy() const override;

    QStringList symbolicNames; //!< of the entries that can be chosen now
    QStringList displayTexts; //!< same length and order
};

using ParameterDataPtr = QSharedPointer<const ParameterData>;

/*! Returns a new record of the class that parameters of \a type deliver. */
ZELTO_PLATFORM_EXPORT QSharedPointer<ParameterData> newParameterData(ParameterType type);

} // namespace ParameterCollection

Q_DECLARE_METATYPE(QSharedPointer<const ParameterCollection::ParameterData>)
