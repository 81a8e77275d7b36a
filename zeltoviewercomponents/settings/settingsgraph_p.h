// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/*! \brief Which features of a node map select which.
 *
 * \ingroup settings
 */
class SettingsGraph
{
public:
    explicit SettingsGraph(const QHash<QString, QStringList> &selected = {});

    bool isEmpty() const;
    bool isSelector(const QString &name) const;
    /*! Returns the features that \a selector selects. */
    QStringList selectedBy(const QString &selector) const;
    /*! Returns the selectors that \a name depends on, directly or through others, outer ones first. */
    QStringList selectorsOf(const QString &name) const;

private:
    void collect(const QString &name, QStringList &found, QStringList &path) const;

    QHash<QString, QStringList> m_selected;
    QHash<QString, QStringList> m_selectors; // the direct ones
};
