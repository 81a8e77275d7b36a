// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>

using GError = struct _GError;

namespace Cameras {

/*! \brief What an error of the engine means, in words for people. The engine's own text goes to the log. */
class EngineFailure
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::EngineFailure)

public:
    /*! Returns the reason in a few words, to follow a colon. */
    static QString words(const GError &error);
    /*! Returns whether there was no answer at all. */
    static bool isSilence(const GError &error);
    /*! Throws the GenICam exception that fits, naming \a feature and the reason. */
    [[noreturn]] static void throwFor(const GError &error, const QString &feature);
};

} // namespace Cameras
