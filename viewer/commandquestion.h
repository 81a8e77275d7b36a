// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/camera.h>
#include <platform/parametercollection/iparameter.h>

#include <QCoreApplication>
#include <QList>
#include <QString>

/*! \brief What a user is asked before a command resets or overwrites something that nothing brings back.
 *
 * The commands are those of the GenICam Standard Features Naming Convention; all others run unasked.
 */
class CommandQuestion
{
    Q_DECLARE_TR_FUNCTIONS(CommandQuestion)

public:
    /*! Finds out what \a command, a feature of one of \a nodeMaps, is about to do. */
    CommandQuestion(const ParameterCollection::IParameter &command, const QList<Cameras::NodeMap> &nodeMaps);

    /*! Returns the question, empty when there is none. */
    QString text() const;
    /*! Returns the title of the box that asks it: the command as the tree calls it. */
    QString title() const;
    /*! Returns the name under which an answer is remembered. */
    QString key() const;

private:
    QString m_text;
    QString m_title;
    QString m_key;
};
