// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gil.h"

#include <platform/genicam/genericexception.h>

#include <QString>

#include <exception>
#include <memory>

/*! Returns a reference to \a object that may be copied and released on any thread, with or without Python's
 * lock. Needs the lock itself. */
std::shared_ptr<PyObject> held(PyObject *object);

/*! \brief A Python exception on its way through C++. Back in Python it is the same object again. */
class PythonException : public GenICam::RuntimeException
{
public:
    /*! Takes over the exception that Python has raised. Needs Python's lock. */
    static PythonException take();
    ~PythonException() override;

    /*! Raises it again. Needs Python's lock. */
    void restore() const;

private:
    PythonException(const QString &text, std::shared_ptr<PyObject> exception);

    std::shared_ptr<PyObject> m_exception;
};

/*! Puts the exceptions of the module into \a module; all derive from \a base. */
void initialiseErrors(PyObject *module, PyObject *base);

/*! Raises the Python exception that stands for \a exception. Needs Python's lock. */
void raisePythonError(const std::exception &exception);

/*! Runs \a work, and raises what it throws in Python. Returns whether it ran to its end. Needs Python's lock.
 */
template <typename Work>
bool translated(Work work)
{
    try {
        work();
        return true;
    } catch (const std::exception &exception) {
        raisePythonError(exception);
    } catch (...) {
        PyErr_SetString(PyExc_RuntimeError, "unspecified exception");
    }
    return false;
}
