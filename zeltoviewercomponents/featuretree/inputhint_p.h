// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPalette>
#include <QPointer>
#include <QString>
#include <QTimer>

class QLabel;
class QLineEdit;

/*! \brief Tells the user, at a number editor, why what is typed is no value, and what was made of an entry.
 *
 * A text with a problem is marked as long as it stands there, and its tool tip says why; nothing else about
 * the text is changed. What was made of an entry ("3032 is the maximum") shows beside the editor for a while,
 * also when the focus has gone on.
 *
 * \ingroup editors
 */
class InputHint : public QObject
{
    Q_OBJECT

public:
    /*! Watches over \a lineEdit, which \a editor is or has as a part. */
    InputHint(QWidget *editor, QLineEdit *lineEdit);
    ~InputHint() override;

    /*! Marks the text, with \a problem as its tool tip; an empty text takes the mark away. */
    void setProblem(const QString &problem);
    /*! Returns what is wrong with the text; empty when nothing is. */
    QString problem() const;

    /*! Sets the tool tip of the line edit while its text has no problem. */
    void setToolTip(const QString &toolTip);

    /*! Shows \a text beside the editor for some seconds. */
    void tell(const QString &text);

private slots:
    void endTelling();

private:
    void mark(bool isMarked);
    QWidget *input() const;

    QWidget *m_editor;
    QLineEdit *m_lineEdit;
    QPointer<QLabel> m_label; // a child of the window, which it lies in front of
    QTimer m_timer;
    QString m_problem;
    QString m_toolTip;
    QString m_description; // of the input, in whose place the text is
};
