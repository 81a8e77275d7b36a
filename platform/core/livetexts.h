// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>

namespace Core {

/*! \brief Translated texts that follow the language.
 *
 * Each is shown at once, and again whenever the owner hears that the language has changed, as widgets do.
 */
class ZELTO_PLATFORM_EXPORT LiveTexts : public QObject
{
public:
    /*! \a owner is the parent, too. */
    explicit LiveTexts(QObject *owner);
    ~LiveTexts() override;

    /*! Calls \a show, which sets texts, now and whenever the language has changed. */
    void add(std::function<void()> show);

    /*! Hands the result of \a text to the \a setter of \a subject, as long as that lives: add(action,
     * &QAction::setText, [] { return tr("Quit"); }). */
    template <typename Subject, typename Setter, typename Text>
    void add(Subject *subject, Setter setter, Text text)
    {
        add([pointer = QPointer<Subject>(subject), setter, text] {
            if (pointer) {
                (pointer.data()->*setter)(text());
            }
        });
    }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QList<std::function<void()>> m_texts;
};

} // namespace Core
