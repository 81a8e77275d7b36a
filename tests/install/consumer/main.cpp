// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <platform/core/service.h>
#include <zeltoviewercomponents/errorhandling/asyncerrorqueue.h>
#include <zeltoviewercomponents/errorhandling/messagefunctions.h>
#include <zeltoviewercomponents/plugin/ZeltoViewer/izeltoviewercontrolledcameracontrolservice.h>
#include <zeltoviewercomponents/translations.h>

#include <QApplication>
#include <QFile>
#include <QLocale>

#include <cstdio>

namespace {

class CameraControl : public Plugin::ZeltoViewer::IZeltoViewerControlledCameraControlService
{
public:
    using IZeltoViewerControlledCameraControlService::IZeltoViewerControlledCameraControlService;
    bool setCameraOpen(bool open) override { return open; }
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    installTranslations(QLocale(QStringLiteral("de")));
    if (QApplication::translate("FeatureTreeWidget", "Remove") != QStringLiteral("Entfernen")
        || !QFile::exists(QStringLiteral(":/zeltoviewercomponents/Resources/Default_Filter.xml"))) {
        return 2;
    }
    const CameraControl service(&application);
    if (!qobject_cast<const Core::Service::IService *>(&service)) {
        return 1;
    }
    QObject::connect(GetTheGlobalAsyncErrorQueue(), &AsyncErrorQueue::displayError, &application,
                     [](AsyncErrorQueue::ErrorSeverity, const QString &message) {
                         std::printf("message: %s\n", qPrintable(message));
                         QCoreApplication::quit();
                     });
    showErrorMessage(QStringLiteral("it works"));
    return QApplication::exec();
}
