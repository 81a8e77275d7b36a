// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuretreehighlighter.h"

#include <platform/genicam/genapi.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QElapsedTimer>
#include <QPalette>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QRegion>
#include <QStringList>
#include <QTreeView>

#include <functional>
#include <memory>
#include <optional>

class EditorFocus;
class FeatureTreeItem;
class IFeatureTreeModelExtension;
class OpenEditors;

/*! \brief The tree view of the feature tree.
 *
 * Builds its own models and delegate, keeps an in-place editor open on every row of the value column that
 * wants one, and hides rows above the user level. Where more than 64 rows want an editor, those of the
 * viewport have it before they are painted, the next ones in both directions when nothing else is to do, and
 * others when they are scrolled to. In a view that was never shown, they are opened when they are asked for.
 *
 * \ingroup view
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureTreeView : public QTreeView
{
    Q_OBJECT

public:
    /*! \brief One gesture with many consequences: while a batch lives, the view only notes what its model
     * tells it. At the end of the outermost one it looks at its rows once, and lays them out once. */
    class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT Batch
    {
    public:
        /*! Begins a gesture in \a view. */
        explicit Batch(FeatureTreeView *view);
        ~Batch();
        Q_DISABLE_COPY_MOVE(Batch)

    private:
        QPointer<FeatureTreeView> m_view;
    };

    explicit FeatureTreeView(QWidget *parent = nullptr);
    ~FeatureTreeView() override;

    /*! Builds the model stack and the delegate; called by the constructor. */
    virtual void createModel();
    /*! Returns the model's extension, null when the model is of another kind. */
    IFeatureTreeModelExtension *getFeatureExtension();
    /*! As above. */
    const IFeatureTreeModelExtension *getFeatureExtension() const;
    /*! Returns what marks the search text in names. Hosts call it by this spelling. */
    FeatureTreeHighlighter *getHightlighter();

    /*! Returns the settings group of the favorites. */
    QString getSettingsPath() const;
    /*! Sets the settings group of the favorites. */
    void setSettingsPath(const QString &path);

    /*! Expands branches down to \a depth (0: the top rows) and collapses those below. Leaves are left alone,
     * unlike in the base class, whose search for them makes filtering slow. */
    void expandToDepth(int depth);
    /*! Expands every branch without recording that for the favorites branch. */
    void expandEverything();
    /*! Expands exactly the branches for which \a isExpanded says so, recording nothing. */
    void setExpandedRows(const std::function<bool(const QModelIndex &)> &isExpanded);
    /*! The same for \a top and the branches below it. */
    void setExpandedRows(const QModelIndex &top, const std::function<bool(const QModelIndex &)> &isExpanded);
    /*! Returns false for leaves and for branches whose rows nobody has asked for: none of these is open. */
    bool mayHaveOpenRows(const QModelIndex &branch) const;
    /*! Returns the rows directly below \a parent that may be expanded, without going through all others. */
    QModelIndexList branchesBelow(const QModelIndex &parent) const;
    /*! Returns the widget at \a index, as the base does. The editor of a row in the viewport is opened first
     * if it is to be there when the row is painted. */
    QWidget *indexWidget(const QModelIndex &index) const;
    /*! Lays out what is pending, so that expansion and geometry can be asked for. */
    using QTreeView::executeDelayedItemsLayout;

    void keyboardSearch(const QString &search) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QList<int> &roles = QList<int>()) override;

public Q_SLOTS:
    void doItemsLayout() override;
    /*! Sets the user level and shows and hides rows accordingly. */
    void setVisibility(GenApi::EVisibility level);
    /*! Equips the rows below \a index, and records it for the favorites branch. */
    void onSelfExpanded(const QModelIndex &index);
    /*! Records for the favorites branch that it is collapsed. */
    void onSelfCollapsed(const QModelIndex &index);
    /*! Has the favorites branch built anew; current and selected rows stay what they were. */
    void onFavoriteDataUpdated();
    /*! Expands or collapses the favorites branch. */
    void onFavoriteDataExpanded(bool expanded);

Q_SIGNALS:
    /*! The current row changed; invalid when it was hidden or filtered out. */
    void onCurrentChanged(const QModelIndex &index);

protected:
    void openPersistentEditor(const QModelIndex &index);
    void openPersistentEditorsForChildren(const QModelIndex &parent);
    /*! Shows, hides and equips the rows below \a parent, if it is expanded; the invalid index always is. */
    void updateRows(const QModelIndex &parent);

    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &options,
                 const QModelIndex &index) const override;
    void initViewItemOption(QStyleOptionViewItem *option) const override;
    void rowsInserted(const QModelIndex &parent, int start, int end) override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent *event) override;

protected Q_SLOTS:
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private Q_SLOTS:
    void copyValue();
    void goBackToTyping();
    void onEscaped(QWidget *editor);
    void onFocusChanged(QWidget *old, QWidget *now);
    void onLayoutAboutToChange();
    void onLayoutChanged();
    void onModelAboutToReset();
    void onModelReset();

private:
    using ExpansionRule = std::function<bool(const QModelIndex &index, int depth)>;

    void keepBackgroundWhenDisabled();
    FeatureTreeItem *itemAt(const QModelIndex &index) const;

    bool isOpen(const QModelIndex &parent) const;
    void expandBranches(const ExpansionRule &isExpanded);
    void expandBranch(const QModelIndex &index, int depth, const ExpansionRule &isExpanded);

    bool isNameAsBefore(const QModelIndex &index) const;
    void finishBatch();
    void noteMovement();
    void updateRowsBelow(const QModelIndex &parent, QList<QPersistentModelIndex> &wanted);
    void updateRow(const QModelIndex &index, const QModelIndex &parent, const FeatureTreeItem *item);
    void updateCell(const QModelIndex &index);
    void showRow(int row, const QModelIndex &parent, bool isShown);
    void spanRow(const QModelIndex &index, const QModelIndex &parent);

    bool wantsEditor(FeatureTreeItem *item) const;
    bool hasOwnEditor(const FeatureTreeItem &item) const;
    void showInEditor(const QModelIndex &index);
    void showInEditorsBelow(const QModelIndex &parent);
    void updateEditor(const QModelIndex &index, FeatureTreeItem *item, bool wasHidden);
    void dropEditor();
    void dropLockedEditor();
    bool isSearching() const;
    bool activateEditor(const QModelIndex &value, EditTrigger trigger, QEvent *event);
    bool editNeighbour(const QModelIndex &from, bool below);
    void goToRowBesideEditor(const QModelIndex &index);
    void goToNeighbour(const QModelIndex &from, bool below);

    QStringList selectedFavorites(const QModelIndex &branch) const;
    QModelIndex favoriteNamed(const QString &fullName);
    void restoreFavorite(const QString &fullName, int row);

    QPointer<QAbstractItemModel> m_castModel; // whose extension is the one below
    IFeatureTreeModelExtension *m_extension = nullptr;
    GenApi::EVisibility m_visibility = GenApi::Guru;
    FeatureTreeHighlighter m_highlighter;
    std::unique_ptr<OpenEditors> m_editors;
    std::unique_ptr<EditorFocus> m_focus;
    bool m_hadCurrent = false; // before the layout changed
    bool m_isExpandingMany = false; // the rows are updated elsewhere, and nothing is recorded
    int m_batches = 0; // that live
    bool m_areRowsStale = false; // when the batch ends
    bool m_isLayoutStale = false;
    QPersistentModelIndex m_topRow; // of the viewport, before the batch
    QPersistentModelIndex m_keptInSight; // by the end of the batch
    bool m_wasShown = false;
    bool m_keepsFocus = false; // no editor opens because another row becomes the current one
    bool m_keepsEditor = false; // nor does one close
    QPersistentModelIndex m_typingRow; // while another row is the current one for its menu
    bool m_isForwardingKey = false; // to an editor that may leave it to the view
    QElapsedTimer m_searchClock; // since the last key that searched the names
    QRegion m_painted; // during a paint event
    mutable std::optional<QPalette> m_rowPalette; // of all rows, while the view's palette is the one below
    mutable qint64 m_rowPaletteSource = 0;
};
