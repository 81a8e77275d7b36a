// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>
#include <QString>

class QLabel;
class QToolButton;

/*! \brief Shows messages above the tree, the latest with the number of those before it, instead of piling up
 * boxes. */
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);
    ~MessageBar() override;

    /*! Shows \a message; \a details appear below it. */
    void showMessage(const QString &message, const QString &details);
    /*! Shows \a message with a button labelled \a action, whose click emits actionTriggered(). */
    void showAction(const QString &message, const QString &action);

public slots:
    void dismiss();

signals:
    void actionTriggered();

private:
    void show(const QString &message, const QString &details, const QString &action);

    QLabel *m_icon;
    QLabel *m_text;
    QToolButton *m_action;
    int m_earlier = 0;
};
