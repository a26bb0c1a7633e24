#include "Support/MidiText.h"

#include <iomanip>
#include <map>
#include <sstream>
#include <stdexcept>

namespace Zn::Tests
{
namespace
{
constexpr auto usualVelocity = 100;
constexpr auto noteOff = 0x80, noteOn = 0x90, controller = 0xb0;

juce::MidiMessage bytesFrom (std::istream& words)
{
    std::string bytes;

    for (auto byte = 0; words >> std::hex >> byte;)
        bytes += static_cast<char> (byte);

    return { bytes.data(), static_cast<int> (bytes.size()) };
}

/** Reads the words in front of an event's sample mark. */
juce::MidiMessage messageFrom (std::istream& words)
{
    static const std::map<std::string, int> statuses { { "off", noteOff },
                                                       { "on", noteOn },
                                                       { "cc", controller } };
    std::string kind, word;
    words >> kind;

    if (kind == "hex")
        return bytesFrom (words);

    const auto status = statuses.at (kind);
    auto first = 0, second = status == noteOn ? usualVelocity : 0, channel = 1;

    if (! (words >> first) || (status == controller && ! (words >> second)))
        throw std::invalid_argument ("no number");

    while (words >> word)
    {
        if (word.starts_with ("ch"))
            channel = std::stoi (word.substr (2));
        else if (word.front() == 'v' && status != controller)
            second = std::stoi (word.substr (1));
        else
            throw std::invalid_argument (word);
    }

    return { status + channel - 1, first, second };
}

void addEvent (juce::MidiBuffer& buffer, const std::string& event)
{
    try
    {
        const auto mark = event.find ('@');
        std::istringstream words (event.substr (0, mark));
        buffer.addEvent (messageFrom (words), std::stoi (event.substr (mark + 1)));
    }
    catch (const std::logic_error&)
    {
        throw std::invalid_argument ("no MIDI event: \"" + event + "\"");
    }
}

void writeEvent (std::ostream& out, const juce::MidiMessageMetadata& event)
{
    const auto* data = event.data;
    const auto status = data[0] & 0xf0;

    if (event.numBytes == 3 && (status == noteOff || status == noteOn || status == controller))
    {
        out << (status == noteOff ? "off " : status == noteOn ? "on " : "cc ") << int (data[1]);

        if (status == controller)
            out << ' ' << int (data[2]);
        else if (data[2] != (status == noteOn ? usualVelocity : 0))
            out << " v" << int (data[2]);

        if (const auto channel = (data[0] & 0x0f) + 1; channel != 1)
            out << " ch" << channel;
    }
    else
    {
        out << "hex" << std::hex << std::uppercase << std::setfill ('0');

        for (auto i = 0; i < event.numBytes; ++i)
            out << ' ' << std::setw (2) << int (data[i]);

        out << std::dec;
    }

    out << " @" << event.samplePosition;
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
        out << (out.tellp() > 0 ? ", " : "");
        writeEvent (out, event);
    }

    return out.str();
}
} // namespace Zn::Tests
