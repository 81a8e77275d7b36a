// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// A file with a camera's settings: refused in one line, or the same after it has been written and read again;
// and bringing it to a camera comes to an end, with one line for each feature that does not have its value
// then.

#include "target.h"

#include <cameras/camera.h>
#include <platform/core/exception.h>
#include <viewer/settingsorigin.h>
#include <zeltoviewercomponents/settings/featuresettings.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>
#include <zeltoviewercomponents/settings/settingscomparison.h>

#include <QBuffer>
#include <QDeadlineTimer>
#include <QEventLoop>

#include <algorithm>
#include <memory>
#include <optional>

namespace {

constexpr int applyTime = 10000;

QList<SettingsNodeMap> nodeMaps;

std::optional<FeatureSettings> read(QByteArray text)
{
    QBuffer file(&text);
    file.open(QIODevice::ReadOnly);
    try {
        return FeatureSettings::read(file);
    } catch (const Core::Exception::BaseException &exception) {
        Fuzz::require(!exception.getMessage().contains(QLatin1Char('\n')), "a refusal is one line");
        return std::nullopt;
    }
}

QByteArray textOf(const FeatureSettings &settings)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    settings.write(file);
    return file.data();
}

void apply(const FeatureSettings &settings)
{
    SettingsApplier applier(settings, nodeMaps);
    applier.start();
    const QDeadlineTimer deadline(applyTime);
    while (applier.isRunning() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    Fuzz::require(!applier.isRunning() && !applier.isLost(), "applying settings comes to an end");
    const QStringList problems = applier.report().problems();
    Fuzz::require(std::none_of(problems.cbegin(), problems.cend(),
                               [](const QString &line) { return line.contains(QLatin1Char('\n')); }),
                  "a problem is one line");
    Fuzz::require(applier.report().isSuccess() == problems.isEmpty(), "what has not its value is a problem");
}

void prepare()
{
    static const std::unique_ptr<Cameras::Camera> camera = Cameras::Camera::openEmbedded();
    nodeMaps = settingsNodeMaps(*camera);
}

void run(const QByteArray &input)
{
    const std::optional<FeatureSettings> settings = read(input);
    if (!settings) {
        return;
    }
    const QByteArray text = textOf(*settings);
    const std::optional<FeatureSettings> again = read(text);
    Fuzz::require(again && textOf(*again) == text, "settings survive being saved");
    Fuzz::require(compare(*settings, *again).isEmpty(), "saved settings do not differ");
    apply(*settings);
    Fuzz::settle();
}

const Fuzz::Target target("settingsfile", prepare, run);

} // namespace
