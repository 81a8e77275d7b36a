// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "simulatedsettings_p.h"

#include "description_p.h"
#include "engine_p.h"
#include "receivedframe_p.h"
#include "simulatedregisters_p.h"

#include <platform/parametercollection/parameterdata.h>

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <utility>

using namespace ParameterCollection;

namespace Cameras {

namespace {

constexpr double lineTime = 30e-6; // seconds in which the sensor hands out a line
constexpr double shortestInterval = 1e-3;
constexpr double microsecond = 1e-6;
constexpr double mostGain = 60; // dB

/*! \brief Reads features by their standard names. */
class Features
{
public:
    Features(Engine &engine, const Description &description)
        : m_engine(engine)
        , m_description(description)
    {
    }

    ParameterDataPtr read(const char *name, Engine::Extent extent = Engine::Extent::Value) const
    {
        const int node = m_description.indexOf(QLatin1String(name));
        if (node < 0 || !m_description.isFeature(node)) {
            return nullptr;
        }
        const ParameterDataPtr data = m_engine.read(node, extent).data;
        return data->isReadable ? data : nullptr;
    }

    /*! Returns the value of the first of \a names that is a number. */
    double number(std::initializer_list<const char *> names, double otherwise) const
    {
        for (const char *const name : names) {
            const ParameterDataPtr data = read(name);
            if (data && data->type == ParameterType::Integer) {
                return double(static_cast<const IntegerParameterData &>(*data).value);
            }
            if (data && data->type == ParameterType::Float) {
                return static_cast<const FloatParameterData &>(*data).value;
            }
        }
        return otherwise;
    }

    qint64 integer(const char *name, qint64 otherwise) const
    {
        const ParameterDataPtr data = read(name);
        return data && data->type == ParameterType::Integer
            ? static_cast<const IntegerParameterData &>(*data).value
            : otherwise;
    }

    int factor(const char *name) const { return int(std::clamp<qint64>(integer(name, 1), 1, 64)); }

    QString text(std::initializer_list<const char *> names) const
    {
        for (const char *const name : names) {
            const ParameterDataPtr data = read(name);
            if (data && data->type == ParameterType::Enumeration) {
                return data->valueString;
            }
        }
        return {};
    }

    bool isOn(const char *name) const { return text({name}) == QLatin1String("On"); }

    bool flag(const char *name, bool otherwise = false) const
    {
        const ParameterDataPtr data = read(name);
        return data && data->type == ParameterType::Boolean
            ? static_cast<const BooleanParameterData &>(*data).value
            : otherwise;
    }

    Engine &engine() const { return m_engine; }
    const Description &description() const { return m_description; }

private:
    Engine &m_engine;
    const Description &m_description;
};

/*! \brief Chooses an entry of a selector for as long as it lives, unseen by others. */
class Selection
{
public:
    Selection(const Features &features, SimulatedRegisters &registers, const char *selector,
              const QString &entry)
        : m_registers(registers)
    {
        m_registers.beginTrial();
        try {
            features.engine().write(features.description().indexOf(QLatin1String(selector)), entry);
            m_isMade = true;
        } catch (const std::exception &) {
            // A selector that is locked stands where it stands.
        }
    }
    ~Selection() { m_registers.endTrial(false); }
    Q_DISABLE_COPY_MOVE(Selection)

    bool isMade() const { return m_isMade; }

private:
    SimulatedRegisters &m_registers;
    bool m_isMade = false;
};

/*! \brief Features that a selector chooses among. */
class Selected
{
public:
    Selected(const Features &features, SimulatedRegisters &registers, const char *selector)
        : m_features(features)
        , m_registers(registers)
        , m_selector(selector)
    {
        const ParameterDataPtr data = features.read(selector, Engine::Extent::Limits);
        if (data && data->type == ParameterType::Enumeration) {
            m_entries = static_cast<const EnumParameterData &>(*data).symbolicNames;
        }
    }

    bool isSelector() const { return !m_entries.isEmpty(); }

    /*! Calls \a look while \a entry is selected; returns nothing where there is no such entry. */
    template <typename Look>
    auto under(const char *entry, Look &&look) const -> std::optional<decltype(look())>
    {
        if (!m_entries.contains(QLatin1String(entry))) {
            return std::nullopt;
        }
        const Selection selection(m_features, m_registers, m_selector, QLatin1String(entry));
        return selection.isMade() ? std::optional(look()) : std::nullopt;
    }

    /*! Returns the sum of the numbers \a feature has under \a entries; the number itself where nothing
     * selects. */
    double sum(std::initializer_list<const char *> names, std::initializer_list<const char *> entries) const
    {
        if (!isSelector()) {
            return m_features.number(names, 0);
        }
        double sum = 0;
        for (const char *const entry : entries) {
            sum += under(entry, [&] { return m_features.number(names, 0); }).value_or(0);
        }
        return sum;
    }

private:
    const Features &m_features;
    SimulatedRegisters &m_registers;
    const char *m_selector;
    QStringList m_entries;
};

void readShape(const Features &features, SimulatedSettings &settings)
{
    settings.width = features.integer("Width", 0);
    settings.height = features.integer("Height", 0);
    settings.offsetX = features.integer("OffsetX", 0);
    settings.offsetY = features.integer("OffsetY", 0);
    settings.binningX = features.factor("BinningHorizontal");
    settings.binningY = features.factor("BinningVertical");
    settings.summed =
        (features.text({"BinningHorizontalMode"}) == QLatin1String("Average") ? 1 : settings.binningX)
        * (features.text({"BinningVerticalMode"}) == QLatin1String("Average") ? 1 : settings.binningY);
    settings.decimationX = features.factor("DecimationHorizontal");
    settings.decimationY = features.factor("DecimationVertical");
    settings.sensorWidth = features.integer(
        "SensorWidth", features.integer("WidthMax", settings.offsetX + settings.width) * settings.binningX);
    settings.sensorHeight = features.integer("SensorHeight",
                                             features.integer("HeightMax", settings.offsetY + settings.height)
                                                 * settings.binningY);
    settings.isReversedX = features.flag("ReverseX");
    settings.isReversedY = features.flag("ReverseY");
    const QString format = features.text({"PixelFormat"});
    settings.formatName = format.isEmpty() ? QStringLiteral("Mono8") : format;
    settings.format = pixelFormat(settings.formatName);
    const QString pattern = features.text({"TestPattern", "TestImageSelector"});
    settings.pattern = pattern.isEmpty() ? QStringLiteral("Off") : pattern;
}

void readLight(const Features &features, SimulatedRegisters &registers, SimulatedSettings &settings)
{
    settings.exposure =
        std::max(features.number({"ExposureTime", "ExposureTimeAbs"}, 10000) * microsecond, 0.0);
    const double gain =
        Selected(features, registers, "GainSelector").sum({"Gain"}, {"All", "AnalogAll", "DigitalAll"});
    settings.gain = std::pow(10, std::clamp(gain, -mostGain, mostGain) / 20);
    settings.blackLevel = Selected(features, registers, "BlackLevelSelector")
                              .sum({"BlackLevel"}, {"All", "AnalogAll", "Analog", "DigitalAll", "Digital"});
    const Selected balance(features, registers, "BalanceRatioSelector");
    const std::array<const char *, 3> colours{"Red", "Green", "Blue"};
    for (size_t i = 0; i < colours.size(); ++i) {
        const auto ratio = [&features] { return features.number({"BalanceRatio"}, 1); };
        settings.balance[i] = std::clamp(balance.under(colours[i], ratio).value_or(1), 0.0, 100.0);
    }
}

void readTriggers(const Features &features, SimulatedRegisters &registers, SimulatedSettings &settings)
{
    const Selected triggers(features, registers, "TriggerSelector");
    const auto isOn = [&features] { return features.isOn("TriggerMode"); };
    settings.isFrameTriggered =
        triggers.isSelector() ? triggers.under("FrameStart", isOn).value_or(false) : isOn();
    settings.isBurstTriggered = triggers.under("FrameBurstStart", isOn).value_or(false);
    settings.isBurstSelected = features.text({"TriggerSelector"}) == QLatin1String("FrameBurstStart");
    const QString source = features.text({"TriggerSource"});
    settings.isSoftwareSource = source.isEmpty() || source == QLatin1String("Software");
    const auto delay = [&features] { return features.number({"TriggerDelay"}, 0) * microsecond; };
    settings.triggerDelay = std::max(triggers.under("FrameStart", delay).value_or(0.0), 0.0);
    settings.burstFrames = std::max<qint64>(features.integer("AcquisitionBurstFrameCount", 1), 1);
}

// As fast as exposure, sensor, link and the rate that is asked for allow.
double intervalOf(const Features &features, const SimulatedSettings &settings)
{
    double interval = std::max({settings.exposure, double(settings.height) * lineTime, shortestInterval});
    const double rate = features.number({"AcquisitionFrameRate", "AcquisitionFrameRateAbs"}, 0);
    if (rate > 0 && features.flag("AcquisitionFrameRateEnable", true)) {
        interval = std::max(interval, 1 / rate);
    }
    const double throughput = features.number({"DeviceLinkThroughputLimit"}, 0);
    if (throughput > 0 && features.isOn("DeviceLinkThroughputLimitMode")) {
        const double size =
            double(settings.width) * double(settings.height) * bitsPerPixel(settings.format) / 8;
        interval = std::max(interval, size / throughput);
    }
    return interval;
}

} // namespace

SimulatedSettings readSettings(Engine &engine, const Description &description, SimulatedRegisters &registers)
{
    const Features features(engine, description);
    SimulatedSettings settings;
    readShape(features, settings);
    readLight(features, registers, settings);
    readTriggers(features, registers, settings);
    settings.interval = intervalOf(features, settings);
    settings.frames = framesAskedFor(engine, description);
    return settings;
}

qint64 framesAskedFor(Engine &engine, const Description &description)
{
    const Features features(engine, description);
    const QString mode = features.text({"AcquisitionMode"});
    if (mode == QLatin1String("SingleFrame")) {
        return 1;
    }
    return mode == QLatin1String("MultiFrame")
        ? std::max<qint64>(features.integer("AcquisitionFrameCount", 1), 1)
        : -1;
}

} // namespace Cameras
