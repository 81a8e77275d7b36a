// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "livetexts.h"

#include <QEvent>

#include <utility>

namespace Core {

LiveTexts::LiveTexts(QObject *owner)
    : QObject(owner)
{
    owner->installEventFilter(this);
}

LiveTexts::~LiveTexts() = default;

void LiveTexts::add(std::function<void()> show)
{
    show();
    m_texts.append(std::move(show));
}

bool LiveTexts::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::LanguageChange) {
        for (const auto &show : std::as_const(m_texts)) {
            show();
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Core
