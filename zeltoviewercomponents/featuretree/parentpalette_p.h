// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPalette>
#include <QString>

class QWidget;

/*! \brief Gives a widget that has a style sheet the palette of its parent, which Qt does not hand on to it.
 *
 * The style sheets of parents and of the application reach the widget without help; where there are any, the
 * palette is left to them.
 *
 * \ingroup controls
 */
class ParentPalette : public QObject
{
    Q_OBJECT

public:
    /*! Gives \a widget the style sheet \a sheet and keeps it in the colours of its parent. \a backgroundRule
     * is added to the sheet where the background is not that of the application, which Qt takes for any: "%1"
     * stands for its colour. */
    ParentPalette(QWidget *widget, const QString &sheet, const QString &backgroundRule = {});

    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void take();

private:
    QWidget *m_widget;
    QString m_sheet;
    QString m_backgroundRule;
    QPalette m_palette; // the parent's, as it was taken last
};
