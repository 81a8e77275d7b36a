// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>

class ChangeHistory;
class FeatureTreeWidget;
class QAction;

/*! \brief Undo and redo of what the user changes in the viewer's tree. */
class HistoryActions : public QObject
{
    Q_OBJECT

public:
    /*! \a tree has to outlive this object. */
    explicit HistoryActions(FeatureTreeWidget *tree, QObject *parent = nullptr);
    ~HistoryActions() override;

    ChangeHistory *history() const { return m_history; }
    /*! Returns Undo and Redo. */
    QList<QAction *> actions() const { return {m_undo, m_redo}; }

private slots:
    void updateActions();

private:
    ChangeHistory *m_history;
    QAction *m_undo;
    QAction *m_redo;
};
