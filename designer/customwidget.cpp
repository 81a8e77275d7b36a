// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "customwidget.h"

#include <utility>

CustomWidget::CustomWidget(CustomWidgetTraits traits, QObject *parent)
    : QObject(parent)
    , m_traits(std::move(traits))
{
}

CustomWidget::~CustomWidget() = default;

QString CustomWidget::domXml() const
{
    QString objectName = m_traits.className;
    objectName.replace(0, 1, objectName.at(0).toLower());
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">%3</widget></ui>")
        .arg(m_traits.className, objectName, m_traits.properties);
}

void CustomWidget::initialize(QDesignerFormEditorInterface *core)
{
    m_isInitialized = true;
    m_isInDesigner = core != nullptr;
}

QWidget *CustomWidget::createWidget(QWidget *parent)
{
    QWidget *const widget = m_traits.create(parent);
    if (m_isInDesigner && m_traits.fill) {
        m_traits.fill(widget);
    }
    return widget;
}
