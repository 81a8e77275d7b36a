// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commandveto.h"

#include <platform/parametercollection/iparametercollection.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QPersistentModelIndex>
#include <QPointer>
#include <QRegion>
#include <QSharedPointer>
#include <QStyledItemDelegate>
#include <QTimer>

#include <memory>

class FeatureTreeHighlighter;
class FeatureTreeINodeItem;
class IFeatureTreeModelExtension;
class ShapedNames;

/*! \brief The item delegate of the feature tree.
 *
 * Chooses the in-place editor for a row, hands it the row's parameter and snapshot, writes its value into the
 * model, and paints names with the search matches marked. Unusable rows silently get no editor.
 *
 * \ingroup editors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureTreeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /*! \a extension knows the items behind the view's indexes; neither it nor \a highlighter, which may be
     * null, is owned. */
    FeatureTreeDelegate(QObject *parent, IFeatureTreeModelExtension *extension,
                        FeatureTreeHighlighter *highlighter);
    ~FeatureTreeDelegate() override;

    /*! Sets what is asked before a command is executed, from the event loop; an empty function asks nobody,
     * and commands are executed while their editor commits. */
    void setCommandVeto(CommandVeto veto);

    /*! Returns a size in whose height a line of the view's font can be edited, too. */
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /*! Releases \a editor when control is back in the event loop: it is often destroyed by one of its own
     * signals. */
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

public slots:
    /*! Emits commitData() for the editor that sent the signal. */
    void emitCommitData();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

    // Each returns null for an empty or excluded parameter.
    QWidget *createIntEditor(QWidget *parent, const QStyleOptionViewItem &option,
                             QSharedPointer<ParameterCollection::IIntegerParameter> parameter) const;
    QWidget *createFloatEditor(QWidget *parent, const QStyleOptionViewItem &option,
                               QSharedPointer<ParameterCollection::IFloatParameter> parameter,
                               QSharedPointer<ParameterCollection::IParameterCollection> collection) const;
    QWidget *createEnumEditor(QWidget *parent, const QStyleOptionViewItem &option,
                              QSharedPointer<ParameterCollection::IEnumParameter> parameter) const;
    QWidget *createCheckBoxEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                  QSharedPointer<ParameterCollection::IBooleanParameter> parameter) const;
    QWidget *createToolButtonEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                    QSharedPointer<ParameterCollection::ICommandParameter> parameter) const;

private slots:
    void askForCommands();

private:
    struct PendingCommand
    {
        QPersistentModelIndex index;
        QPointer<QAbstractItemModel> model;
        QVariant value;
    };

    bool postpone(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index,
                  const QVariant &value) const;
    FeatureTreeINodeItem *nodeItemAt(const QModelIndex &index) const;
    QWidget *createEditorFor(FeatureTreeINodeItem *item, QWidget *parent, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const;
    QRegion paintMatches(QPainter *painter, const QStyleOptionViewItem &option, const QRect &textRect,
                         const QString &text) const;
    void paintOnMarks(QPainter *painter, const QRect &target, int alignment, const QString &text,
                      const QRegion &marked) const;
    void paintName(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintStyledName(QPainter *painter, QStyleOptionViewItem option, const QModelIndex &index,
                         const QStyle &style) const;
    QString elidedName(const QPainter &painter, const QString &name, const QRect &textRect) const;

    IFeatureTreeModelExtension *m_extension;
    FeatureTreeHighlighter *m_highlighter;
    std::unique_ptr<ShapedNames> m_names;
    CommandVeto m_commandVeto;
    mutable QList<PendingCommand> m_pendingCommands; // until the veto has been asked
    QTimer *m_commandTimer;
    bool m_isAsking = false;
};
