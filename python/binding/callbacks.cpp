// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "callbacks.h"

#include "end.h"

namespace {

constexpr int maximumDepth = 64; // each takes some 20 kB of the stack
thread_local int depth = 0;

} // namespace

PythonCall::PythonCall()
{
    if (isPythonEnding()) {
        throw GenICam::RuntimeException(QStringLiteral("Python has ended"));
    }
    m_gil.emplace();
    if (depth == maximumDepth) {
        PyErr_SetString(PyExc_RecursionError, "callbacks of features call each other");
        throw PythonException::take();
    }
    ++depth;
}

PythonCall::~PythonCall()
{
    --depth;
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
