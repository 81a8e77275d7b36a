// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparameter.h>

#include <QSharedPointer>
#include <QString>
#include <QWidget>

class HelpLink;
class QTextBrowser;
class QUrl;

/*! \brief Tells about the current feature: name, tool tip, description, type, access, range, unit; below it,
 * the link to the documentation. */
class DescriptionPane : public QWidget
{
    Q_OBJECT

public:
    explicit DescriptionPane(QWidget *parent = nullptr);
    ~DescriptionPane() override;

public slots:
    /*! Describes \a parameter; null empties the pane. */
    void showParameter(QSharedPointer<ParameterCollection::IParameter> parameter);
    /*! Shows \a text, which may be rich. */
    void showText(const QString &text);

private slots:
    void refresh();

private:
    void display(const QString &page, const QUrl &help);

    QTextBrowser *m_text;
    HelpLink *m_help;
    QSharedPointer<ParameterCollection::IParameter> m_parameter;
    QString m_page;
};
