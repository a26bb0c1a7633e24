#include "Support/MidiText.h"

#include <iomanip>
#include <sstream>
#include <stdexcept>

namespace Zn::Test
{
namespace
{
constexpr auto usualVelocity = 100;

using Words = std::istringstream;

[[noreturn]] void refuse (const std::string& event)
{
    throw std::invalid_argument ("no MIDI event: \"" + event + "\"");
}

/** Reads the words behind the sample mark and those in front of it apart. */
struct EventText
{
    explicit EventText (const std::string& event) : words (event.substr (0, event.find ('@')))
    {
        const auto mark = event.find ('@');

        if (mark == std::string::npos)
            refuse (event);

        sample = std::stoi (event.substr (mark + 1));
        words >> kind;
    }

    Words words;
    std::string kind;
    int sample = 0;
};

juce::MidiMessage noteFrom (EventText& event)
{
    const auto isOn = event.kind == "on";
    auto note = -1, channel = 1, velocity = isOn ? usualVelocity : 0;
    event.words >> note;

    for (std::string word; event.words >> word;)
    {
        if (word.front() == 'v')
            velocity = std::stoi (word.substr (1));
        else if (word.starts_with ("ch"))
            channel = std::stoi (word.substr (2));
        else
            refuse (word);
    }

    if (note < 0)
        refuse ("note without a number");

    return { (isOn ? 0x90 : 0x80) + channel - 1, note, velocity };
}

juce::MidiMessage controllerFrom (EventText& event)
{
    auto number = 0, value = 0, channel = 1;
    event.words >> number >> value;

    if (std::string word; event.words >> word)
        channel = std::stoi (word.substr (2));

    return juce::MidiMessage::controllerEvent (channel, number, value);
}

juce::MidiMessage bytesFrom (EventText& event)
{
    std::string bytes;

    for (auto byte = 0; event.words >> std::hex >> byte;)
        bytes += static_cast<char> (byte);

    return { bytes.data(), static_cast<int> (bytes.size()) };
}

void addEvent (juce::MidiBuffer& buffer, const std::string& description)
{
    EventText event (description);

    if (event.kind == "on" || event.kind == "off")
        buffer.addEvent (noteFrom (event), event.sample);
    else if (event.kind == "cc")
        buffer.addEvent (controllerFrom (event), event.sample);
    else if (event.kind == "hex")
        buffer.addEvent (bytesFrom (event), event.sample);
    else
        refuse (description);
}

void writeNote (std::ostream& out, const juce::MidiMessage& message)
{
    const auto isOn = message.isNoteOn (true);
    const auto velocity = static_cast<int> (message.getVelocity());

    out << (isOn ? "on " : "off ") << message.getNoteNumber();

    if (velocity != (isOn ? usualVelocity : 0))
        out << " v" << velocity;
}

void writeBytes (std::ostream& out, const juce::MidiMessage& message)
{
    out << "hex" << std::hex << std::uppercase << std::setfill ('0');

    for (auto i = 0; i < message.getRawDataSize(); ++i)
        out << ' ' << std::setw (2) << static_cast<int> (message.getRawData()[i]);

    out << std::dec;
}

void writeEvent (std::ostream& out, const juce::MidiMessage& message, int sample)
{
    const auto isNote = message.isNoteOn (true) || message.isNoteOff (false);

    if (isNote)
        writeNote (out, message);
    else if (message.isController())
        out << "cc " << message.getControllerNumber() << ' ' << message.getControllerValue();
    else
        writeBytes (out, message);

    if ((isNote || message.isController()) && message.getChannel() != 1)
        out << " ch" << message.getChannel();

    out << " @" << sample;
}
} // namespace

juce::MidiBuffer events (std::string_view text)
{
    juce::MidiBuffer buffer;
    std::istringstream list { std::string (text) };

    for (std::string event; std::getline (list, event, ',');)
        if (event.find_first_not_of (' ') != std::string::npos)
            addEvent (buffer, event);

    return buffer;
}

std::string text (const juce::MidiBuffer& events)
{
    std::ostringstream out;

    for (const auto event : events)
    {
        if (out.tellp() > 0)
            out << ", ";

        writeEvent (out, event.getMessage(), event.samplePosition);
    }

    return out.str();
}
} // namespace Zn::Test
