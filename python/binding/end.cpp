// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "end.h"

#include "camera.h"
#include "gil.h"

#include <atomic>

namespace {

std::atomic_bool isEnding = false;

PyObject *end(PyObject * /*self*/, PyObject * /*arguments*/)
{
    {
        const WithoutGil free;
        PythonCamera::closeAll();
    }
    isEnding = true;
    Py_RETURN_NONE;
}

PyMethodDef endDefinition{"_end", end, METH_NOARGS, nullptr};

} // namespace

void initialiseEnd()
{
    PyObject *const module = PyImport_ImportModule("atexit");
    PyObject *const function = PyCFunction_New(&endDefinition, nullptr);
    PyObject *const result =
        module && function ? PyObject_CallMethod(module, "register", "O", function) : nullptr;
    Py_XDECREF(result);
    Py_XDECREF(function);
    Py_XDECREF(module);
}

bool isPythonEnding()
{
    return isEnding;
}
