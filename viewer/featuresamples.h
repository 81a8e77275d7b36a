// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>
#include <platform/parametercollection/iparametercollection.h>

#include <QSet>
#include <QSharedPointer>
#include <QStringList>

/*! \brief A node map narrowed down to one feature of each kind, all of them below "Root".
 *
 * A kind is a parameter type with a representation. Shown in a tree, it is a gallery of all value editors.
 */
class FeatureSamples : public ParameterCollection::IParameterCollection
{
    Q_OBJECT

public:
    using CollectionPtr = QSharedPointer<ParameterCollection::IParameterCollection>;

    /*! Takes from \a nodeMap what is not among \a kinds yet, and adds the kinds that it takes. */
    FeatureSamples(CollectionPtr nodeMap, QSet<QString> &kinds);
    ~FeatureSamples() override;

    /*! Returns whether there is nothing to show. */
    bool isEmpty() const;

    QSharedPointer<ParameterCollection::IParameter> parameter(const QString &name) const override;
    bool hasParameter(const QString &name) const override;
    QStringList childNames(const QString &parent, int depth, bool fullNames) const override;
    void refresh() override;
    void poll(int elapsedMilliseconds) override;
    QString deviceClass() const override;

private:
    void take(const QSharedPointer<ParameterCollection::IParameter> &parameter, GenApi::EAccessMode lowest,
              QSet<QString> &kinds);

    CollectionPtr m_nodeMap;
    QList<QSharedPointer<ParameterCollection::IParameter>> m_samples;
};
