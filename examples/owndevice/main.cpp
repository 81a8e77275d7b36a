// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// A device of an application's own, which lives in a thread: values go there and are waited for, since
// whoever writes has to hear of a refusal; what the device does by itself comes back whenever it likes.

#include <platform/parametercollection/simplecollection.h>
#include <zeltoviewercomponents/errorhandling/asyncerrorqueue.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QApplication>
#include <QMessageBox>
#include <QThread>
#include <QTimer>

#include <stdexcept>

using namespace ParameterCollection;

/*! \brief The device: an oven, which heats until its temperature is the one that is wanted. */
class Oven : public QObject
{
    Q_OBJECT

public:
    // Throws, as drivers do.
    void setWanted(double celsius)
    {
        if (m_isDoorOpen && celsius > m_temperature) {
            throw std::runtime_error("The oven does not heat while its door is open");
        }
        m_wanted = celsius;
    }
    void setDoorOpen(bool isOpen) { m_isDoorOpen = isOpen; }

signals:
    void temperatureChanged(double celsius);

public slots:
    void start()
    {
        auto *const timer = new QTimer(this);
        connect(timer, SIGNAL(timeout()), this, SLOT(heat()));
        timer->start(200);
    }

private slots:
    void heat()
    {
        m_temperature += qBound(-2.0, m_wanted - m_temperature, 2.0);
        emit temperatureChanged(m_temperature);
    }

private:
    double m_temperature = 20.0;
    double m_wanted = 20.0;
    bool m_isDoorOpen = false;
};

// Runs work in the device's thread and waits; what it throws is thrown here.
template <typename Work>
void runThere(QObject *device, Work work)
{
    std::exception_ptr failure;
    QMetaObject::invokeMethod(
        device,
        [&] {
            try {
                work();
            } catch (...) {
                failure = std::current_exception();
            }
        },
        Qt::BlockingQueuedConnection);
    if (failure) {
        std::rethrow_exception(failure);
    }
}

QSharedPointer<SimpleCollection> parametersOf(Oven *oven)
{
    const auto parameters = QSharedPointer<SimpleCollection>::create(QStringLiteral("@Oven"));
    const auto heating = parameters->addCategory(QStringLiteral("Heating"));
    heating.addFloat(QStringLiteral("WantedTemperature"), 20.0)
        .setDisplayName(QStringLiteral("Wanted Temperature"))
        .setRange(20.0, 250.0)
        .setUnit(QStringLiteral("°C"))
        .onWrite([oven](double celsius) { runThere(oven, [=] { oven->setWanted(celsius); }); });
    const auto temperature = heating.addFloat(QStringLiteral("Temperature"), 20.0)
                                 .setUnit(QStringLiteral("°C"))
                                 .setAccess(GenApi::RO);
    heating.addBoolean(QStringLiteral("DoorOpen"))
        .setDisplayName(QStringLiteral("Door Open"))
        .onWrite([oven](bool isOpen) { runThere(oven, [=] { oven->setDoorOpen(isOpen); }); });
    // In the device's thread: a handle may be used from there.
    QObject::connect(oven, &Oven::temperatureChanged, oven,
                     [temperature](double celsius) { temperature.setValue(celsius); });
    return parameters;
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);

    QThread thread;
    auto *const oven = new Oven;
    const auto parameters = parametersOf(oven);
    oven->moveToThread(&thread);
    QObject::connect(&thread, SIGNAL(started()), oven, SLOT(start()));
    QObject::connect(&thread, SIGNAL(finished()), oven, SLOT(deleteLater()));
    thread.start();

    FeatureTreeWidget tree;
    tree.addParameterCollection(parameters, QStringLiteral("Oven"), QStringLiteral("@Oven"), true);
    tree.expandTree();
    tree.show();
    // The texts of refusals, and all other messages, arrive here.
    QObject::connect(GetTheGlobalAsyncErrorQueue(), &AsyncErrorQueue::displayError, &tree,
                     [&tree](AsyncErrorQueue::ErrorSeverity, const QString &message) {
                         QMessageBox::warning(&tree, QStringLiteral("Oven"), message);
                     });

    if (application.arguments().contains(QLatin1String("--once"))) {
        // Ends when the device has told of a temperature.
        parameters->parameter(QStringLiteral("WantedTemperature"))->setValueFromString(QStringLiteral("80"));
        const auto temperature = parameters->parameter(QStringLiteral("Temperature"));
        QObject::connect(temperature.data(), &IParameter::parameterDataChangedDecoupled, &application,
                         &QApplication::quit);
    }
    const int result = QApplication::exec();
    thread.quit();
    thread.wait();
    return result;
}

#include "main.moc"
