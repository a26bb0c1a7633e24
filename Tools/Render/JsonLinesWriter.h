#pragma once

#include "OutputWriter.h"
#include "Support/OutputFile.h"

namespace Zn::Render
{
/** Writes every event as one line, in the order of the output: {"sample": 1234, "bytes": [144, 60, 100]} */
class JsonLinesWriter final : public OutputWriter
{
public:
    explicit JsonLinesWriter (const juce::File& target) : file (target) {}

    void write (const RenderedBlock&) override;
    void finish() override { file.finish(); }

private:
    Tools::OutputFile file;
    std::string line; // reused
};
} // namespace Zn::Render
