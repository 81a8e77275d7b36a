// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "conversion.h"
#include "errors.h"

#include <functional>
#include <memory>

/*! Returns whether \a callable is None. */
inline bool isNone(PyObject *callable)
{
    return !callable || callable == Py_None;
}

/*! Calls \a callable with \a arguments. Returns what \a convert makes of its result. May be called on any
 * thread; throws PythonException for what Python raises, and GenICam::RuntimeException while Python ends. */
template <typename Convert, typename... Arguments>
auto callPython(PyObject *callable, Convert convert, const Arguments &...arguments);

/*! Returns a callback for SimpleValued::onWrite(), empty for None. Like the others it holds \a callable, and
 * needs Python's lock to be made. */
template <typename Value>
std::function<void(const Value &)> writer(PyObject *callable);

/*! Returns a callback for SimpleValued::onRead(), empty for None. */
template <typename Value>
std::function<Value()> reader(PyObject *callable);

/*! Returns a callback for SimpleCommand::onExecute(), empty for None. */
std::function<void()> executor(PyObject *callable);

/*! Throws while Python ends. */
void requirePython();

/*! \brief A new reference, released with the scope. */
using Reference = std::unique_ptr<PyObject, void (*)(PyObject *)>;

/*! Takes over the new reference \a object; throws PythonException when there is none. */
Reference taken(PyObject *object);

template <typename Convert, typename... Arguments>
auto callPython(PyObject *callable, Convert convert, const Arguments &...arguments)
{
    requirePython();
    const WithGil gil;
    const Reference tuple = taken(PyTuple_New(sizeof...(arguments)));
    Py_ssize_t index = 0;
    (PyTuple_SetItem(tuple.get(), index++, taken(toPython(arguments)).release()), ...);
    const Reference result = taken(PyObject_CallObject(callable, tuple.get()));
    return convert(result.get());
}

// Each keeps its callable while that runs: it may put another one into its own place.

template <typename Value>
std::function<void(const Value &)> writer(PyObject *callable)
{
    if (isNone(callable)) {
        return {};
    }
    return [owner = held(callable)](const Value &value) {
        const auto write = owner;
        callPython(
            write.get(), [](PyObject *) {}, value);
    };
}

template <typename Value>
std::function<Value()> reader(PyObject *callable)
{
    if (isNone(callable)) {
        return {};
    }
    return [owner = held(callable)] {
        const auto read = owner;
        return callPython(read.get(), [](PyObject *result) { return fromPython<Value>(result); });
    };
}
