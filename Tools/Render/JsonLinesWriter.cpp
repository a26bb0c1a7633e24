#include "JsonLinesWriter.h"

namespace Zn::Render
{
void JsonLinesWriter::write (const RenderedBlock& block)
{
    for (const auto event : block.midi)
    {
        line = "{\"sample\": " + std::to_string (block.firstSample + event.samplePosition) + ", \"bytes\": [";

        for (auto i = 0; i < event.numBytes; ++i)
            line += (i > 0 ? ", " : "") + std::to_string (event.data[i]);

        line += "]}\n";
        file.write (line.data(), line.size());
    }

    file.throwIfFailed();
}
} // namespace Zn::Render
