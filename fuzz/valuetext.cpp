// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// A text written to a feature, as from a settings file or an editor. The first byte chooses the feature, the
// rest is the text. Refused or not: what the feature shows afterwards can be written again and changes
// nothing.

#include "target.h"

#include <cameras/camera.h>

#include <QThread>

#include <exception>

using namespace ParameterCollection;

namespace {

QSharedPointer<IParameterCollection> collection;
QList<QSharedPointer<IParameter>> parameters;

QString shownText(const IParameter &parameter)
{
    return parameter.parameterData()->valueString;
}

bool write(IParameter &parameter, const QString &text)
{
    bool isWritten = true;
    try {
        parameter.setValueFromString(text);
    } catch (const std::exception &) {
        isWritten = false;
    }
    Fuzz::settle();
    return isWritten;
}

// What an earlier write did to other features may arrive only now: a difference counts when it is there
// again.
bool leaves(IParameter &parameter, const QString &text, bool isAccepted)
{
    for (int attempt = 0; attempt < 3; ++attempt) {
        const QString before = shownText(parameter);
        if (write(parameter, text) == isAccepted && shownText(parameter) == before) {
            return true;
        }
        QThread::msleep(50);
        Fuzz::settle();
    }
    return false;
}

void prepare()
{
    static const std::unique_ptr<Cameras::Camera> camera = Cameras::Camera::openEmbedded();
    collection = camera->nodeMaps().constFirst().collection;
    const QStringList names = collection->childNames(QStringLiteral("Root"), 9, false);
    for (const QString &name : names) {
        const auto parameter = collection->parameter(name);
        const ParameterType type = parameter->type();
        if (parameter->isWritableNow() && type != ParameterType::Command && type != ParameterType::Category) {
            parameters.append(parameter);
        }
    }
    Fuzz::require(!parameters.isEmpty(), "the embedded camera has features to write to");
}

void run(const QByteArray &input)
{
    if (input.isEmpty()) {
        return;
    }
    IParameter &parameter = *parameters.at(static_cast<uchar>(input.at(0)) % parameters.size());
    if (!parameter.isWritableNow()) {
        return; // an earlier input has locked it
    }
    const QString text = QString::fromUtf8(input.mid(1));
    if (!write(parameter, text)) {
        Fuzz::require(!parameter.isWritableNow() || leaves(parameter, text, false),
                      "a refused text changes nothing");
    } else if (parameter.isWritableNow() && parameter.parameterData()->isReadable) {
        Fuzz::require(leaves(parameter, shownText(parameter), true), "what is shown is accepted, and stays");
    }
}

const Fuzz::Target target("valuetext", prepare, run);

} // namespace
