// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorgallery.h"
#include "mainwindow.h"
#include "options.h"

#include <platform/core/exception.h>
#include <zeltoviewercomponents/featuretree/featuretreetext.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/featuretree/ifeaturetreemodelextension.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

namespace {

constexpr int exitBadInput = 2;

QStringList argumentsFrom(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    return arguments;
}

int fail(const QString &reason)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << reason << '\n';
    return exitBadInput;
}

// Without a session there is no run-time directory, of which Qt warns on every start.
void ensureRuntimeDirectory()
{
    if (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        return;
    }
    const QString path = QDir::tempPath() + QStringLiteral("/zelto-viewer-")
        + qEnvironmentVariable("USER", QStringLiteral("user"));
    if (QDir().mkpath(path)) {
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", path.toLocal8Bit());
    }
}

int listCameras()
{
    QTextStream out(stdout);
    const auto cameras = Cameras::Camera::list();
    for (const auto &camera : cameras) {
        out << camera->id() << '\t' << camera->vendorName() << ' ' << camera->modelName() << '\t'
            << camera->serialNumber() << '\t' << camera->deviceClass() << '\n';
    }
    return 0;
}

int dumpTree(MainWindow &window, const Options &options)
{
    QTextStream out(stdout);
    FeatureTreeView *const view = window.featureTree()->treeView();
    const QModelIndex top =
        options.favorites ? view->getFeatureExtension()->GetFavoritesRootIndex() : QModelIndex();
    writeFeatureTree(out, *view->model(), top);
    return 0;
}

int renderTo(QWidget &widget, const QString &fileName)
{
    widget.show();
    for (int i = 0; i < 5; ++i) {
        QApplication::processEvents();
    }
    return widget.grab().save(fileName)
        ? 0
        : fail(QCoreApplication::translate("main", "Cannot write %1.").arg(fileName));
}

int show(QWidget &widget, const Options &options)
{
    if (!options.screenshot.isEmpty()) {
        return renderTo(widget, options.screenshot);
    }
    widget.show();
    return QApplication::exec();
}

int showGallery(const Options &options)
{
    const auto camera = MainWindow::cameraFor(options);
    QList<QSharedPointer<ParameterCollection::IParameterCollection>> collections;
    const auto nodeMaps = camera->nodeMaps();
    for (const Cameras::NodeMap &nodeMap : nodeMaps) {
        collections.append(nodeMap.collection);
    }
    EditorGallery gallery(collections);
    return show(gallery, options);
}

int run(const Options &options)
{
    if (options.list) {
        return listCameras();
    }
    if (options.editors) {
        return showGallery(options);
    }
    MainWindow window;
    window.openCamera(options);
    window.applyOptions(options);
    return options.dump || options.favorites ? dumpTree(window, options) : show(window, options);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setOrganizationName(QStringLiteral("Zelto"));
    QCoreApplication::setApplicationName(QStringLiteral("zelto-viewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZELTO_VERSION));

    // Read before the application exists: it needs to know whether there has to be a display.
    const ParsedOptions parsed = parseOptions(argumentsFrom(argc, argv));
    if (!parsed.error.isEmpty()) {
        return fail(parsed.error);
    }
    const Options &options = parsed.options;
    if (!options.helpText.isEmpty()) {
        QTextStream(stdout) << options.helpText;
        return 0;
    }
    if (!options.isInteractive()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    ensureRuntimeDirectory();
    QApplication application(argc, argv);
    try {
        return run(options);
    } catch (const Core::Exception::BaseException &exception) {
        return fail(exception.getMessage());
    }
}
