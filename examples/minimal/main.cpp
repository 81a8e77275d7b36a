// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <platform/parametercollection/simplecollection.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);

    const auto lamp = QSharedPointer<ParameterCollection::SimpleCollection>::create("@Lamp");
    const auto light = lamp->addCategory("Light");
    light.addFloat("Brightness", 40.0).setRange(0.0, 100.0).setUnit("%").setTooltip("How bright it shines");
    light.addEnumeration("Colour", {"White", "Red", "Infrared"});
    light.addInteger("PulseLength", 500)
        .setRange(10, 1000)
        .setDisplayName("Pulse length")
        .onWrite([](qint64 microseconds) { qInfo("The lamp pulses for %lld us", microseconds); });
    light.addCommand("Flash").onExecute([] { qInfo("The lamp flashes"); });

    FeatureTreeWidget tree;
    tree.addParameterCollection(lamp, "Lamp", "@Lamp", true);
    tree.expandTree();
    tree.show();
    return application.exec();
}
