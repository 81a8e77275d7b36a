// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "designerplugin.h"

#include "customwidget.h"

#include <platform/parametercollection/simplecollection.h>
#include <zeltoviewercomponents/errorhandling/helplink.h>
#include <zeltoviewercomponents/featuretree/comboslider.h>
#include <zeltoviewercomponents/featuretree/doublespinbox.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/featuretree/searchedit.h>
#include <zeltoviewercomponents/featuretree/twomodedoublecomboslider.h>
#include <zeltoviewercomponents/network/ipaddresswidget.h>

#include <QUrl>

namespace {

QSharedPointer<ParameterCollection::SimpleCollection> sampleCamera()
{
    const auto camera =
        QSharedPointer<ParameterCollection::SimpleCollection>::create(QStringLiteral("@CameraDevice"));
    const auto acquisition = camera->addCategory(QStringLiteral("Acquisition Control"));
    acquisition.addFloat(QStringLiteral("ExposureTime"), 5000.0)
        .setRange(10.0, 1e6)
        .setUnit(QStringLiteral("us"));
    acquisition.addFloat(QStringLiteral("Gain"), 1.5).setRange(0.0, 24.0).setIncrement(0.1);
    acquisition.addBoolean(QStringLiteral("ReverseX"));
    acquisition.addEnumeration(QStringLiteral("PixelFormat"),
                               {QStringLiteral("Mono8"), QStringLiteral("Mono12")});
    acquisition.addInteger(QStringLiteral("Width"), 640)
        .setRange(16, 1920)
        .setIncrement(16)
        .setRepresentation(QStringLiteral("Linear"));
    acquisition.addCommand(QStringLiteral("TriggerSoftware"));
    return camera;
}

void showSampleCamera(QWidget *widget)
{
    auto *const tree = qobject_cast<FeatureTreeWidget *>(widget);
    tree->addParameterCollection(sampleCamera(), QStringLiteral("Camera"), QStringLiteral("@CameraDevice"),
                                 true);
    tree->expandTree();
}

template <typename Widget>
CustomWidgetTraits traitsOf(const QString &folder, const QString &icon, const QString &tooltip,
                            const QString &properties = {}, void (*fill)(QWidget *) = nullptr)
{
    const QString name = QString::fromLatin1(Widget::staticMetaObject.className());
    return {name,
            QStringLiteral("zeltoviewercomponents/%1/%2.h").arg(folder, name.toLower()),
            QStringLiteral(":/zeltoviewercomponents/Resources/") + icon,
            tooltip,
            properties,
            [](QWidget *parent) { return new Widget(parent); },
            fill};
}

QString size(int width, int height)
{
    return QStringLiteral("<property name=\"geometry\"><rect><x>0</x><y>0</y><width>%1</width>"
                          "<height>%2</height></rect></property>")
        .arg(width)
        .arg(height);
}

} // namespace

DesignerPlugin::DesignerPlugin(QObject *parent)
    : QObject(parent)
{
    const QString tree = QStringLiteral("featuretree");
    const QString number = QStringLiteral("sync_16.png");
    const QList<CustomWidgetTraits> all{
        traitsOf<FeatureTreeWidget>(tree, QStringLiteral("AddGigECamera_16.png"),
                                    QStringLiteral("A camera's parameters as a tree"), size(400, 500),
                                    showSampleCamera),
        traitsOf<SearchEdit>(tree, QStringLiteral("searchlens_16.png"), QStringLiteral("A search box"),
                             size(200, 26)),
        traitsOf<IpAddressWidget>(QStringLiteral("network"), QStringLiteral("Move_Up.png"),
                                  QStringLiteral("A device's IP configuration"), size(560, 220)),
        traitsOf<HelpLink>(QStringLiteral("errorhandling"), QStringLiteral("Move_Down.png"),
                           QStringLiteral("A link to a page with help"), size(80, 26),
                           [](QWidget *widget) {
                               qobject_cast<HelpLink *>(widget)->setAddress(
                                   QUrl(QStringLiteral("https://example.org")));
                           }),
        traitsOf<ComboSlider>(tree, number, QStringLiteral("A spin box and a slider for integers"),
                              size(250, 26)),
        traitsOf<DoubleSpinBox>(tree, number, QStringLiteral("A spin box for numbers"), size(120, 26)),
        traitsOf<TwoModeDoubleComboSlider>(
            tree, number, QStringLiteral("A spin box and a slider for numbers, linear or logarithmic"),
            size(250, 26)),
    };
    for (const CustomWidgetTraits &traits : all) {
        m_widgets.append(new CustomWidget(traits, this));
    }
}

DesignerPlugin::~DesignerPlugin() = default;
