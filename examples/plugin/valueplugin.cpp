// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// A plug-in of the viewer: a panel that shows the value of the current feature in large figures. It finds
// what it needs among the services by interface, and does without what the viewer does not offer.

#include <platform/parametercollection/iparameter.h>
#include <viewer/plugins/iviewerplugin.h>
#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreestatusservice.h>

#include <QLabel>

using namespace ParameterCollection;

/*! \brief Shows the value of one feature, and follows it. */
class ValuePanel : public QLabel
{
    Q_OBJECT

public:
    explicit ValuePanel(QWidget *parent)
        : QLabel(parent)
    {
        setObjectName(QStringLiteral("valuePanel")); // under which the viewer keeps its place
        setWindowTitle(tr("Value"));
        setAlignment(Qt::AlignCenter);
        QFont large = font();
        large.setPointSizeF(large.pointSizeF() * 2.0);
        setFont(large);
    }

public slots:
    void follow(QSharedPointer<ParameterCollection::IParameter> parameter)
    {
        if (m_parameter) {
            m_parameter->disconnect(this);
        }
        m_parameter = parameter;
        if (m_parameter) {
            connect(m_parameter.data(),
                    SIGNAL(parameterDataChangedDecoupled(
                        QSharedPointer<const ParameterCollection::ParameterData>)),
                    this, SLOT(showValue(QSharedPointer<const ParameterCollection::ParameterData>)));
        }
        showValue(m_parameter ? m_parameter->parameterData() : nullptr);
    }

private slots:
    void showValue(QSharedPointer<const ParameterCollection::ParameterData> data)
    {
        setText(data && data->isReadable ? data->valueString : QString());
    }

private:
    QSharedPointer<IParameter> m_parameter;
};

/*! \brief The plug-in itself. */
class ValuePlugin : public QObject, public IViewerPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zelto.viewer.IViewerPlugin/1")
    Q_INTERFACES(IViewerPlugin)

public:
    QWidget *createPanel(QObject *services, QWidget *parent) override
    {
        const auto *const status = services->findChild<Plugin::FeatureTree::IFeatureTreeStatusService *>();
        if (!status) {
            return nullptr;
        }
        auto *const panel = new ValuePanel(parent);
        connect(status, SIGNAL(currentChanged(QSharedPointer<ParameterCollection::IParameter>)), panel,
                SLOT(follow(QSharedPointer<ParameterCollection::IParameter>)));
        return panel;
    }
};

#include "valueplugin.moc"
