// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparameter.h>
#include <platform/parametercollection/parameterdata.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QSharedPointer>
#include <QVariant>

/*! \brief What the feature tree's delegate knows of an in-place editor.
 *
 * Always the second base of an editor, after its Qt widget class: the delegate finds it with a dynamic cast
 * of the widget. An editor never writes a parameter itself; it shows snapshots and hands out what the user
 * entered.
 *
 * \ingroup editors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT AbstractItemEditor
{
public:
    /*! \brief The parameter of a row and the snapshot to show; the snapshot may be null. */
    struct EditorData
    {
        QSharedPointer<ParameterCollection::IParameter> ptrParameter; //!< the row's parameter
        QSharedPointer<const ParameterCollection::ParameterData>
            ptrParameterData; //!< what to show; may be null
    };

    AbstractItemEditor() = default;
    /*! There is nothing to copy. */
    AbstractItemEditor(const AbstractItemEditor &) = default;
    /*! There is nothing to copy. */
    AbstractItemEditor &operator=(const AbstractItemEditor &) = default;

    /*! Shows the snapshot. Never throws, and never takes away what is being typed. */
    virtual void setEditorData(EditorData data) = 0;

    /*! Returns the value to write; invalid when there is none. */
    virtual QVariant editorData() = 0;

    virtual ~AbstractItemEditor();
};
