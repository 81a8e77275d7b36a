// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuretreeitem.h"

#include <platform/parametercollection/iparametercollection.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QSharedPointer>

class FeatureTreeHighlighter;

/*! \brief The row of one parameter.
 *
 * Answers from the node's static properties, read once, from the parameter's latest snapshot and from
 * translations. It follows the parameter's change signal, brings a value that left its limits back into them,
 * and creates its children through the model when they are first needed. No exception of the parameter
 * library leaves it, except from setData(), whose caller reports it.
 *
 * \ingroup items
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureTreeINodeItem : public FeatureTreeItem
{
    Q_OBJECT

public:
    /*! Creates an item with the displayed name \a name. It never follows the parameter's change signal. */
    FeatureTreeINodeItem(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                         QSharedPointer<ParameterCollection::IParameter> parameter, const QString &name,
                         IFeatureTreeModelExtension *extension, const QString &fullName,
                         FeatureTreeItem *parent, bool useUtf8);
    /*! Creates an item that is called by the node's display name and follows the parameter's change signal.
     */
    FeatureTreeINodeItem(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                         QSharedPointer<ParameterCollection::IParameter> parameter,
                         IFeatureTreeModelExtension *extension, const QString &fullName,
                         FeatureTreeItem *parent, bool useUtf8);
    ~FeatureTreeINodeItem() override;

    /*! Returns the editor for \a parameter: None for a null or excluded one, Integer for one that fails. */
    static EditorType editorType(QSharedPointer<ParameterCollection::IParameter> parameter);
    /*! Returns the editor for the item's parameter, None for a null item. */
    static EditorType editorType(const FeatureTreeINodeItem *item);

    void clearChildren() override;
    int childCount() override;
    QVariant data(int column, int role) override;
    void setData(int column, const QVariant &value, int role) override;
    int row() const override;
    const FeatureTreeItem *parent() const override;
    FeatureTreeItem *parent() override;
    const IFeatureTreeModelExtension *getExtension() const override;
    IFeatureTreeModelExtension *getExtension() override;
    EditorType editorType() override;
    bool hasChildren() const override;
    bool ShowMe(GenApi::EVisibility level) const override;
    GenApi::EAccessMode getAccessMode() override;
    GenApi::EVisibility getVisibility() override;
    Qt::ItemFlags flags(int column) override;
    bool isCategory() const override;
    QString displayText() const override;
    QString nodeName() const override;

    /*! Appends \a child and takes ownership. */
    void appendChild(FeatureTreeItem *child);
    /*! Returns the child at \a row, null when there is none. */
    FeatureTreeItem *child(int row) const;
    /*! Returns the number of columns. */
    int columnCount() const;
    /*! Returns the collection that the parameter belongs to. */
    QSharedPointer<ParameterCollection::IParameterCollection> collection() const;
    /*! Returns the parameter, which may be null. */
    QSharedPointer<ParameterCollection::IParameter> node() const;
    /*! Returns the latest snapshot, null until a read succeeded. */
    QSharedPointer<const ParameterCollection::ParameterData> getParameterData() const;
    /*! Returns whether the parameter is known to have \a value already, so that writing it changes nothing:
     * its current snapshot has it, and no write that would change it waits for the camera's answer. */
    bool isCurrentValue(const QVariant &value) const;
    /*! Returns whether the last setData() came as far as writing or executing the parameter. */
    bool hasWritten() const { return m_hasWritten; }
    /*! Returns whether the user may change the value now. */
    bool isEditable() const;
    /*! Returns, while nodeUpdated() is emitted, whether nothing but the value is new: the row's name looks as
     * before. */
    bool isValueAloneNew() const { return m_isValueAloneNew; }
    /*! Sets what marks search hits in the tool tip; not owned, may be null. */
    void setHighlighter(FeatureTreeHighlighter *highlighter);
    /*! Sets whether the item tells its model of new snapshots. A model that adopts the item switches it on:
     * the connection that it stands for would take as much memory as the item, and as long to make. */
    void setReporting(bool reports) { m_isReporting = reports; }
    /*! Asks the parameter for a re-read that is published even when nothing changed. */
    void scheduleForcedParameterDataChangedCheck();

    /*! Returns the value as text, whether a permanent editor shows it or not; a placeholder when it cannot be
     * read, empty for categories. */
    QString valueText() const;

Q_SIGNALS:
    /*! The item took a new snapshot. */
    void nodeUpdated(int row, FeatureTreeINodeItem *item);

public Q_SLOTS:
    /*! Takes the snapshot, unless callbacks are disabled or the value has to go back into its limits
     * first. */
    void onParameterDataChanged(QSharedPointer<const ParameterCollection::ParameterData> ptrParameterData);

protected:
    QVariant GetForegroundRole() override;

private:
    /*! \brief What is asked of every row at every search key: of the snapshot, but without a way there. */
    struct State
    {
        ParameterCollection::ParameterType type = ParameterCollection::ParameterType::Unknown;
        GenApi::EVisibility visibility = GenApi::UndefinedVisibility;
        bool isImplemented = false;
        bool isReadable = false;
        bool isWritable = false;

        bool operator==(const State &other) const = default;
    };

    void initInternal();
    void readProperties();
    void takeSnapshot(const QSharedPointer<const ParameterCollection::ParameterData> &snapshot);
    QVariant nameData(int role);
    QVariant valueData(int role);
    QString toolTipHtml() const;
    /*! Returns the text that stands for a value that cannot be read, empty when it can. */
    QString placeholder() const;
    bool isOfType(ParameterCollection::ParameterType type) const;
    bool clamp(const QSharedPointer<const ParameterCollection::ParameterData> &snapshot);
    template <typename Interface, typename Data>
    bool clampTyped(const QSharedPointer<const ParameterCollection::ParameterData> &snapshot);

    QSharedPointer<ParameterCollection::IParameterCollection> m_collection;
    QSharedPointer<ParameterCollection::IParameter> m_parameter;
    QSharedPointer<const ParameterCollection::ParameterData> m_data;
    State m_state;
    bool m_useUtf8 = false;
    bool m_hasWritten = false;
    bool m_isValueAloneNew = false;
    bool m_isReporting = false;
    FeatureTreeHighlighter *m_highlighter = nullptr;
    QString m_unit;
    QString m_description;
    QString m_tooltip;
    QString m_docuUrl;
    QString m_displayName;
    QString m_nodeName;
    // The one whose value was brought back into its limits last.
    QSharedPointer<const ParameterCollection::ParameterData> m_clamped;
};
