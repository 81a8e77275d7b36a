// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparameter.h>

#include <QObject>
#include <QString>
#include <QVariant>

/*! \brief What was written to a parameter whose snapshot does not tell of it yet.
 *
 * A camera answers a write later, and until then the snapshot shows what was before: a value that equals it
 * would wrongly count as written. Belongs to the parameter and is shared by all its rows, whether they take
 * snapshots at present or not.
 *
 * \ingroup items
 */
class UnansweredWrites : public QObject
{
    Q_OBJECT

public:
    /*! Returns what is known of \a parameter, null when nothing was written to it. */
    static UnansweredWrites *find(const ParameterCollection::IParameter &parameter);
    /*! Writes \a value to \a parameter, as text, and remembers that. Throws what the parameter throws. */
    static void write(ParameterCollection::IParameter &parameter, const QVariant &value);

    /*! Returns whether a write waits for its answer. */
    bool isWaiting() const { return m_count > 0; }
    /*! Returns whether \a value was written last and nothing has come since that tells otherwise; \a current
     * is the parameter's snapshot. */
    bool isLast(const QVariant &value, const ParameterCollection::ParameterData &current) const;

private slots:
    void onParameterDataChanged(QSharedPointer<const ParameterCollection::ParameterData> data);

private:
    explicit UnansweredWrites(ParameterCollection::IParameter &parameter);

    QVariant m_value; // written last
    QString m_before; // the value before the first of the writes that wait
    int m_count = 0;
    bool m_isCertain = false;
};

/*! Returns whether \a value, a number or a text, stands for that of \a snapshot, which has one: numbers can
 * be written in several ways, and addresses as numbers; booleans have two names for each of theirs. */
bool isValueOf(const ParameterCollection::ParameterData &snapshot, const QVariant &value);
