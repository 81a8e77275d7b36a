// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/featuretree/abstractitemeditor.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QLineEdit>

class EditorDataKeeper;

/*! \brief Edits an integer feature as text: plain, hexadecimal, an address or a boolean.
 *
 * The text goes to the parameter as it was typed, which refuses it when it is wrong.
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IntEditor : public QLineEdit, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit IntEditor(QWidget *parent);
    ~IntEditor() override;

    void setEditorData(EditorData data) override;
    QVariant editorData() override;

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    void showSnapshot(const ParameterCollection::IntegerParameterData &snapshot);
    void showText(const QString &text);
    QString notReadable() const;

    EditorDataKeeper *m_keeper;
};
