// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>
#include <QList>
#include <QString>
#include <QStringList>

class QLabel;
class QToolButton;

/*! \brief Shows the latest message with the number of those before it, which its tool tip lists, instead of
 * piling up boxes.
 *
 * A message that waits for an answer stays until it is dismissed or replaced; others appear below it. */
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);
    ~MessageBar() override;

    /*! Shows \a message; \a details appear below it. A \a subject lets the message be taken back; the next
     * one about it takes its place. */
    void showMessage(const QString &message, const QString &details, const QString &subject = QString());
    /*! Takes the messages about \a subject back, which are true no more. */
    void resolve(const QString &subject);
    /*! Shows \a message with a button labelled \a action, whose click emits actionTriggered();
     * without one when the label is empty. */
    void showAction(const QString &message, const QString &action);

public slots:
    void dismiss();

signals:
    void actionTriggered();

private:
    struct Message
    {
        QString text;
        QString subject; // what it is about, empty when nobody will take it back
    };

    qsizetype forget(const QString &subject);
    void updateText();
    void announce();
    void showName();
    QStringList texts() const;

    QLabel *m_icon;
    QLabel *m_text;
    QToolButton *m_action;
    QString m_question; // waits for an answer
    QList<Message> m_messages; // the latest last; of the earlier ones, as many as are listed
    int m_count = 0;
};
