// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QTimer>
#include <QToolButton>

class EditorDataKeeper;

/*! \brief Executes a command feature: hands out "1" when pressed.
 *
 * While the command runs the button stays pressed and says so, and asks the parameter now and then whether it
 * is done. That it is done shows for a moment.
 *
 * \ingroup editors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT ToolButtonEditor : public QToolButton, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit ToolButtonEditor(QWidget *parent);
    ~ToolButtonEditor() override;

    void setEditorData(EditorData data) override;
    QVariant editorData() override;

protected:
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void askWhetherDone();
    void showReady();

private:
    void showProgress(bool isRunning);
    void showState(const QString &text);

    EditorDataKeeper *m_keeper;
    QSharedPointer<ParameterCollection::ICommandParameter> m_command;
    bool m_isRunning = false;
    QTimer m_askTimer;
    QTimer m_doneTimer;
    QString m_description; // for assistive technology, which hears of the state instead while there is news
};
