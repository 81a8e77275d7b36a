// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// A camera description file, XML or an archive: refused with one line, or opened, shown, and every feature
// asked for all it has, written and polled.

#include "target.h"

#include <cameras/camera.h>
#include <platform/core/exception.h>
#include <zeltoviewercomponents/featuretree/featuretreemodel.h>
#include <zeltoviewercomponents/featuretree/featuretreetext.h>

#include <QTextStream>

#include <exception>

using namespace ParameterCollection;

namespace {

constexpr int writtenFeatures = 40; // enough to find what breaks; inputs have to be quick

std::unique_ptr<Cameras::Camera> open(const QByteArray &input, Cameras::Start start)
{
    const QString file = Fuzz::scratchFolder() + QStringLiteral("/camera.xml");
    Fuzz::writeFile(file, input);
    try {
        return Cameras::Camera::openDescription(file, start);
    } catch (const Core::Exception::BaseException &exception) {
        Fuzz::require(!exception.getMessage().isEmpty()
                          && !exception.getMessage().contains(QLatin1Char('\n')),
                      "a refusal is one line");
        return nullptr;
    }
}

void showAll(const QSharedPointer<IParameterCollection> &collection)
{
    FeatureTreeModel model;
    model.addParameterCollection(collection, QStringLiteral("Camera"), QStringLiteral("@CameraDevice"), true);
    QString text;
    QTextStream stream(&text);
    writeFeatureTree(stream, model);
    Fuzz::settle();
}

// Any refusal will do.
template <typename Action>
void attempt(Action action)
{
    try {
        action();
    } catch (const std::exception &) {
    }
}

void write(IParameter &parameter)
{
    const QString before = parameter.parameterData()->valueString;
    const QStringList values{QStringLiteral("1"), QStringLiteral("-9223372036854775808"),
                             QStringLiteral("1e308"), before};
    for (const QString &value : values) {
        attempt([&] { parameter.setValueFromString(value); });
    }
    if (auto *const command = dynamic_cast<ICommandParameter *>(&parameter)) {
        attempt([&] { command->execute(true); });
    }
}

void use(const QByteArray &input, Cameras::Start start)
{
    const std::unique_ptr<Cameras::Camera> camera = open(input, start);
    if (!camera) {
        return;
    }
    const auto collection = camera->nodeMaps().constFirst().collection;
    showAll(collection);
    int written = 0;
    QStringList names = collection->childNames(QStringLiteral("Root"), 40, true);
    names.removeDuplicates();
    for (const QString &name : std::as_const(names)) {
        const auto parameter = collection->parameter(name);
        Fuzz::require(!parameter.isNull(), "what is listed exists");
        for (const char *const property : {"Unit", "Representation", "pAlias", "Streamable"}) {
            parameter->propertyAccess()->property(QLatin1String(property));
        }
        if (parameter->parameterData()->isWritable && ++written <= writtenFeatures) {
            write(*parameter);
        }
    }
    collection->poll(100000);
    Fuzz::settle();
    Fuzz::require(!camera->isLost(), "no description hangs the worker");
}

// Registers that start alive may turn a number that does harm into another.
void run(const QByteArray &input)
{
    use(input, Cameras::Start::Zeroed);
    use(input, Cameras::Start::Alive);
}

const Fuzz::Target target(
    "description", [] {}, run, Fuzz::Form::Xml);

} // namespace
