// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <Python.h>

#include <QtGlobal>

/*! \brief Holds Python's lock as long as it lives, on any thread. */
class WithGil
{
public:
    WithGil()
        : m_state(PyGILState_Ensure())
    {
    }
    ~WithGil() { PyGILState_Release(m_state); }
    Q_DISABLE_COPY_MOVE(WithGil)

private:
    PyGILState_STATE m_state;
};

/*! \brief Lets other Python threads run as long as it lives. Needs Python's lock. */
class WithoutGil
{
public:
    WithoutGil()
        : m_state(PyEval_SaveThread())
    {
    }
    ~WithoutGil() { PyEval_RestoreThread(m_state); }
    Q_DISABLE_COPY_MOVE(WithoutGil)

private:
    PyThreadState *m_state;
};
