// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "conversion.h"

#include "errors.h"

#include <QByteArray>

namespace {

[[noreturn]] void refuse(PyObject *object, const char *expected)
{
    PyErr_Format(PyExc_TypeError, "expected %s, not %R", expected, object);
    throw PythonException::take();
}

} // namespace

QString textFromPython(PyObject *text)
{
    // What Python calls surrogates are halves of characters in a QString, too.
    PyObject *const bytes = PyUnicode_AsEncodedString(text, "utf-16-le", "surrogatepass");
    char *data = nullptr;
    Py_ssize_t size = 0;
    if (!bytes || PyBytes_AsStringAndSize(bytes, &data, &size) != 0) {
        Py_XDECREF(bytes);
        throw PythonException::take();
    }
    const QString result(reinterpret_cast<const QChar *>(data), qsizetype(size) / 2);
    Py_DECREF(bytes);
    return result;
}

PyObject *toPython(qint64 value)
{
    return PyLong_FromLongLong(value);
}

PyObject *toPython(double value)
{
    return PyFloat_FromDouble(value);
}

PyObject *toPython(bool value)
{
    return PyBool_FromLong(value);
}

PyObject *toPython(const QString &value)
{
    int littleEndian = -1;
    return PyUnicode_DecodeUTF16(reinterpret_cast<const char *>(value.utf16()), value.size() * 2,
                                 "surrogatepass", &littleEndian);
}

template <>
qint64 fromPython(PyObject *object)
{
    if (!PyLong_Check(object)) {
        refuse(object, "an int");
    }
    const qint64 value = PyLong_AsLongLong(object);
    if (value == -1 && PyErr_Occurred()) {
        throw PythonException::take();
    }
    return value;
}

template <>
double fromPython(PyObject *object)
{
    const double value = PyFloat_AsDouble(object);
    if (value == -1.0 && PyErr_Occurred()) {
        PyErr_Clear();
        refuse(object, "a float");
    }
    return value;
}

template <>
bool fromPython(PyObject *object)
{
    if (!PyBool_Check(object)) {
        refuse(object, "a bool");
    }
    return object == Py_True;
}

template <>
QString fromPython(PyObject *object)
{
    if (!PyUnicode_Check(object)) {
        refuse(object, "a str");
    }
    return textFromPython(object);
}
