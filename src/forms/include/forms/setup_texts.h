// SPDX-License-Identifier: GPL-3.0-or-later
// What the controls of the setup dialog say about themselves, in the order of the pages: what a
// setting does, when to change it, and what it costs. A text that both averaging filters use is
// here once. Paragraphs are joined with CR LF; ranges are declared with the fields.
#pragma once

namespace kelvra::forms::texts {

// Header
inline constexpr const char* SensorList = "List of connected sensors";
inline constexpr const char* Mode = "Measurement mode for the selected sensor";
inline constexpr const char* GeneralSettings =
    "Shows the sensor's name, its averaging, the scales of its display, and the commands.";
inline constexpr const char* ModeSettings = "Shows the settings of the measurement mode.";
inline constexpr const char* TriggerSettings = "Shows what starts a measurement.";
inline constexpr const char* CorrectionSettings = "Shows how readings are corrected.";
inline constexpr const char* AdvancedSettings = "Shows sampling and the choice of the diode range.";
inline constexpr const char* InputError =
    "What the driver reports about a sensor and its settings, after the sensor's name.";

// General settings
inline constexpr const char* LogicalName = "Logical name of the controlled sensor";
inline constexpr const char* TypeInfo = "Model and serial number of the selected sensor.";
inline constexpr const char* ZeroSensor = "Starts the autozero function";
inline constexpr const char* ZeroAll = "Starts the autozero function for all sensors";
inline constexpr const char* ZeroHint =
    "Disconnect RF power before zeroing: power at the sensor spoils every later reading.";
inline constexpr const char* Information = "Display sensor information";
inline constexpr const char* SelfTest = "Run the self test routine of the selected sensor";
inline constexpr const char* AutoScaleTrace = "Use auto-scaling for the display";
inline constexpr const char* AutoScaleSlots =
    "The time slot display chooses the limits of its vertical axis by itself.";
inline constexpr const char* AxisMaximum =
    "Specify the maximum value of the vertical axis of the display";
inline constexpr const char* AxisMinimum =
    "Specify the minimum value of the vertical axis of the display";

// Averaging, of readings and of traces
inline constexpr const char* Averaging =
    "The averaging filter reduces the noise of the result. With N readings in the filter the noise "
    "falls by the square root of N, and a measurement takes N times as long.\r\n"
    "Switch it off for strong levels that change quickly, where every single reading counts.";
inline constexpr const char* MovingAveraging =
    "A moving filter gives a result with every new reading: you see the level at once, and it "
    "settles while the filter fills.\r\n"
    "A repeating filter gives a result only when it has been filled anew. There are fewer results, "
    "and each is settled and independent of the one before.\r\n"
    "Use the moving filter to watch a level while you adjust something, the repeating one for "
    "values that you keep.";
inline constexpr const char* ByResolution =
    "Resolution mode: the sensor finds the filter length that keeps the wanted number of digits "
    "free of noise. It depends on the level: weak signals are averaged longer.\r\n"
    "This is the right mode for most measurements. The settling time limits the filter length.";
inline constexpr const char* ByNoise =
    "Fixed-noise mode: the sensor finds the filter length that keeps two standard deviations of "
    "the result within the noise that you allow, in dB.\r\n"
    "The settling time limits the filter length: when it is too short for the level, the result "
    "has more noise than you allow.";
inline constexpr const char* ByCount =
    "Manual mode: the filter length is the number that you set, for every level.\r\n"
    "Use it where all measurements have to take the same time. Four times the length halves the "
    "noise and takes four times as long.";
inline constexpr const char* Resolution =
    "Number of digits of the result that are free of noise: 1 is a resolution of 1 dB, 2 of "
    "0.1 dB, 3 of 0.01 dB, 4 of 0.001 dB.\r\n"
    "One digit more can take a hundred times as long, up to the settling time. Use 4 for small "
    "differences of steady levels, 1 or 2 to follow a level that changes.";
inline constexpr const char* FixedNoise = "Fixed Noise in dB";
inline constexpr const char* FilterLength =
    "Sets the filter length i.e. the number of readings to be averaged for one measured value.";
inline constexpr const char* SettlingTime =
    "Limit the filter length with this parameter in order to avoid very long settling times when "
    "the power is low";
inline constexpr const char* TraceSettlingTime = "Max settling Time in sec";
inline constexpr const char* ReferenceSlot =
    "Reference timeslot for for the calculation of filter length in Auto averaging in timeslot "
    "mode";

// Modes
inline constexpr const char* Window =
    "Length of the time window, in ms, in which the power is averaged for one reading. 20 ms, the "
    "sensor's own default, suits a continuous wave.\r\n"
    "For a modulated signal make it equal to the modulation period, or to a multiple of it: a "
    "window that cuts a period short makes the readings fluctuate. A reading takes about twice the "
    "window.";
inline constexpr const char* Smoothing =
    "Gives the samples in the middle of the window more weight than those at its ends. The "
    "readings of a modulated signal then fluctuate less when the window does not match the "
    "modulation period.\r\n"
    "It costs a little noise. Switch it off when the window is exactly the period or a multiple "
    "of it.";
inline constexpr const char* BufferSize =
    "Number of readings that the sensor collects before it hands them over together. A larger "
    "buffer saves transfers, but nothing is seen before it is full.";
inline constexpr const char* SlotCount = "Number of slots to be measured";
inline constexpr const char* SlotWidth = "The width of each slot in ms";
inline constexpr const char* ExcludeStart = "Time in ms which is not measured after the slot start";
inline constexpr const char* ExcludeStop =
    "The time in ms which is not measured before the slot end";
inline constexpr const char* DropOut =
    "Minimum signal pause, in \u00B5s, before the end of a burst is detected. The modulation of a "
    "burst may reach zero for a moment, which is not yet its end.\r\n"
    "Make it longer than such gaps, or the measurement ends too early and the result is wrong; "
    "and shorter than the pause between two bursts, or they are measured as one.";
inline constexpr const char* Points = "Number of points to be measured in Scope mode";
inline constexpr const char* TraceTime = "Measurement time for Scope mode in milliseconds";
inline constexpr const char* TraceOffset =
    "Time in ms from the trigger event, with its delay, to the beginning of the trace. Positive "
    "values show a later part of the signal; negative values shift the display to the right and "
    "show what was before the trigger.\r\n"
    "A positive offset adds to the time that a measurement takes.";
inline constexpr const char* Realtime =
    "Shows each trace as it was measured, without averaging successive traces. Use it for single "
    "events and for signals that change from trace to trace.\r\n"
    "The trace then has the noise of a single measurement. Switch it off for a signal that "
    "repeats, where averaging gives a clear picture.";
inline constexpr const char* ShownExclusion = "Timeslot the exclude times are displayed in";

// Trigger
inline constexpr const char* TriggerSource =
    "Select trigger mode (Single, External, Hold, Immediate and Internal)";
inline constexpr const char* TriggerNow =
    "Triggers the sensor once, by software. A measurement with the source Single waits for this.";
inline constexpr const char* TriggerCount =
    "Sets the number of measurement cycles to be performed when the measurement is started";
inline constexpr const char* TriggerSlope =
    "Define whether the trigger should look for raising (positive) or for falling (negative) edges";
inline constexpr const char* TriggerLevel =
    "Level in dBm that the signal has to cross for the internal trigger, upwards or downwards as "
    "the slope says. Other sources do not use it.\r\n"
    "Choose it well above the noise and some dB below the level of the bursts. A level that the "
    "signal does not cross gives no measurement at all.";
inline constexpr const char* TriggerHysteresis =
    "How far, in dB, the signal has to go back from the trigger level before the next edge counts: "
    "below it for the positive slope, above it for the negative one.\r\n"
    "Raise it when noise or modulation triggers too often. With too large a value the trigger "
    "misses edges that it should see.";
inline constexpr const char* TriggerDelay =
    "Time in ms from the trigger event to the measurement; whole milliseconds are kept. A positive "
    "delay postpones the beginning of the first time slot. Negative values allow a few ms of "
    "pre-triggering.\r\n"
    "Use it where the trigger does not come with the part of the signal that you want to measure. "
    "A positive delay adds to the time that a measurement takes.";
inline constexpr const char* TriggerHoldOff =
    "Time in ms after a trigger event in which further events are ignored.\r\n"
    "Use it when a signal has several edges in a period: a little less than the period makes the "
    "trigger find the same edge each time. Too long a time leaves periods out.";

// Correction
inline constexpr const char* OffsetEnable = "Enable / disable offset correction";
inline constexpr const char* Offset =
    "Define a fixed offset value for multiplying (logarithmically adding) to the measured value of "
    "a sensor.";
inline constexpr const char* FrequencyEnable =
    "Always on: the sensor corrects its frequency response with the frequency beside it.";
inline constexpr const char* Frequency =
    "Frequency of the signal in MHz. The sensor does not determine it by itself: it takes the "
    "frequency-dependent correction factor of its calibration for the value that you give.\r\n"
    "Enter the carrier frequency, and again whenever it changes. A wrong one makes every reading "
    "wrong, more so far from the right one; the correction takes no time.";
inline constexpr const char* GammaEnable = "Enable  / disable gamma correction";
inline constexpr const char* GammaMagnitude =
    "Magnitude of the source's reflection coefficient at the signal's frequency; 0 is a perfectly "
    "matched source. With the sensor's own reflection it corrects the error of the mismatch.\r\n"
    "Take it from the source's data sheet or from a network analyser. It matters most with poorly "
    "matched sources, and takes no time.";
inline constexpr const char* GammaPhase =
    "Phase of the source's reflection coefficient, in degrees, where the sensor is connected.\r\n"
    "A cable or an adapter between source and sensor turns it. If you know only the magnitude, "
    "leave the correction off: with a wrong phase it can double the error.";
inline constexpr const char* DutyEnable =
    "Switches duty cycle correction for the measured value on/off";
inline constexpr const char* DutyCycle =
    "Share of the period, in %, in which the signal is on. The average power of the whole signal "
    "is divided by it and gives the average burst power.\r\n"
    "For thermal sensors this is the only way to measure bursts; other sensors measure them "
    "directly in their burst and time slot modes. The result is as accurate as the duty cycle, "
    "and right only for bursts with steep edges.";
inline constexpr const char* SParameters =
    "Activates the S-Parameter set stored in the sensor for a twoport that has been connected "
    "ahead of the sensor.";

// Advanced setup
inline constexpr const char* ContinuousMeasurement =
    "Continuous re-initiation: the sensor begins the next measurement as soon as one has ended, "
    "without being started for each pass.\r\n"
    "It saves time between measurements, but a result may have begun before its pass. Leave it "
    "off where several sensors have to measure at the same time. It is not kept in files.";
inline constexpr const char* SamplingFrequency =
    "Sampling rate of the sensor's A/D converter. With a modulation near a multiple of the "
    "sampling rate the readings drift slowly or do not settle (aliasing): changing the rate "
    "removes that.\r\n"
    "Otherwise leave it at the high rate.";
inline constexpr const char* RangeAuto =
    "The sensor chooses the diode path by the level. The value beside it shifts the level at which "
    "it crosses over to a less sensitive path.\r\n"
    "Shift it downwards for signals with high peaks: they are then measured with less distortion, "
    "but with more noise or a longer filter below the cross-over.";
inline constexpr const char* RangeManual =
    "Specifies the used Diode Range. Manual allows manual selection, use Auto to specify a cross "
    "over range in dB";
inline constexpr const char* CrossOver =
    "Shift of the cross-over level in dB, for the automatic choice of the diode path. 0 leaves it "
    "as calibrated; negative values change to the less sensitive path at lower levels.";
inline constexpr const char* RangePath =
    "Diode path for the manual choice: path 1 is the most sensitive, path 3 takes the highest "
    "levels. A level that does not suit the path is measured with noise or with distortion.";

}  // namespace kelvra::forms::texts
