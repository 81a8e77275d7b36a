// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparametercollection.h>

#include <QHash>
#include <QList>
#include <QSet>
#include <QSharedPointer>
#include <QWidget>

class QGridLayout;
class QLabel;

/*! \brief Shows one live editor for each kind of feature that some collections have.
 *
 * A kind is a parameter type with a representation. The editors are refreshed by the parameters and write to
 * them, as they do in the feature tree.
 */
class EditorGallery : public QWidget
{
    Q_OBJECT

public:
    using Collections = QList<QSharedPointer<ParameterCollection::IParameterCollection>>;

    explicit EditorGallery(const Collections &collections, QWidget *parent = nullptr);
    ~EditorGallery() override;

private slots:
    void commit();
    void refresh(const QSharedPointer<const ParameterCollection::ParameterData> &data);

private:
    using ParameterPtr = QSharedPointer<ParameterCollection::IParameter>;

    void addEditors(const QSharedPointer<ParameterCollection::IParameterCollection> &collection,
                    QGridLayout *layout);
    void addEditor(QWidget *editor, const char *commitSignal, const ParameterPtr &parameter,
                   QGridLayout *layout);
    void write(QWidget *editor, const ParameterPtr &parameter);
    void showTruth(QWidget *editor, const ParameterPtr &parameter);

    QHash<QObject *, ParameterPtr> m_parameters; //!< by editor
    QHash<QObject *, QWidget *> m_editors; //!< by parameter
    QSet<QString> m_kinds;
    QLabel *m_status;
};
