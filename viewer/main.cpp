// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "allocation.h"
#include "cameraaddress.h"
#include "colours.h"
#include "commandline.h"
#include "featuresamples.h"
#include "languages.h"
#include "mainwindow.h"
#include "options.h"
#include "treejson.h"

#include <platform/core/savefile.h>
#include <platform/version.h>
#include <zeltoviewercomponents/featuretree/featuretreetext.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/featuretree/ifeaturetreemodelextension.h>
#include <zeltoviewercomponents/translations.h>

#include <QApplication>
#include <QHeaderView>
#include <QIcon>
#include <QJsonDocument>
#include <QLocale>
#include <QLoggingCategory>
#include <QTextStream>
#include <QTimer>

#include <cstdlib>
#include <exception>

namespace {

CameraAddress addressIn(const Options &options)
{
    return {options.description, options.camera, options.zeroed, options.registers};
}

constexpr int exitBadInput = 2;
constexpr QSize gallerySize(640, 480);
constexpr int openingPatience = 150; // milliseconds

QStringList argumentsFrom(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        if (qstrcmp(argv[i], "-session") == 0) {
            ++i; // for Qt, from a session manager that starts again what was open when the user left
        } else {
            arguments.append(QString::fromLocal8Bit(argv[i]));
        }
    }
    return arguments;
}

int fail(const QString &reason)
{
    QString line = reason;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << line << '\n';
    return exitBadInput;
}

// Keeps the start of the application silent. Where no window can be shown, the platform's layer would say so
// in several lines and abort.
void onMessageWhileStarting(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type == QtFatalMsg) {
        std::_Exit(fail(QStringLiteral("There is no display to show a window on.")));
    }
}

int finish(QTextStream &out)
{
    out.flush();
    return out.status() == QTextStream::Ok
        ? 0
        : fail(QCoreApplication::translate("main", "Cannot write to the standard output."));
}

// For scripts, hence the same in every language.
QString stateWord(Cameras::CameraStatus::State state)
{
    switch (state) {
    case Cameras::CameraStatus::State::Available:
        return QStringLiteral("available");
    case Cameras::CameraStatus::State::ReadOnly:
        return QStringLiteral("in use");
    case Cameras::CameraStatus::State::Exclusive:
        return QStringLiteral("in exclusive use");
    case Cameras::CameraStatus::State::OtherSubnet:
        return QStringLiteral("not in this subnet");
    case Cameras::CameraStatus::State::NoAnswer:
        return QStringLiteral("no answer");
    default:
        return QStringLiteral("unknown");
    }
}

int listCameras()
{
    QTextStream out(stdout);
    const auto cameras = Cameras::Camera::list();
    for (const auto &camera : cameras) {
        const Cameras::CameraStatus status = Cameras::Camera::status(camera->id());
        out << camera->id() << '\t' << camera->vendorName() << ' ' << camera->modelName() << '\t'
            << camera->serialNumber() << '\t' << camera->deviceClass() << '\t' << status.address << '\t'
            << stateWord(status.state) << '\t' << status.controller << '\n';
    }
    return finish(out);
}

int dumpTree(MainWindow &window, const Options &options)
{
    QTextStream out(stdout);
    FeatureTreeView *const view = window.featureTree()->treeView();
    const QModelIndex top =
        options.favorites ? view->getFeatureExtension()->GetFavoritesRootIndex() : QModelIndex();
    if (options.json) {
        out << QJsonDocument(featureTreeJson(*view->model())).toJson();
    } else if (!options.favorites || top.isValid()) { // a search may leave nothing of the favorites
        writeFeatureTree(out, *view->model(), top);
    }
    return finish(out);
}

void setLevel(FeatureTreeWidget &tree, const Options &options)
{
    if (options.visibility && *options.visibility != tree.visibility()) {
        tree.onVisibilityChanged(*options.visibility);
    }
}

void lookAt(FeatureTreeWidget &tree, const Options &options)
{
    setLevel(tree, options); // the camera may have been looked at with another one
    if (options.expand) {
        tree.treeView()->expandEverything();
    }
    if (!options.search.isEmpty()) {
        tree.setSearchText(options.search);
    }
}

int renderTo(QWidget &widget, const QString &fileName)
{
    widget.show();
    for (int i = 0; i < 5; ++i) {
        QApplication::processEvents();
    }
    return widget.grab().save(fileName, "PNG")
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

// A tree with one feature of each kind that the camera has.
int showGallery(const Options &options)
{
    const auto camera = cameraAt(addressIn(options));
    FeatureTreeWidget tree(QStringLiteral("editors"));
    tree.setVisibility(GenApi::Invisible);
    QSet<QString> kinds;
    const auto nodeMaps = camera->nodeMaps();
    for (const Cameras::NodeMap &nodeMap : nodeMaps) {
        const auto samples = QSharedPointer<FeatureSamples>::create(nodeMap.collection, kinds);
        if (!samples->isEmpty()) {
            tree.addParameterCollection(samples, nodeMap.title, nodeMap.name, nodeMap.usesUtf8);
        }
    }
    tree.expandRootNodes();
    tree.treeView()->header()->resizeSection(0, gallerySize.width() * 2 / 5);
    tree.setWindowTitle(QCoreApplication::translate("main", "Value Editors – Zelto Viewer"));
    tree.resize(gallerySize);
    return show(tree, options);
}

int saveRegisters(const Options &options)
{
    const QByteArray image = cameraAt(addressIn(options))->registerImage();
    if (options.saveRegisters == QLatin1String("-")) {
        QTextStream out(stdout);
        out << QString::fromUtf8(image);
        return finish(out);
    }
    const QString failure = Core::saveFile(options.saveRegisters, image);
    return failure.isEmpty()
        ? 0
        : fail(
            QCoreApplication::translate("main", "Cannot write %1: %2").arg(options.saveRegisters, failure));
}

// Shows the window with its camera or, where that takes long, with the page that says how far it is: most
// descriptions are open before somebody could read the page, and it would be painted for nothing.
int showWhileOpening(MainWindow &window)
{
    QTimer patience;
    patience.setSingleShot(true);
    QObject::connect(&patience, &QTimer::timeout, &window, &QWidget::show);
    QObject::connect(
        &window, &MainWindow::cameraOpened, &patience,
        [&window, &patience] {
            patience.stop();
            window.show();
        },
        Qt::SingleShotConnection);
    patience.start(openingPatience);
    return QApplication::exec();
}

int run(const Options &options)
{
    if (options.list) {
        return listCameras();
    }
    if (!options.operations.isEmpty()) {
        return CommandLine(*cameraAt(addressIn(options)), options).run();
    }
    if (options.editors) {
        return showGallery(options);
    }
    if (!options.saveRegisters.isEmpty()) {
        return saveRegisters(options);
    }
    MainWindow window;
    const CameraAddress address = addressIn(options);
    FeatureTreeWidget &tree = *window.featureTree();
    if (options.isInteractive()) {
        QObject::connect(
            &window, &MainWindow::cameraOpened, &tree, [&] { lookAt(tree, options); },
            Qt::SingleShotConnection);
        setLevel(tree, options); // before there are rows that would be laid out twice
        window.openCamera(address);
        return showWhileOpening(window);
    }
    window.setRemembering(false);
    setLevel(tree, options);
    window.showCamera(address, cameraAt(address));
    lookAt(tree, options);
    return options.dump || options.favorites ? dumpTree(window, options) : show(window, options);
}

} // namespace

int main(int argc, char **argv)
{
    returnMemoryOfImages();
    QCoreApplication::setOrganizationName(QStringLiteral("Zelto"));
    QCoreApplication::setApplicationName(QStringLiteral("zelto-viewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZELTO_VERSION_STRING));

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
        // That platform grumbles about what it cannot do with windows, which is nothing to a script.
        QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    }
    const QtMessageHandler standardHandler = qInstallMessageHandler(onMessageWhileStarting);
    QApplication application(argc, argv);
    qInstallMessageHandler(standardHandler);
    QGuiApplication::setDesktopFileName(QStringLiteral("org.zelto.viewer"));
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QGuiApplication::desktopFileName(),
                                                    QIcon(QStringLiteral(":/org.zelto.viewer_64.png"))));
    installTranslations(chosenLanguage());
    setUpColours();
    try {
        return run(options);
    } catch (const std::exception &exception) {
        return fail(QString::fromUtf8(exception.what()));
    }
}
