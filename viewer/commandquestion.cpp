// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "commandquestion.h"

#include <platform/parametercollection/parameterdata.h>

using namespace ParameterCollection;

namespace {

/*! \brief The features beside a command. */
class Neighbours
{
public:
    Neighbours(const IParameter &command, const QList<Cameras::NodeMap> &nodeMaps)
    {
        for (const Cameras::NodeMap &nodeMap : nodeMaps) {
            if (command.fullName() == nodeMap.name + QLatin1Char('/') + command.name()) {
                m_nodeMap = nodeMap;
            }
        }
    }

    QString value(const QString &feature) const
    {
        const auto data = snapshot(feature);
        return data && data->isReadable ? data->valueString : QString();
    }

    /*! Returns the chosen entry as the tree shows it. */
    QString entry(const QString &feature) const
    {
        const auto data = snapshot(feature);
        const auto *const entries = dynamic_cast<const EnumParameterData *>(data.data());
        const auto index = entries ? entries->symbolicNames.indexOf(entries->valueString) : -1;
        return entries ? entries->displayTexts.value(index, value(feature)) : value(feature);
    }

private:
    ParameterDataPtr snapshot(const QString &feature) const
    {
        const QString fullName = m_nodeMap.name + QLatin1Char('/') + feature;
        const auto parameter = m_nodeMap.collection ? m_nodeMap.collection->parameter(fullName) : nullptr;
        return parameter ? parameter->parameterData() : nullptr;
    }

    Cameras::NodeMap m_nodeMap;
};

QString fileQuestion(const QString &operation)
{
    if (operation == QLatin1String("Write")) {
        return CommandQuestion::tr("Write to the camera's file \"%1\"?\nWhat the file holds is overwritten.");
    }
    if (operation == QLatin1String("Delete")) {
        return CommandQuestion::tr("Delete the camera's file \"%1\"?\nWhat the file holds is lost.");
    }
    return {};
}

// The place for the name of what is overwritten is marked where there is one.
QString questionBefore(const QString &command, const Neighbours &features)
{
    const QString userSet = features.entry(QStringLiteral("UserSetSelector"));
    if (command == QLatin1String("DeviceReset")) {
        return CommandQuestion::tr("Restart the camera?\nThe connection breaks, and changes that were not "
                                   "saved to one of its user sets are lost.");
    }
    if (command == QLatin1String("DeviceFactoryReset")) {
        return CommandQuestion::tr("Reset the camera to its factory settings?\nAll settings are lost, those "
                                   "saved to its user sets too.");
    }
    if (command == QLatin1String("UserSetLoad")) {
        return CommandQuestion::tr("Load the user set \"%1\"?\nIt overwrites the present settings.")
            .arg(userSet);
    }
    if (command == QLatin1String("UserSetSave")) {
        return CommandQuestion::tr(
                   "Save the present settings to the user set \"%1\"?\nThey overwrite what is "
                   "saved there.")
            .arg(userSet);
    }
    if (command == QLatin1String("FileOperationExecute")) {
        const QString question = fileQuestion(features.value(QStringLiteral("FileOperationSelector")));
        return question.isEmpty() ? question : question.arg(features.entry(QStringLiteral("FileSelector")));
    }
    return {};
}

} // namespace

CommandQuestion::CommandQuestion(const IParameter &command, const QList<Cameras::NodeMap> &nodeMaps)
{
    const QString name = command.name();
    const Neighbours features(command, nodeMaps);
    m_text = questionBefore(name, features);
    m_title = command.propertyAccess()->property(QStringLiteral("DisplayName"), name);
    m_key = name;
    if (name == QLatin1String("FileOperationExecute")) {
        m_key += features.value(QStringLiteral("FileOperationSelector"));
    }
}

QString CommandQuestion::text() const
{
    return m_text;
}

QString CommandQuestion::title() const
{
    return m_title;
}

QString CommandQuestion::key() const
{
    return m_key;
}
