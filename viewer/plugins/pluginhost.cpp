// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "pluginhost.h"

#include "iviewerplugin.h"

#include <platform/core/guard.h>

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>
#include <QPluginLoader>
#include <QSet>

ZELTO_LOG_CATEGORY("zelto.viewer.plugins")

namespace {

QWidget *panelOf(IViewerPlugin *plugin, const QString &name, QObject *services, QWidget *parent)
{
    return Core::guarded({logCategory(), "PluginHost::createPanels"},
                         QStringLiteral("The plug-in %1 failed to make its panel").arg(name),
                         static_cast<QWidget *>(nullptr),
                         [=] { return plugin->createPanel(services, parent); });
}

QWidget *createPanel(const QString &fileName, QObject *services, QWidget *parent)
{
    QPluginLoader loader(fileName);
    auto *const plugin = qobject_cast<IViewerPlugin *>(loader.instance());
    if (!plugin) {
        const QString reason =
            loader.isLoaded() ? QStringLiteral("it is no plug-in of this viewer") : loader.errorString();
        Core::Logging::createLogEntry(Core::Logging::ELogLevel::Warning, logCategory(),
                                      QStringLiteral("Cannot use the plug-in %1: %2").arg(fileName, reason));
        loader.unload();
        return nullptr;
    }
    return panelOf(plugin, fileName, services, parent);
}

} // namespace

QStringList PluginHost::folders()
{
    const QString program = QCoreApplication::applicationDirPath() + QLatin1Char('/');
    return {program + QStringLiteral("plugins"), program + QStringLiteral(ZELTO_PLUGINS_FROM_BINARY)};
}

QList<QWidget *> PluginHost::createPanels(const QStringList &folders, QObject *services, QWidget *parent)
{
    QList<QWidget *> panels;
    const QObjectList builtIn = QPluginLoader::staticInstances();
    for (QObject *const instance : builtIn) {
        auto *const plugin = qobject_cast<IViewerPlugin *>(instance);
        const QString name = QString::fromLatin1(instance->metaObject()->className());
        if (QWidget *const panel = plugin ? panelOf(plugin, name, services, parent) : nullptr) {
            panels.append(panel);
        }
    }
    QSet<QString> seen;
    for (const QString &folder : folders) {
        const auto files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
        for (const QFileInfo &file : files) {
            if (!QLibrary::isLibrary(file.fileName()) || seen.contains(file.fileName())) {
                continue;
            }
            seen.insert(file.fileName());
            if (QWidget *const panel = createPanel(file.filePath(), services, parent)) {
                panels.append(panel);
            }
        }
    }
    return panels;
}
