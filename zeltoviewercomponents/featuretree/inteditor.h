// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QLineEdit>

class EditorDataKeeper;
class InputHint;

/*! \brief Edits an integer feature as text: plain, hexadecimal, an address or a boolean.
 *
 * The text goes to the parameter as it was typed, which refuses it when it is outside the limits. A text that
 * is no value of the feature's form is marked and never handed out. Both kinds stay for correction until the
 * user leaves the editor.
 *
 * \ingroup editors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IntEditor : public QLineEdit, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit IntEditor(QWidget *parent);
    ~IntEditor() override;

    void setEditorData(EditorData data) override;
    QVariant editorData() override;

    /*! Returns whether nothing was done to what the last snapshot showed. */
    bool isUntouched() const;

    /*! Keeps what was handed out last, since the parameter has refused it, until the user corrects it or
     * leaves. */
    void keepRefused();
    /*! Returns whether a refused text stands there. */
    bool isRefused() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private Q_SLOTS:
    void judgeText();

private:
    void showSnapshot(const ParameterCollection::IntegerParameterData &snapshot);
    void showText(const QString &text);
    QString notReadable() const;
    QString problem() const;

    EditorDataKeeper *m_keeper;
    InputHint *m_hint;
    QString m_addressName; // tells subnet masks from other addresses
    QString m_representation;
    QString m_shownText;
    bool m_showsValue = true;
    bool m_isRefused = false;
};
