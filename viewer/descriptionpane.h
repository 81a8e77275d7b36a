// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparameter.h>

#include <QSharedPointer>
#include <QString>
#include <QTextBrowser>

/*! \brief Tells about the current feature: name, tool tip, description, type, access, range, unit,
 * documentation. */
class DescriptionPane : public QTextBrowser
{
    Q_OBJECT

public:
    explicit DescriptionPane(QWidget *parent = nullptr);
    ~DescriptionPane() override;

public slots:
    void showParameter(QSharedPointer<ParameterCollection::IParameter> parameter);
    /*! Shows \a text, which may be rich. */
    void showText(const QString &text);

private slots:
    void refresh();

private:
    QSharedPointer<ParameterCollection::IParameter> m_parameter;
    QString m_page;
};
