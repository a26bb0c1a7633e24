#include "Tool.h"

#include "ArgumentParser.h"
#include "Errors.h"
#include "HostParameters.h"
#include "JsonLinesWriter.h"
#include "MidiFileWriter.h"
#include "ProgressBar.h"
#include "StateFiles.h"
#include "WavFileWriter.h"

#include <cmath>
#include <iostream>

namespace Zn::Render
{
namespace
{
constexpr double longestSongSeconds = 86400.0; // a day
constexpr double shortestLoopSeconds = 0.01;
constexpr int fileStatus = 1, argumentStatus = 2, interruptedStatus = 130;

struct Interrupted
{};

/** The outputs that the options ask for. */
struct Writers
{
    Writers (const Options& options, const SongTimeline& timeline, int channels)
    {
        if (options.wavFile)
            wav = std::make_unique<WavFileWriter> (*options.wavFile,
                                                   options.sampleRate,
                                                   channels,
                                                   options.wavBits);

        if (options.midiFile)
            midi = std::make_unique<MidiFileWriter> (*options.midiFile, timeline);

        if (options.eventsFile)
            events = std::make_unique<JsonLinesWriter> (*options.eventsFile);

        for (auto* writer : std::initializer_list<OutputWriter*> { wav.get(), midi.get(), events.get() })
            if (writer != nullptr)
                all.push_back (writer);
    }

    std::unique_ptr<WavFileWriter> wav;
    std::unique_ptr<MidiFileWriter> midi;
    std::unique_ptr<JsonLinesWriter> events;
    std::vector<OutputWriter*> all;
};

SongTimeline makeTimeline (const Options& options, const MidiFileSource& source)
{
    const auto tempi = options.bpm ? TempoMap ({ { 0.0, *options.bpm } }) : source.getTempoMap();
    const auto secondsAt = [&] (double quarters) { return tempi.secondsFromQuarters (quarters); };

    if (secondsAt (source.getLengthQuarters()) > longestSongSeconds)
        throw FileError (options.input->getFullPathName().toStdString() + ": lasts longer than a day");

    if (options.loop
        && secondsAt (options.loop->endQuarters) - secondsAt (options.loop->startQuarters)
               < shortestLoopSeconds)
        throw ArgumentError ("--loop needs to last at least 10 milliseconds");

    return { tempi, source.getMeterMap(), source.getLengthQuarters(), options.sampleRate, options.loop };
}

std::unique_ptr<juce::AudioProcessor> makeProcessor (const Options& options, const ProcessorAccess& access)
{
    auto processor = access.create();
    loadStateFiles (*processor, options, access);

    for (const auto& setting : options.settings)
        setParameter (*processor, setting.identifier, setting.text);

    for (const auto& learned : options.learned)
    {
        if (! learned.slot)
            findParameter (*processor, learned.parameter);

        access.learn (*processor, learned);
    }

    if (options.slot)
        access.selectSlot (*processor, *options.slot);

    if (options.seed)
        access.setSeed (*processor, *options.seed);

    return processor;
}

void render (juce::AudioProcessor& processor, const Options& options, const std::atomic<bool>& interrupted)
{
    const MidiFileSource source (*options.input);
    const auto timeline = makeTimeline (options, source);
    const Writers writers (options, timeline, processor.getTotalNumOutputChannels());

    auto setup = options.setup;
    setup.tailSamples = std::llround (options.tailSeconds * options.sampleRate);
    Renderer renderer (processor, source, timeline, setup);

    {
        ProgressBar bar;
        renderer.run (writers.all, [&] (juce::int64 done, juce::int64 total) {
            bar.show (done, total);

            if (interrupted)
                throw Interrupted {};
        });
    }

    for (auto* writer : writers.all)
        writer->finish();

    if (writers.wav != nullptr && writers.wav->getNumClipped() > 0)
        std::cerr << "vornel-render: " << writers.wav->getNumClipped()
                  << " samples were beyond full scale and are clipped; --wav-bits 32 keeps them\n";
}

void run (const Options& options, const ProcessorAccess& access, const std::atomic<bool>& interrupted)
{
    const auto processor = makeProcessor (options, access);

    if (options.listsParameters)
        std::cout << listParameters (*processor);
    else if (options.input)
        render (*processor, options, interrupted);

    writeStateFile (*processor, options);
}

void runOptions (const Options& options, const ProcessorAccess& access, const std::atomic<bool>& interrupted)
{
    if (options.showsHelp)
        std::cout << helpText();
    else if (options.showsVersion)
        std::cout << "vornel-render " << ZN_RENDER_VERSION << '\n';
    else
        run (options, access, interrupted);
}

int report (const std::string& message, int status)
{
    std::cerr << "vornel-render: " << message << '\n';
    return status;
}
} // namespace

int runTool (std::span<const std::string> arguments,
             const ProcessorAccess& access,
             const std::atomic<bool>& interrupted)
{
    try
    {
        runOptions (parseArguments (arguments), access, interrupted);
        return 0;
    }
    catch (const ArgumentError& error)
    {
        return report (error.what(), argumentStatus);
    }
    catch (const FileError& error)
    {
        return report (error.what(), fileStatus);
    }
    catch (const Interrupted&)
    {
        return interruptedStatus;
    }
    catch (const std::exception& error)
    {
        return report (error.what(), fileStatus);
    }
}
} // namespace Zn::Render
