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
 * \ingroup settings
 */
class UnansweredWrites : public QObject
{
    Q_OBJECT

public:
    /*! \brief A write, whether it succeeded or not. */
    struct Attempt
    {
        QString before; //!< what the parameter held, as exactValueText() writes it
        QString text;
    };

    /*! Returns what is known of \a parameter, null when nothing was written to it. */
    static UnansweredWrites *find(const ParameterCollection::IParameter &parameter);
    /*! Returns what \a parameter holds, as exactValueText() writes it: what was written last, where its
     * snapshot does not tell yet. */
    static QString presentText(const ParameterCollection::IParameter &parameter);
    /*! Remembers that \a text is about to be written to \a parameter. */
    static void announce(ParameterCollection::IParameter &parameter, const QString &text);
    /*! Writes \a value to \a parameter, as text, and remembers that. Throws what the parameter throws. */
    static void write(ParameterCollection::IParameter &parameter, const QVariant &value);

    /*! Returns the write that was announced last. */
    const Attempt &lastAttempt() const { return m_lastAttempt; }
    /*! Returns whether a write waits for its answer. */
    bool isWaiting() const { return m_count > 0; }
    /*! Returns whether \a value was written last and nothing has come since that tells otherwise; \a current
     * is the parameter's snapshot. */
    bool isLast(const QVariant &value, const ParameterCollection::ParameterData &current) const;

private slots:
    void onParameterDataChanged(QSharedPointer<const ParameterCollection::ParameterData> data);

private:
    explicit UnansweredWrites(ParameterCollection::IParameter &parameter);
    static UnansweredWrites &of(ParameterCollection::IParameter &parameter);

    Attempt m_lastAttempt;
    QVariant m_value; // written last
    QString m_before; // the value before the first of the writes that wait
    int m_count = 0;
    bool m_isCertain = false;
};

/*! Returns whether \a value, a number or a text, stands for that of \a snapshot, which has one: numbers can
 * be written in several ways, and addresses as numbers; booleans have two names for each of theirs. */
bool isValueOf(const ParameterCollection::ParameterData &snapshot, const QVariant &value);

/*! Returns the value of \a snapshot as a text that the parameter takes back without losing a digit; a null
 * one when there is no value to be read. */
QString exactValueText(const ParameterCollection::ParameterData &snapshot);
