// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settingscomparison.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>
#include <QString>
#include <QWidget>

#include <array>

namespace Core {
class LiveTexts;
}

class DifferenceFilter;
class DifferenceList;
class QAction;
class QCheckBox;
class QLabel;
class QModelIndex;
class QPoint;
class SearchedListView;

/*! \brief Shows in what the settings of a camera differ from others, and asks the host to take values over.
 *
 * "Here" is the open camera, "there" what it is compared with. A double click or Enter asks to go to the
 * feature.
 *
 * \ingroup settings
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT SettingsComparisonWidget : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsComparisonWidget(QWidget *parent = nullptr);
    ~SettingsComparisonWidget() override;

    /*! Shows in what \a here and \a there differ; \a title says in words what "there" is. */
    void setComparison(const QString &title, const FeatureSettings &here, const FeatureSettings &there);
    /*! Shows no comparison. */
    void clear();
    /*! Sets whether the same can be compared again: the camera is there, and nothing else is at work on it.
     */
    void setComparing(bool isPossible);
    /*! Sets whether values can be taken over. */
    void setTakingOver(bool isPossible);

Q_SIGNALS:
    /*! The user wants the values of \a settings, from there, to be set here. */
    void takeOverRequested(const FeatureSettings &settings);
    /*! The user wants to see the feature of that full name. */
    void featureRequested(const QString &fullName);
    /*! The user wants the same comparison again, with present values. */
    void refreshRequested();

private Q_SLOTS:
    void onKindToggled();
    void takeOver();
    void takeOverAll();
    void goToFeature();
    void showMenu(const QPoint &pos);
    void updateActions();

private:
    QAction *addListAction(const char *text, const char *slot);
    void layOut();
    void emitTakeOver(const QList<QModelIndex> &rows);
    void showTitle();
    void updateCounts();

    Core::LiveTexts *m_texts; // first: the members that follow use it
    DifferenceList *m_list;
    DifferenceFilter *m_filter;
    SearchedListView *m_view;
    QLabel *m_title;
    QString m_other; // with what the camera is compared
    std::array<QCheckBox *, 3> m_kinds; // by SettingsDifference::Kind
    QAction *m_go;
    QAction *m_takeOver;
    QAction *m_takeOverAll;
    QAction *m_refresh;
    bool m_hasComparison = false;
    bool m_canCompare = true;
    bool m_canTakeOver = true;
};
