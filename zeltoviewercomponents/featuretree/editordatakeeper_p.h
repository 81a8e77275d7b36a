// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <QBasicTimer>
#include <QObject>

class QLineEdit;
class QWidget;

/*! \brief Keeps what an editor was last told to show, and shows it again when the user is done.
 *
 * A write may be refused, ignored or rounded without a new snapshot; the editor must not go on showing what
 * was entered. So the last data is shown again some time after a commit or focus loss that no refresh has
 * answered, and at once on Escape, before the delegate's event filter turns Escape into a focus loss and that
 * into a commit.
 *
 * \ingroup editors
 */
class EditorDataKeeper : public QObject
{
    Q_OBJECT

public:
    /*! Watches \a input, the widget that has the editor's focus. \a lineEdit is where text is typed, if any.
     */
    EditorDataKeeper(AbstractItemEditor *editor, QWidget *input, QLineEdit *lineEdit = nullptr);

    /*! Takes over what the editor is told to show. */
    void keep(const AbstractItemEditor::EditorData &data);

    /*! Sets whether the user has committed something that was not handed out yet. */
    void setCommitted(bool isCommitted);
    /*! Returns, once, whether the user has committed something; then the last data is shown again unless a
     * refresh answers. */
    bool takeCommitted();

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /*! Shows the last data again unless a refresh comes first. */
    void showAgainAfterCommit();

    /*! Shows the last data again when the current event is over. */
    void showAgainSoon();

    /*! Shows the last data. */
    void showAgain();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    AbstractItemEditor *m_editor;
    QLineEdit *m_lineEdit;
    AbstractItemEditor::EditorData m_data;
    QBasicTimer m_timer; // without a connection: every editor has one
    bool m_isInFront = false;
    bool m_isCommitted = false;
};
