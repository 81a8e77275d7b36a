// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "description_p.h"
#include "deviceptr_p.h"
#include "registerimage_p.h"

#include <platform/parametercollection/parameterdata.h>

#include <QCoreApplication>
#include <QHash>
#include <QString>

#include <memory>
#include <optional>
#include <variant>
#include <vector>

using ArvGcNode = struct _ArvGcNode;

namespace Cameras {

class SimulatedRegisters;

struct ExecuteCommand
{
    bool verify = true;
};

using NodeValue = std::variant<QString, qint64, double, bool, ExecuteCommand>;

/*! \brief One node map as the GenICam engine evaluates it.
 *
 * Not thread-safe, like the engine itself: used on the camera's worker thread alone. Nodes are those of the
 * description.
 */
class Engine
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::Engine)

public:
    struct Reading
    {
        QSharedPointer<ParameterCollection::ParameterData> data;
        GenApi::EAccessMode access = GenApi::NI;
    };

    /*! \a registers are null for a live camera. Throws when the engine cannot read the description. */
    Engine(DevicePtr device, std::shared_ptr<const Description> description,
           std::shared_ptr<SimulatedRegisters> registers);
    ~Engine();
    Q_DISABLE_COPY_MOVE(Engine)

    ParameterCollection::ParameterType type(int node) const;

    /*! \brief What is read of a node. */
    enum class Extent {
        Value,
        Limits, //!< also the limits, and the entries that can be chosen
        Whole, //!< also the current entry where it is none of these
    };

    /*! Reads the node; what cannot be read is told by the snapshot's flags. */
    Reading read(int node, Extent extent = Extent::Whole);

    /*! Writes the node. Throws a GenICam exception that names the feature, the value and what is allowed. */
    void write(int node, const NodeValue &value);

    // What streams need: these features are often kept out of the tree.

    /*! Returns the value of the integer \a name, nothing where there is none or it cannot be read. */
    std::optional<qint64> integer(const QString &name);
    /*! Sets the integer \a name, if there is one. Throws when the camera refuses. */
    void setInteger(const QString &name, qint64 value);
    /*! Executes the command \a name, if there is one. Throws when the camera refuses. */
    void executeNamed(const QString &name);
    /*! Returns the engine's device, which stays ours. */
    ArvDevice *device() const { return m_device.get(); }

    /*! Returns the registers that reading the features touches, those that tell why a feature cannot be read
     * included. */
    RegisterImage::Contents registerContents();

    /*! Returns why the device no longer answers, empty while it does. */
    QString lossReason() const;
    /*! Takes back the loss, since the device answers after all. */
    void forgetLoss();

private:
    class Failure;

    ArvGcNode *engineNode(int node) const;
    ArvGcNode *evaluableNode(const QString &name) const;
    std::vector<int> touchedNodes();
    bool isEvaluable(int node);
    bool isLengthSane(int node);
    GenApi::EAccessMode readAccess(int node);
    void readLimits(int node, ParameterCollection::ParameterData &data);
    void readIntegerLimits(int node, ParameterCollection::IntegerParameterData &data);
    void readFloatLimits(int node, ParameterCollection::FloatParameterData &data);
    QString representation(int node) const;
    bool readValue(int node, ParameterCollection::ParameterData &data);
    bool readInteger(int node, ParameterCollection::IntegerParameterData &data);
    bool readFloat(int node, ParameterCollection::FloatParameterData &data);
    bool readEnum(int node, ParameterCollection::EnumParameterData &data);
    void readEnumEntries(int node, ParameterCollection::EnumParameterData &data);
    void addCurrentEntry(int node, ParameterCollection::EnumParameterData &data);
    bool readCommandDone(int node);
    bool readRegister(int node, QString *text);
    void writeInteger(int node, qint64 value, const QString &text);
    QString integerForm(int node) const;
    void writeFloat(int node, double value, const QString &text);
    void writeEnum(int node, const QString &text);
    void writeString(int node, const QString &text);
    void writeBoolean(int node, bool value);
    void writeText(int node, const QString &text);
    void execute(int node);
    void finishCommand(int node);
    [[noreturn]] void refuse(int node, const QString &text, const QString &allowed) const;

    DevicePtr m_device;
    std::shared_ptr<const Description> m_description;
    std::shared_ptr<SimulatedRegisters> m_registers;
    std::vector<ArvGcNode *> m_nodes;
    std::vector<ParameterCollection::ParameterType> m_types;
    QHash<int, qint64> m_linkedLengths; //!< the longest of each register whose length is a node's value
    qint64 m_linkedBytes = 0; //!< the sum of these
    QString m_lossReason;
};

} // namespace Cameras
