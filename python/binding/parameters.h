// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "errors.h"
#include "threadbound.h"

#include <platform/parametercollection/iparameter.h>
#include <platform/parametercollection/iparametercollection.h>

#include <QMenu>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

/*! \brief A parameter as Python has it. It stays, and answers from its last snapshot, when its collection
 * goes. */
class PythonParameter
{
public:
    explicit PythonParameter(const QSharedPointer<ParameterCollection::IParameter> &parameter);

    /*! Returns the parameter itself. */
    QSharedPointer<ParameterCollection::IParameter> shared() const;

    QString name() const;
    QString fullName() const;
    /*! Returns the kind: "Integer", "Float", "Boolean", "Enumeration", "String", "Command" or "Category". */
    QString type() const;
    QString property(const QString &name) const;
    bool isReadable() const;
    bool isWritable() const;
    /*! Returns the value that is shown, None where there is none. Needs Python's lock, as do the limits. */
    PyObject *value() const;
    /*! Returns the value as text, with all digits. */
    QString text() const;
    PyObject *minimum() const;
    PyObject *maximum() const;
    PyObject *increment() const;
    /*! Returns the symbolic names of an enumeration. */
    QStringList entries() const;
    /*! Writes a value of the parameter's own type, or any as a str. Needs Python's lock. */
    void setValue(PyObject *value) const;
    /*! Writes a value as text. */
    void setText(const QString &text) const;
    void execute() const;

private:
    template <typename Choose>
    PyObject *limit(Choose choose) const;

    ThreadBound<ParameterCollection::IParameter> m_parameter;
};

/*! \brief A parameter collection as Python has it. */
class PythonCollection
{
public:
    explicit PythonCollection(const QSharedPointer<ParameterCollection::IParameterCollection> &collection);

    /*! Returns the collection itself. */
    QSharedPointer<ParameterCollection::IParameterCollection> shared() const;

    /*! Returns the parameter called \a name; throws when there is none. */
    PythonParameter parameter(const QString &name) const;
    bool hasParameter(const QString &name) const;
    QStringList childNames(const QString &parent, int depth, bool fullNames) const;
    void refresh() const;
    void poll(int elapsedMilliseconds) const;
    QString deviceClass() const;

private:
    ThreadBound<ParameterCollection::IParameterCollection> m_collection;
};

/*! \brief A node map as Python has it. */
class PythonNodeMap
{
public:
    PythonNodeMap(const QString &name, const PythonCollection &collection, const QString &title,
                  bool usesUtf8);

    QString name() const { return m_name; }
    QString title() const { return m_title; }
    PythonCollection collection() const { return m_collection; }
    bool usesUtf8() const { return m_usesUtf8; }

private:
    QString m_name;
    PythonCollection m_collection;
    QString m_title;
    bool m_usesUtf8;
};

/*! Registers the types of signals. */
void initialiseMetaTypes();

/*! Lets \a wrapper, the Python object of \a menu, hold it. Returns the wrapper. Needs Python's lock. */
PyObject *menuToPython(const QSharedPointer<QMenu> &menu, PyObject *wrapper);
