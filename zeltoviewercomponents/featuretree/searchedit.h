// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QLineEdit>
#include <QString>

#include <memory>

/*! \brief A search box: a magnifier while it is empty, a cross that empties it while it is not.
 *
 * It paints its placeholder itself; the placeholder text of QLineEdit is to stay empty, or both would be
 * seen.
 *
 * \ingroup search
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT SearchEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString placeholder READ placeholder WRITE setPlaceholder)
    Q_PROPERTY(bool placeholderEnabled READ isPlaceholderEnabled WRITE setPlaceholderEnabled)

public:
    explicit SearchEdit(QWidget *parent = nullptr);
    ~SearchEdit() override;

    /*! Returns the text that an empty box shows. */
    QString placeholder() const;
    /*! Sets the text that an empty box shows, which also names the box for assistive tools. */
    void setPlaceholder(const QString &text);

    /*! Returns whether an empty box shows the placeholder. */
    bool isPlaceholderEnabled() const;
    /*! Sets whether an empty box shows the placeholder. */
    void setPlaceholderEnabled(bool enabled);
    /*! Has assistive technology read out \a text, what the search has found; empty without a search. */
    void setResult(const QString &text);

    /*! Returns a size in which the placeholder can be read. */
    QSize sizeHint() const override;

public Q_SLOTS:
    /*! Shows the magnifier while \a text is empty, else the cross. */
    void onTextChanged(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showActionTexts();

    struct Private;
    const std::unique_ptr<Private> d;
};
