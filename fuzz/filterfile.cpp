// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// A node map's filter file as it lies beside the program: whatever it says, features get no more rights than
// the camera gives them.

#include "target.h"

#include <cameras/camera.h>
#include <zeltoviewercomponents/featuretree/nodemapfilter.h>

#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>

using namespace ParameterCollection;

namespace {

QSharedPointer<IParameterCollection> collection;
QList<QSharedPointer<IParameter>> parameters;

QString nodeMapName()
{
    return QStringLiteral("@Fuzz%1_").arg(QCoreApplication::applicationPid());
}

QString fileName()
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + collection->deviceClass()
        + QLatin1Char('_') + nodeMapName().mid(1) + QStringLiteral("_Filter.xml");
}

void checkRights(const IParameter &parameter)
{
    const auto data = parameter.parameterData();
    const GenApi::EAccessMode own = parameter.nodeAccessMode();
    Fuzz::require(!data->isWritable || own == GenApi::RW || own == GenApi::WO, "what is locked stays locked");
    Fuzz::require(!data->isReadable || own == GenApi::RW || own == GenApi::RO,
                  "what cannot be read stays unreadable");
    Fuzz::require(data->isReadable || data->valueString.isEmpty(), "what cannot be read has no value");
}

// The next input begins with a camera on which nothing is imposed.
void reset(const IParameter &parameter)
{
    parameter.propertyAccess()->setProperty(QStringLiteral("Visibility"), QStringLiteral("Beginner"));
    parameter.propertyAccess()->setProperty(QStringLiteral("AccessMode"), QStringLiteral("RW"));
}

void prepare()
{
    static const std::unique_ptr<Cameras::Camera> camera = Cameras::Camera::openEmbedded();
    collection = camera->nodeMaps().constFirst().collection;
    const QStringList names = collection->childNames(QStringLiteral("Root"), 9, false);
    for (const QString &name : names) {
        parameters.append(collection->parameter(name));
    }
}

void run(const QByteArray &input)
{
    QList<ParameterDataPtr> before;
    for (const auto &parameter : std::as_const(parameters)) {
        before.append(parameter->parameterData());
    }
    Fuzz::writeFile(fileName(), input);
    NodeMapFilter::apply(collection, nodeMapName());
    QFile::remove(fileName());
    for (qsizetype i = 0; i < parameters.size(); ++i) {
        if (parameters.at(i)->parameterData() != before.at(i)) {
            checkRights(*parameters.at(i));
            reset(*parameters.at(i));
        }
    }
    Fuzz::settle();
}

const Fuzz::Target target("filterfile", prepare, run, Fuzz::Form::Xml);

} // namespace
