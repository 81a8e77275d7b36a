// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settings.h"

#include "gil.h"

#include <platform/genicam/genericexception.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>
#include <zeltoviewercomponents/settings/settingsreader.h>
#include <zeltoviewercomponents/settings/settingstask.h>

#include <QCoreApplication>
#include <QEventLoop>

namespace {

QList<SettingsNodeMap> shared(const QList<PythonNodeMap> &nodeMaps)
{
    QList<SettingsNodeMap> result;
    for (const PythonNodeMap &map : nodeMaps) {
        result.append({map.name(), map.collection().shared()});
    }
    return result;
}

void runToItsEnd(SettingsTask &task)
{
    if (!QCoreApplication::instance()) {
        throw GenICam::LogicalErrorException(QStringLiteral("There is no QApplication yet"));
    }
    const WithoutGil free;
    QEventLoop loop;
    QObject::connect(&task, SIGNAL(finished()), &loop, SLOT(quit()));
    task.start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (task.isRunning()) {
        throw GenICam::RuntimeException(QStringLiteral("The program ends"));
    }
}

} // namespace

FeatureSettings readSettings(const QList<PythonNodeMap> &nodeMaps)
{
    SettingsReader reader(shared(nodeMaps));
    runToItsEnd(reader);
    return reader.settings();
}

SettingsReport applySettings(const FeatureSettings &settings, const QList<PythonNodeMap> &nodeMaps)
{
    SettingsApplier applier(settings, shared(nodeMaps), SettingsApplier::Before::Forget);
    runToItsEnd(applier);
    return applier.report();
}
