// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "callbacks.h"

#include "end.h"

void requirePython()
{
    if (isPythonEnding()) {
        throw GenICam::RuntimeException(QStringLiteral("Python has ended"));
    }
}

Reference taken(PyObject *object)
{
    if (!object) {
        throw PythonException::take();
    }
    return {object, [](PyObject *reference) { Py_DECREF(reference); }};
}

std::function<void()> executor(PyObject *callable)
{
    if (isNone(callable)) {
        return {};
    }
    return [owner = held(callable)] {
        const auto execute = owner;
        callPython(execute.get(), [](PyObject *) {});
    };
}
