// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QComboBox>
#include <QPointer>
#include <QStringList>

#include <memory>

class EditorDataKeeper;
class ParentFont;

/*! \brief Edits an enumeration feature; hands out the symbolic name of the chosen entry.
 *
 * A refresh that comes while the list is open waits until the list hides.
 *
 * \ingroup editors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT EnumEditor : public QComboBox, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit EnumEditor(QWidget *parent);
    ~EnumEditor() override;

    void setEditorData(EditorData data) override;
    QVariant editorData() override;
    void showPopup() override;

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override;
    void changeEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool isPopupVisible() const;
    void showSnapshot(const EditorData &data);
    void list(const QStringList &names, const QStringList &texts);
    int shownIndex(const EditorData &data) const;

    EditorDataKeeper *m_keeper;
    QPointer<QWidget> m_watchedPopup; //!< the list while it is open
    std::unique_ptr<ParentFont> m_parentFont;
    QStringList m_names; // of the entries that are listed
    QStringList m_texts;
};
