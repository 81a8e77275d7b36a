// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorgallery.h"

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/featuretree/enumeditor.h>
#include <zeltoviewercomponents/featuretree/featuretreeinodeitem.h>
#include <zeltoviewercomponents/featuretree/floateditor.h>
#include <zeltoviewercomponents/featuretree/floatslidereditor.h>
#include <zeltoviewercomponents/featuretree/inteditor.h>
#include <zeltoviewercomponents/featuretree/intslidereditor.h>
#include <zeltoviewercomponents/featuretree/toolbuttoneditor.h>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QScrollArea>

#include <exception>
#include <limits>

using namespace ParameterCollection;

namespace {

/*! \brief An editor and the signal with which it asks to be read. */
struct Choice
{
    QWidget *editor = nullptr;
    const char *commitSignal = nullptr;
};

Choice createEditor(const QSharedPointer<IParameterCollection> &collection,
                    const QSharedPointer<IParameter> &parameter, const QString &representation,
                    QWidget *parent)
{
    switch (FeatureTreeINodeItem::editorType(parameter)) {
    case FeatureTreeItem::Integer:
        return {new IntEditor(parent), SIGNAL(editingFinished())};
    case FeatureTreeItem::IntegerSlider:
        return {new IntSliderEditor(parent), SIGNAL(valueChanged(int))};
    case FeatureTreeItem::FloatSlider:
        if (collection->hasParameter(parameter->fullName() + QLatin1String("/Alias"))) {
            return {new FloatSliderEditor(collection, parent), SIGNAL(boxValueChanged())};
        }
        [[fallthrough]];
    case FeatureTreeItem::Float:
        return {new FloatEditor(parent, representation), SIGNAL(boxValueChanged())};
    case FeatureTreeItem::Boolean:
        return {new CheckBoxEditor(parent), SIGNAL(clicked(bool))};
    case FeatureTreeItem::Enumeration:
        return {new EnumEditor(parent), SIGNAL(activated(int))};
    case FeatureTreeItem::Command:
        return {new ToolButtonEditor(parent), SIGNAL(clicked(bool))};
    default:
        return {};
    }
}

} // namespace

EditorGallery::EditorGallery(const Collections &collections, QWidget *parent)
    : QWidget(parent)
    , m_status(new QLabel(this))
{
    setWindowTitle(tr("Value editors"));
    auto *const area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    auto *const page = new QWidget(area);
    auto *const grid = new QGridLayout(page);
    grid->setColumnStretch(1, 1);
    for (const auto &collection : collections) {
        addEditors(collection, grid);
    }
    grid->setRowStretch(grid->rowCount(), 1);
    area->setWidget(page);
    m_status->setWordWrap(true);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(area, 1);
    layout->addWidget(m_status);
}

EditorGallery::~EditorGallery() = default;

void EditorGallery::addEditors(const QSharedPointer<IParameterCollection> &collection, QGridLayout *layout)
{
    const QStringList names =
        collection->childNames(QStringLiteral("Root"), std::numeric_limits<int>::max(), false);
    for (const QString &name : names) {
        const auto parameter = collection->parameter(name);
        if (!parameter || parameter->isExcluded() || parameter->nodeAccessMode() < GenApi::WO) {
            continue;
        }
        const QString representation =
            parameter->propertyAccess()->property(QStringLiteral("Representation"));
        const QString kind =
            QString::number(static_cast<quint32>(parameter->type())) + QLatin1Char(' ') + representation;
        if (m_kinds.contains(kind)) {
            continue;
        }
        const Choice choice = createEditor(collection, parameter, representation, layout->parentWidget());
        if (choice.editor) {
            m_kinds.insert(kind);
            addEditor(choice.editor, choice.commitSignal, parameter, layout);
        }
    }
}

void EditorGallery::addEditor(QWidget *editor, const char *commitSignal, const ParameterPtr &parameter,
                              QGridLayout *layout)
{
    const QString representation = parameter->propertyAccess()->property(QStringLiteral("Representation"));
    auto *const label = new QLabel(parameter->name(), layout->parentWidget());
    label->setBuddy(editor);
    editor->setBackgroundRole(QPalette::Window); // that of the page
    const int row = layout->rowCount();
    layout->addWidget(label, row, 0);
    layout->addWidget(editor, row, 1);
    layout->addWidget(new QLabel(representation, layout->parentWidget()), row, 2);
    m_parameters.insert(editor, parameter);
    m_editors.insert(parameter.data(), editor);
    connect(editor, commitSignal, this, SLOT(commit()));
    connect(parameter.data(),
            SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)),
            this, SLOT(refresh(QSharedPointer<const ParameterCollection::ParameterData>)));
    showTruth(editor, parameter);
}

void EditorGallery::commit()
{
    auto *const editor = qobject_cast<QWidget *>(sender());
    const ParameterPtr parameter = m_parameters.value(editor);
    m_status->clear();
    try {
        write(editor, parameter);
    } catch (const std::exception &exception) {
        m_status->setText(QString::fromUtf8(exception.what()));
        showTruth(editor, parameter);
    }
}

void EditorGallery::write(QWidget *editor, const ParameterPtr &parameter)
{
    const auto *const text = qobject_cast<QLineEdit *>(editor);
    if (text && !text->isModified()) {
        return;
    }
    const QVariant value = dynamic_cast<AbstractItemEditor *>(editor)->editorData();
    if (!value.isValid()) {
        return;
    }
    if (const auto command = qSharedPointerObjectCast<ICommandParameter>(parameter)) {
        command->execute(true);
    } else {
        parameter->setValueFromString(value.toString());
    }
}

void EditorGallery::refresh(const QSharedPointer<const ParameterData> &data)
{
    QWidget *const editor = m_editors.value(sender());
    dynamic_cast<AbstractItemEditor *>(editor)->setEditorData({m_parameters.value(editor), data});
}

void EditorGallery::showTruth(QWidget *editor, const ParameterPtr &parameter)
{
    dynamic_cast<AbstractItemEditor *>(editor)->setEditorData({parameter, parameter->parameterData()});
}
