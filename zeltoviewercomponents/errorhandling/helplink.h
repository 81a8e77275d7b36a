// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QLabel>
#include <QUrl>

/*! \brief The link "Get help" to a page that explains what stands beside it.
 *
 * A click, or Enter or Space with the keyboard focus on it, opens the page in the desktop's browser; the
 * context menu copies the address. Addresses may come out of a camera's own description, so only web pages
 * and local files are accepted. Without an acceptable address the label is empty and out of the way of the
 * keyboard.
 *
 * \ingroup errors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT HelpLink : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QUrl address READ address WRITE setAddress)

public:
    explicit HelpLink(QWidget *parent = nullptr);
    /*! Makes a link to that address. */
    explicit HelpLink(const QUrl &address, QWidget *parent = nullptr);
    ~HelpLink() override;

    /*! Returns the address, or an empty one when there is none or it was not acceptable. */
    QUrl address() const;
    /*! Sets the address. */
    void setAddress(const QUrl &address);

public Q_SLOTS:
    /*! Opens the page; a failure is reported to the user. */
    void open();
    /*! Puts the address on the clipboard. */
    void copyLinkLocation();

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateLink();
    QString addressText() const;

    QUrl m_address;
};
