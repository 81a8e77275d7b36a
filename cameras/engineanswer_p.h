// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "aravis_p.h"

#include <QtGlobal>

#include <optional>

namespace Cameras {

/*! \brief Receives the engine's error of one question where only matters whether there was one. */
class Unanswered
{
public:
    Unanswered() = default;
    ~Unanswered() { g_clear_error(&m_error); }
    Q_DISABLE_COPY_MOVE(Unanswered)

    operator GError **() { return &m_error; }
    bool isSet() const { return m_error != nullptr; }

private:
    GError *m_error = nullptr;
};

/*! Returns what \a question says of \a node, nothing when it fails. */
template <typename Result, typename Node>
std::optional<Result> asked(Result (*question)(Node *, GError **), Node *node)
{
    Unanswered failure;
    const Result result = question(node, failure);
    return failure.isSet() ? std::nullopt : std::optional(result);
}

} // namespace Cameras
