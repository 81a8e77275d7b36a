// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <Python.h>

#include <QString>
#include <QtGlobal>

// All of these need Python's lock, and throw PythonException where Python raises.

/*! Returns the text of the str \a text, what is no text replaced. */
QString textFromPython(PyObject *text);

/*! Returns a new reference to \a value as Python has it. */
PyObject *toPython(qint64 value);
PyObject *toPython(double value); //!< \overload
PyObject *toPython(bool value); //!< \overload
PyObject *toPython(const QString &value); //!< \overload

/*! Returns \a object as a value of the type that a feature has; nothing but that type is taken. */
template <typename Value>
Value fromPython(PyObject *object);
template <>
qint64 fromPython(PyObject *object);
template <>
double fromPython(PyObject *object);
template <>
bool fromPython(PyObject *object);
template <>
QString fromPython(PyObject *object);
