// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "parameterdata.h"

#include <platform/genicam/genapi.h>
#include <platform/platform_export.h>

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace ParameterCollection {

/*! \brief One access to a parameter within a batch. */
struct BatchOperation
{
    /*! \brief What is done with the parameter. */
    enum class Kind { Read, Write };

    /*! \brief What the outcome is to tell of the parameter; more is allowed. */
    enum class Detail {
        Nothing, //!< unless the operation is refused
        Value, //!< without limits and entries
        Everything,
    };

    Kind kind = Kind::Read; //!< what is done
    QString name; //!< as IParameterCollection::parameter() takes it
    QString value; //!< to be written, as IParameter::setValueFromString() takes it
    Detail detail = Detail::Everything; //!< what the outcome has to tell
};

/*! \brief What came of a BatchOperation. */
struct BatchOutcome
{
    ParameterDataPtr data; //!< read from the device after the operation; null when there is none to be had
    GenApi::EAccessMode access = GenApi::NI; //!< the node's own, not limited by what was imposed
    QString failure; //!< why the operation was refused, empty when it was not
    double resolution = 0.0; //!< after a write: what the device cannot tell apart of a number, if known
    bool isLost = false; //!< the device does not answer any more
};

/*! \brief A sequence of operations, each of which may depend on what came of those before. */
class ZELTO_PLATFORM_EXPORT IBatch
{
public:
    virtual ~IBatch();

    /*! Returns the next operation, nothing at the end of the batch. The first call gets an empty outcome.
     * Calls come one after the other, from a thread of the runner's choice. */
    virtual std::optional<BatchOperation> next(const BatchOutcome &previous) = 0;

protected:
    IBatch() = default;
    Q_DISABLE_COPY_MOVE(IBatch)
};

/*! \brief Optional face of a parameter collection that carries out batches on a thread of its own.
 *
 * Obtained with qobject_cast from the collection.
 */
class ZELTO_PLATFORM_EXPORT IBatchRunner
{
public:
    virtual ~IBatchRunner();

    /*! Carries out \a batch and returns at once. Other operations on the collection are served in between.
     * Parameters whose values may have changed publish them when the batch is over, not while it runs.
     * Without a device, operations are answered as lost, so that every batch comes to its end. */
    virtual void runBatch(std::shared_ptr<IBatch> batch) = 0;

protected:
    IBatchRunner() = default;
    Q_DISABLE_COPY_MOVE(IBatchRunner)
};

} // namespace ParameterCollection

Q_DECLARE_INTERFACE(ParameterCollection::IBatchRunner, "zelto.ParameterCollection.IBatchRunner/1.0")
