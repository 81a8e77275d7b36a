// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/settings/featuresettings.h>
#include <zeltoviewercomponents/settings/settingsreport.h>
#include <zeltoviewercomponents/settings/settingstask.h>

#include <QList>
#include <QObject>
#include <QString>

class ChangeHistory;
class ChangeHistoryWidget;
class FeatureTreeWidget;
class QAction;

/*! \brief Undo and redo of what the user changes in the viewer's tree, the list of the changes, and whether
 * values differ from the settings file that was saved or loaded last. */
class HistoryActions : public QObject
{
    Q_OBJECT

public:
    /*! \a tree, of \a window, has to outlive this object. */
    explicit HistoryActions(FeatureTreeWidget *tree, QWidget *window);
    ~HistoryActions() override;

    /*! Begins the history of the camera with \a nodeMaps. */
    void open(const QList<SettingsNodeMap> &nodeMaps);
    void close();

    ChangeHistory *history() const { return m_history; }
    /*! Returns the list of changes, to be shown by the window. */
    ChangeHistoryWidget *panel() const { return m_panel; }
    /*! Returns Undo and Redo. */
    QList<QAction *> actions() const { return {m_undo, m_redo}; }

    /*! Returns the settings file that was saved or loaded last, empty without one. */
    QString settingsFile() const { return m_file; }
    /*! Returns whether values are known to differ from that file. */
    bool differsFromFile() const;

public slots:
    /*! The file \a fileName was applied to the camera, or what was before it when the name is empty. */
    void onLoaded(const FeatureSettings &settings, const FeatureSettings &former,
                  const SettingsReport &report, const QString &fileName);
    /*! The camera's settings were saved to \a fileName. */
    void onSaved(const FeatureSettings &settings, const QString &fileName);
    /*! Values were taken over from what \a name tells. */
    void onTakenOver(const QString &name, const FeatureSettings &settings, const FeatureSettings &former,
                     const SettingsReport &report);
    void updateActions();

signals:
    /*! What settingsFile() and differsFromFile() return has changed. */
    void fileStateChanged();

private:
    FeatureTreeWidget *m_tree;
    ChangeHistory *m_history;
    ChangeHistoryWidget *m_panel;
    QAction *m_undo;
    QAction *m_redo;
    QString m_file;
};
