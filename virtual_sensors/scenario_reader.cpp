// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenario_reader.h"

#include <algorithm>
#include <cstdio>
#include <memory>

#include "waveform_reader.h"
#include "words.h"

namespace kelvra::virtual_sensors {
namespace {

constexpr std::size_t MaxFileSize = 1 << 20;
constexpr std::size_t MaxSensors = 256;
constexpr int64_t MaxIndex = 9999;
constexpr int64_t MaxCall = 1'000'000'000'000;

void ReadSeed(Words& words, Scenario& scenario) {
    constexpr int64_t largest = std::numeric_limits<int64_t>::max();
    scenario.seed = static_cast<uint64_t>(words.Whole("the seed", 0, largest));
}

void ReadTime(Words& words, Scenario& scenario) {
    scenario.computerTime = words.Take("computer");
    if (scenario.computerTime) return;
    if (!words.Take("polls")) return words.Fail("'computer' or 'polls' expected");
    scenario.pollStep = words.Time();
    if (words.Take("lock")) scenario.lockStep = words.Time();
}

void ReadDuration(Words& words, Scenario& scenario) {
    if (words.Take("times")) {
        scenario.durationFactor = words.Number("the factor", 0, 1e6);
        scenario.fixedDuration.reset();
    } else {
        scenario.fixedDuration = words.Time();
    }
}

void ReadZero(Words& words, Scenario& scenario) {
    scenario.zeroDuration = words.Time();
}

void ReadExternal(Words& words, Scenario& scenario) {
    scenario.externalPeriod.reset();
    if (words.Take("never")) return;
    scenario.externalPeriod = words.Time();
    if (*scenario.externalPeriod < 1e-6) words.Fail("the period is shorter than 1 us");
}

void ReadSource(Words& words, Scenario& scenario) {
    Source source;
    source.name = words.Text("the source's name");
    source.levelDbm = words.Level("the level", "dBm");
    scenario.sources.push_back(source);
}

void ReadSensor(Words& words, Scenario& scenario) {
    if (scenario.sensors.size() == MaxSensors) return words.Fail("more than 256 sensors");
    SensorPlan sensor;
    sensor.type = words.Text("the type");
    sensor.serial = words.Text("the serial number");
    for (const SensorPlan& other : scenario.sensors) {
        sensor.index = std::max(sensor.index, other.index + 1);
        if (other.serial == sensor.serial) words.Fail("this serial number is there already");
    }
    scenario.sensors.push_back(sensor);
}

// The last sensor so far. Without one the line fails, and a new sensor takes the values.
SensorPlan& SensorAbove(Words& words, Scenario& scenario) {
    if (scenario.sensors.empty()) {
        words.Fail("no sensor above this line");
        scenario.sensors.emplace_back();
    }
    return scenario.sensors.back();
}

void ReadName(Words& words, Scenario& scenario) {
    SensorAbove(words, scenario).name = words.Text("the name");
}

void ReadIndex(Words& words, Scenario& scenario) {
    SensorPlan& sensor = SensorAbove(words, scenario);
    sensor.index = static_cast<std::size_t>(words.Whole("the index", 0, MaxIndex));
    for (const SensorPlan& other : scenario.sensors) {
        if (&other != &sensor && other.index == sensor.index) words.Fail("this index is taken");
    }
}

void ReadSees(Words& words, Scenario& scenario) {
    const std::string name = words.Text("the source");
    const auto& sources = scenario.sources;
    const auto found = std::find_if(sources.begin(), sources.end(),
                                    [&](const Source& source) { return source.name == name; });
    if (found == sources.end()) return words.Fail("no source '" + name + "' above this line");
    const double coupling = words.Level("the coupling", "dB");
    const auto source = static_cast<std::size_t>(found - sources.begin());
    SensorAbove(words, scenario).sees.push_back({source, coupling});
}

void ReadNoise(Words& words, Scenario& scenario) {
    static constexpr Unit Units[] = {{"dB", 1},    {"W", 1},     {"mW", 1e-3},
                                     {"uW", 1e-6}, {"nW", 1e-9}, {"pW", 1e-12}};
    const Quantity noise = words.Measure("the noise", Units, 0, 100);
    SensorPlan& sensor = SensorAbove(words, scenario);
    (noise.unit == "dB" ? sensor.noiseDb : sensor.noiseW) = noise.value;
}

void ReadUnplugged(Words& words, Scenario& scenario) {
    SensorAbove(words, scenario).plugged = false;
}

Operation ReadOperation(Words& words) {
    const std::string name = words.Text("the function");
    const std::optional<Operation> operation = FindOperation(name);
    if (!operation) words.Fail("unknown function '" + name + "'");
    return operation.value_or(Operation::psdrv_init);
}

void ReadEvent(Words& words, Scenario& scenario) {
    Event event;
    if (words.Take("call")) {
        event.call = words.Whole("the number of the call", 1, MaxCall);
        if (!words.Take("of")) words.Fail("'of' expected");
        event.operation = ReadOperation(words);
    } else {
        event.time = words.Time();
    }
    event.plug = words.Take("plug");
    if (!event.plug && !words.Take("unplug")) words.Fail("'plug' or 'unplug' expected");
    const std::string serial = words.Text("the serial number");
    const auto& sensors = scenario.sensors;
    const auto found = std::find_if(sensors.begin(), sensors.end(), [&](const SensorPlan& sensor) {
        return sensor.serial == serial;
    });
    if (found == sensors.end()) return words.Fail("no sensor '" + serial + "' above this line");
    event.sensor = static_cast<std::size_t>(found - sensors.begin());
    scenario.events.push_back(event);
}

int32_t ReadInt32(Words& words, std::string_view what) {
    using Limits = std::numeric_limits<int32_t>;
    return static_cast<int32_t>(words.Whole(what, Limits::min(), Limits::max()));
}

void ReadEffect(Words& words, Fault& fault) {
    if (words.Take("status")) {
        fault.number = ReadInt32(words, "the status");
        if (!words.AtEnd()) fault.message = words.Text("the message");
    } else if (words.Take("count")) {
        fault.effect = Fault::Effect::Count;
        fault.number = ReadInt32(words, "the count");
    } else if (words.Take("value")) {
        fault.effect = Fault::Effect::Value;
        fault.value = words.Reading();
    } else if (words.Take("unended")) {
        fault.effect = Fault::Effect::Unended;
    } else {
        words.Fail("'status', 'count', 'value' or 'unended' expected");
    }
}

void ReadFault(Words& words, Scenario& scenario) {
    Fault fault;
    fault.operation = ReadOperation(words);
    if (words.Take("call")) {
        fault.first = fault.last = words.Whole("the number of the call", 1, MaxCall);
    } else if (words.Take("from")) {
        fault.first = words.Whole("the number of the call", 1, MaxCall);
    }
    if (words.Take("channel")) {
        fault.channel = static_cast<int32_t>(words.Whole("the channel", 1, MaxIndex + 1));
    }
    ReadEffect(words, fault);
    scenario.faults.push_back(fault);
}

constexpr struct {
    std::string_view keyword;
    void (*read)(Words&, Scenario&);
} Statements[] = {
    {"seed", ReadSeed},   {"time", ReadTime},           {"duration", ReadDuration},
    {"zero", ReadZero},   {"external", ReadExternal},   {"source", ReadSource},
    {"pulse", ReadPulse}, {"frame", ReadFrame},         {"sensor", ReadSensor},
    {"name", ReadName},   {"index", ReadIndex},         {"sees", ReadSees},
    {"noise", ReadNoise}, {"unplugged", ReadUnplugged}, {"at", ReadEvent},
    {"fault", ReadFault},
};

// The error; empty if there is none.
std::string ReadLine(std::string_view line, Scenario& scenario) {
    Words words(line);
    if (words.AtEnd()) return words.Error();
    for (const auto& statement : Statements) {
        if (!words.Take(statement.keyword)) continue;
        statement.read(words, scenario);
        if (!words.AtEnd()) words.Fail("'" + words.Text("") + "' is too much");
        return words.Error();
    }
    return "unknown statement '" + words.Text("") + "'";
}

ScenarioResult Refuse(std::string_view name, std::size_t line, const std::string& why) {
    return {{}, std::string(name) + ":" + std::to_string(line) + ": " + why};
}

}  // namespace

ScenarioResult ReadScenario(std::string_view text, std::string_view name) {
    ScenarioResult result;
    for (std::size_t line = 1; !text.empty(); ++line) {
        const std::size_t length = std::min(text.find('\n'), text.size());
        const std::string wrong = ReadLine(text.substr(0, length), result.scenario);
        if (!wrong.empty()) return Refuse(name, line, wrong);
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return result;
}

ScenarioResult LoadScenario(const std::string& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    if (!file) return Refuse(path, 1, "the file cannot be opened");
    std::string text(MaxFileSize + 1, '\0');
    text.resize(std::fread(text.data(), 1, text.size(), file.get()));
    if (std::ferror(file.get()) != 0) return Refuse(path, 1, "the file cannot be read");
    if (text.size() > MaxFileSize) return Refuse(path, 1, "the file is longer than 1 MiB");
    return ReadScenario(text, path);
}

}  // namespace kelvra::virtual_sensors
