// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QString>

class QAbstractButton;
class QCheckBox;

/*! \brief A message box that the user may silence by "Don't show this dialog again".
 *
 * With the box ticked, the result of a button chosen by setSaveResultOnButton() is remembered in the
 * application's settings under the box's key. From then on exec() returns it at once and shows nothing;
 * clickedButton() is null in that case. With no button chosen, a result of 0 is what is remembered.
 *
 * A key with slashes is a path, as everywhere in QSettings: reset() of "a" also takes back "a/b". A key of
 * nothing but slashes counts as empty; a box with an empty key remembers nothing.
 *
 * \ingroup errors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT MessageBoxCheckable : public QMessageBox
{
    Q_OBJECT

public:
    /*! Makes an empty dialog, whose answer is remembered under \a key. */
    explicit MessageBoxCheckable(const QString &key, QWidget *parent = nullptr);
    /*! Makes a dialog, whose answer is remembered under \a key. */
    MessageBoxCheckable(const QString &key, QMessageBox::Icon icon, const QString &title, const QString &text,
                        QMessageBox::StandardButtons buttons = QMessageBox::NoButton,
                        QWidget *parent = nullptr,
                        Qt::WindowFlags flags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    ~MessageBoxCheckable() override;

    /*! Shows the dialog and returns its result, or returns the remembered result without showing it. */
    int exec() override;

    /*! Returns the text of the check box. */
    QString checkBoxText() const;
    /*! Sets the text of the check box. */
    void setCheckBoxText(const QString &text);

    /*! Returns the standard buttons whose result may be remembered. */
    QMessageBox::StandardButtons saveResultOnButton() const;
    /*! Sets the standard buttons whose result may be remembered. */
    void setSaveResultOnButton(QMessageBox::StandardButtons buttons);
    /*! Adds \a button to the custom buttons whose result may be remembered. */
    void setSaveResultOnButton(QAbstractButton *button);

    /*! Remembers \a result when the check box is ticked. */
    void saveDoNotShowAgain(int result);

    /*! Forgets the answer of this box's key; boxes constructed from now on ask again. Returns false when
     * the key is empty. */
    bool reset();
    /*! Forgets the answers of all keys. Returns true. */
    static bool resetAll();

protected:
    /*! Reads the remembered result. */
    void init();
    /*! Adds the check box; returns false when it is there already or the dialog has no place for it. */
    bool addCheckBoxWidget();

private:
    bool isChecked() const;

    QPointer<QCheckBox> m_checkBox;
    QString m_settingsKey;
    int m_storedResult = -1;
    QString m_checkBoxText = tr("&Don't show this dialog again");
    QMessageBox::StandardButtons m_saveResultButtons = QMessageBox::NoButton;
    QList<QAbstractButton *> m_saveResultButtonList;
};
