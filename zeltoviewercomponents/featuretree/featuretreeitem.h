// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>
#include <QModelIndex>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

class IFeatureTreeModelExtension;

/*! \brief A row of the feature tree.
 *
 * Plain rows (the favorites branch, the search row, placeholders) use this class itself; rows of parameters
 * derive from it. An item owns its children and answers the model's questions for two columns, the name and
 * the value. It knows the model only through IFeatureTreeModelExtension and never knows a view. GUI thread
 * only.
 *
 * \ingroup items
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureTreeItem : public QObject
{
    Q_OBJECT

public:
    /*! \brief The in-place editor that a row asks for. */
    enum EditorType {
        Integer = 0,
        IntegerSlider = 1,
        Float = 2,
        FloatSlider = 3,
        Enumeration = 4,
        Boolean = 5,
        String = 6,
        Command = 7,
        Reserved8 = 8,
        Reserved9 = 9,
        Category = 10,
        None = 11,
    };
    Q_ENUM(EditorType)

    static constexpr int GenicamNameRole = Qt::UserRole + 1; //!< the short name
    static constexpr int GenicamTooltipRole = Qt::UserRole + 2; //!< the tool tip
    static constexpr int GenicamDescription = Qt::UserRole + 3; //!< the long description
    static constexpr int GenicamDocuURL = Qt::UserRole + 4; //!< the address of a page about it
    static constexpr int GenicamCategory = Qt::UserRole + 5; //!< whether it is a category
    static constexpr int GenicamVisibility = Qt::UserRole + 6; //!< the user level from which on it is shown
    static constexpr int UniqueID = Qt::UserRole + 10; //!< a number of this item alone
    static constexpr int IsFullRowItem = Qt::UserRole + 12; //!< whether the name spans the row
    static constexpr int IsSpecialNode = Qt::UserRole + 13; //!< whether it is no feature, such as a hint
    static constexpr int IsShownAtAll = Qt::UserRole + 14; //!< whether any level shows it
    static constexpr int FullNodeNameRole = Qt::UserRole + 32; //!< the full name

    /*! Creates an item; the caller appends or inserts it into the children of \a parent. */
    FeatureTreeItem(const QString &name, IFeatureTreeModelExtension *extension, const QString &fullName,
                    FeatureTreeItem *parent);
    ~FeatureTreeItem() override;

    /*! Appends \a child and takes ownership. */
    void appendChild(FeatureTreeItem *child);
    /*! Inserts \a child at \a position and takes ownership. */
    void insertChild(FeatureTreeItem *child, int position);
    /*! Removes the child at \a row and returns it to the caller, who owns it; null when there is none. */
    FeatureTreeItem *removeChild(int row);
    /*! Returns the child at \a row, null when there is none. */
    FeatureTreeItem *child(int row) const;
    /*! Returns the number of children that exist now; unlike childCount() it never loads any. */
    int existingChildCount() const;
    /*! Returns the number of columns. */
    int columnCount() const;

    /*! Deletes all children. */
    virtual void clearChildren();
    /*! Returns the number of children, which are loaded for that if need be. */
    virtual int childCount();
    /*! Returns what the row has for \a role in \a column, an invalid value when it has nothing. */
    virtual QVariant data(int column, int role);
    /*! Takes an edited value; a plain row ignores it. */
    virtual void setData(int column, const QVariant &value, int role);
    /*! Returns the position among the parent's children, 0 without a parent, -1 when the parent does not have
     * it. */
    virtual int row() const;
    /*! Returns the parent, null for the invisible root and for an item that was removed. */
    virtual const FeatureTreeItem *parent() const;
    /*! As above. */
    virtual FeatureTreeItem *parent();
    /*! Returns the model that the item belongs to, as far as items know it. */
    virtual const IFeatureTreeModelExtension *getExtension() const;
    /*! As above. */
    virtual IFeatureTreeModelExtension *getExtension();
    /*! Returns the row's editor. */
    virtual EditorType editorType();
    /*! Returns whether the row has children, without loading any. */
    virtual bool hasChildren() const;
    /*! Returns whether the row is shown at the user level \a level. */
    virtual bool ShowMe(GenApi::EVisibility level) const;
    /*! Returns what can be done with the value now. */
    virtual GenApi::EAccessMode getAccessMode();
    /*! Returns the user level from which on the row is shown. */
    virtual GenApi::EVisibility getVisibility();
    /*! Sets the user level from which on the row is shown; rows of parameters keep to their parameter. */
    virtual void setVisibility(GenApi::EVisibility visibility);
    /*! Returns the flags of the cell in \a column. */
    virtual Qt::ItemFlags flags(int column);

protected:
    /*! Returns the brush of the row's texts, or nothing for the default colour. */
    virtual QVariant GetForegroundRole();

public:
    // Behind the others: the order of virtual functions is part of the interface.
    /*! Returns whether the row stands for a group of features. */
    virtual bool isCategory() const;
    /*! Returns the text of the name column. */
    virtual QString displayText() const;
    /*! Returns the name by which searches count the row: a feature's name, or else the full name. */
    virtual QString nodeName() const;

    // These two never consult the item's own editor type; callers rely on their fixed answers.
    /*! Returns None for a valid index. */
    static EditorType editorType(const QModelIndex &index);
    /*! Returns Category for an item, None for null. */
    static EditorType editorType(const FeatureTreeItem *item);

    /*! Returns whether the row's editor is shown all the time, not only while the row is edited. */
    bool usePersistentEditor() const;
    /*! Returns false: only rows of parameters can be edited. */
    bool isEditable() const;

    /*! Returns whether \a item is this item or one of its existing descendants. */
    bool findShallow(const FeatureTreeItem *item) const;
    /*! Returns the first of this item and its existing descendants, depth first, with that full name; else
     * null. */
    FeatureTreeItem *findByFullNameShallow(const QString &fullName);
    /*! Returns the first of this item and its existing descendants whose data(0, role) equals \a value; else
     * null. */
    FeatureTreeItem *findByRoleShallow(int role, const QVariant &value);

    /*! Returns the name that is shown, without a unit. */
    QString getDisplayedName() const;
    /*! Sets the name that is shown. */
    void setDisplayedName(const QString &name);
    /*! Returns the full name, the key by which the row is found. */
    QString getFullName() const;
    /*! Returns the description for the host to show, which may be rich text. */
    QString GetDescription() const;
    /*! Sets the description. */
    void SetDescription(const QString &description);
    /*! Returns whether there is a description. */
    bool HasDescription() const;
    /*! Returns the tool tip of both columns. */
    QString GetToolTip() const;
    /*! Sets the tool tip. */
    void SetToolTip(const QString &toolTip);
    /*! Sets whether the name spans both columns. */
    void SetIsFullRowItem(bool isFullRowItem);
    /*! Sets whether the row is one of the tree itself, whose name may be rich text. */
    void SetIsSpecialNode(bool isSpecialNode);

    /*! Returns a number that is another one once any item of the process has come, gone or changed a name
     * that a search looks into. */
    static quint64 treeRevision();
    /*! Returns a number that is another one once any row of the process, those of the tree itself apart, has
     * changed from which user level on it is shown. */
    static quint64 stateRevision();
    /*! Returns whether it is such a change that the row tells of right now. */
    bool isFlipping() const { return m_isFlipping; }

    /*! Returns the brush of rows that cannot be changed: that of the application's palette when it was first
     * asked for. */
    static QBrush disabledTextBrush();

protected:
    /*! Says that a text that is searched in has changed, or whether there is any. */
    static void noteTextChange();
    /*! Says that the row is shown from another level on, and is about to tell of it, or has told. */
    void setFlipping(bool isFlipping);

    EditorType m_editorType = Category;
    bool m_childrenLoaded = false;

private:
    void adopt(FeatureTreeItem *child);

    std::unique_ptr<QString> m_description;
    QString m_name;
    GenApi::EVisibility m_visibility = GenApi::UndefinedVisibility;
    QString m_fullName;
    std::unique_ptr<QString> m_toolTip;
    FeatureTreeItem *m_parent = nullptr;
    QList<FeatureTreeItem *> m_children;
    bool m_isFullRowItem = false;
    bool m_isSpecialNode = false;
    bool m_isFlipping = false;
    IFeatureTreeModelExtension *m_extension = nullptr;
    mutable int m_rowHint = 0; // where the item was last found among its parent's children
};
