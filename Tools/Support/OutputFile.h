#pragma once

#include <juce_core/juce_core.h>

#include <cstdio>
#include <memory>
#include <string>

namespace Zn::Tools
{
/** A file that appears under its name only when it is complete; until then, and on an error, the old one stays.

    As a stream it never throws: the first failure is kept, later writes do nothing, and `throwIfFailed` and
    `finish` report it as FileError.
*/
class OutputFile final : public juce::OutputStream
{
public:
    /** Opens a temporary file beside the target. Throws FileError if that cannot be. */
    explicit OutputFile (const juce::File& target);

    bool write (const void* data, std::size_t size) override;
    bool setPosition (juce::int64 newPosition) override;
    juce::int64 getPosition() override { return position; }
    void flush() override {}

    /** What has been written there; false if it is not so much. The next write needs a new position. */
    bool read (juce::int64 start, void* data, std::size_t size);

    /** Passes on to this file, which must outlive it: for a writer that deletes its stream. */
    std::unique_ptr<juce::OutputStream> createStream();

    void throwIfFailed() const;

    /** Puts the complete file in its place. Nothing may be written afterwards. */
    void finish();

    /** Throws FileError that names this file. */
    [[noreturn]] void fail (const std::string& whatIsWrong) const;

private:
    struct Closer
    {
        void operator() (std::FILE* open) const noexcept { std::fclose (open); }
    };

    void checkTarget() const;
    bool succeeds (bool success);

    juce::File target;
    juce::TemporaryFile temporary;
    std::unique_ptr<std::FILE, Closer> file;
    juce::int64 position = 0;
    int error = 0; // errno of the first failure
};
} // namespace Zn::Tools
