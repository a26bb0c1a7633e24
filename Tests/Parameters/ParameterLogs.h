#pragma once

#include "Parameters/MenuItems.h"
#include "Support/PlainProcessor.h"

#include <string>
#include <vector>

namespace Zn::Tests
{
using Lines = std::vector<std::string>;

/** What a host is told of one parameter, in order: "begin", "end" or the normalised value. */
class HostLog : private juce::AudioProcessorParameter::Listener
{
public:
    explicit HostLog (juce::AudioProcessorParameter& parameterToUse) : parameter (parameterToUse)
    {
        parameter.addListener (this);
    }

    ~HostLog() override { parameter.removeListener (this); }

    HostLog (const HostLog&) = delete;
    HostLog& operator= (const HostLog&) = delete;

    Lines lines;

private:
    void parameterValueChanged (int, float value) override { lines.push_back (std::to_string (value)); }

    void parameterGestureChanged (int, bool isStarting) override
    {
        lines.push_back (isStarting ? "begin" : "end");
    }

    juce::AudioProcessorParameter& parameter;
};

/** The lines of a menu, the ticked one behind a star. */
inline Lines linesOf (const Parameters::MenuItems::Item& menu)
{
    Lines lines;

    for (const auto& item : menu.subItems)
        lines.push_back (((item.isTicked() ? "*" : "") + item.text).toStdString());

    return lines;
}
} // namespace Zn::Tests
