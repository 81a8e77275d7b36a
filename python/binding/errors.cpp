// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "errors.h"

#include "conversion.h"
#include "end.h"

#include <array>
#include <cstring>
#include <new>
#include <utility>

namespace {

PyObject *baseError = nullptr;

/*! Whether an exception is of a class, and the Python exception that stands for it then. */
struct Kind
{
    const char *name;
    bool (*matches)(const std::exception &exception);
    PyObject *type;
};

template <typename Exception>
bool is(const std::exception &exception)
{
    return dynamic_cast<const Exception *>(&exception);
}

std::array kinds{
    Kind{"InvalidArgumentError", is<GenICam::InvalidArgumentException>, nullptr},
    Kind{"OutOfRangeError", is<GenICam::OutOfRangeException>, nullptr},
    Kind{"AccessError", is<GenICam::AccessException>, nullptr},
    Kind{"DeviceTimeoutError", is<GenICam::TimeoutException>, nullptr},
    Kind{"LogicalError", is<GenICam::LogicalErrorException>, nullptr},
};

PyObject *typeOf(const std::exception &exception)
{
    for (const Kind &kind : kinds) {
        if (kind.type && kind.matches(exception)) {
            return kind.type;
        }
    }
    return baseError;
}

// The text, or the name of the class where there is none.
QString textOf(PyObject *exception)
{
    PyObject *text = PyObject_Str(exception);
    if (!text || PyUnicode_GetLength(text) == 0) {
        PyErr_Clear();
        Py_XDECREF(text);
        text = PyObject_GetAttrString(reinterpret_cast<PyObject *>(Py_TYPE(exception)), "__name__");
    }
    const QString result = text ? textFromPython(text) : QString();
    PyErr_Clear();
    Py_XDECREF(text);
    return result;
}

} // namespace

std::shared_ptr<PyObject> held(PyObject *object)
{
    Py_INCREF(object);
    return {object, [](PyObject *last) {
                if (!isPythonEnding()) {
                    const WithGil gil;
                    Py_DECREF(last);
                }
            }};
}

PythonException::PythonException(const QString &text, std::shared_ptr<PyObject> exception)
    : RuntimeException(text)
    , m_exception(std::move(exception))
{
}

PythonException::~PythonException() = default;

PythonException PythonException::take()
{
    PyObject *type = nullptr;
    PyObject *value = nullptr;
    PyObject *traceback = nullptr;
    PyErr_Fetch(&type, &value, &traceback);
    PyErr_NormalizeException(&type, &value, &traceback);
    if (traceback) {
        PyException_SetTraceback(value, traceback);
    }
    PythonException result(textOf(value), held(value));
    Py_XDECREF(type);
    Py_XDECREF(value);
    Py_XDECREF(traceback);
    return result;
}

void PythonException::restore() const
{
    PyErr_SetObject(reinterpret_cast<PyObject *>(Py_TYPE(m_exception.get())), m_exception.get());
}

void initialiseErrors(PyObject *module, PyObject *base)
{
    baseError = base;
    for (Kind &kind : kinds) {
        const std::string name = std::string("zelto.") + kind.name;
        kind.type = PyErr_NewException(name.c_str(), base, nullptr);
        PyDict_SetItemString(module, kind.name, kind.type);
    }
}

void raisePythonError(const std::exception &exception)
{
    if (const auto *const own = dynamic_cast<const PythonException *>(&exception)) {
        own->restore();
        return;
    }
    if (is<std::bad_alloc>(exception)) {
        PyErr_NoMemory();
        return;
    }
    const char *const what = exception.what();
    PyObject *const text = PyUnicode_DecodeUTF8(what, Py_ssize_t(std::strlen(what)), "replace");
    if (text) {
        PyErr_SetObject(typeOf(exception), text);
        Py_DECREF(text);
    }
}
