#include "Support/OutputFile.h"

#include "Foundation/NativePath.h"
#include "Support/Errors.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace Zn::Tools
{
namespace
{
class Forwarder final : public juce::OutputStream
{
public:
    explicit Forwarder (OutputFile& fileToUse) : file (fileToUse) {}

    bool write (const void* data, std::size_t size) override { return file.write (data, size); }
    bool setPosition (juce::int64 position) override { return file.setPosition (position); }
    juce::int64 getPosition() override { return file.getPosition(); }
    void flush() override {}

private:
    OutputFile& file;
};

juce::File behindLinks (const juce::File& file)
{
    return file.isSymbolicLink() ? file.getLinkedTarget() : file;
}

std::string reason (int error)
{
    return "cannot be written: " + std::generic_category().message (error);
}
} // namespace

OutputFile::OutputFile (const juce::File& given) : target (behindLinks (given)), temporary (target)
{
    checkTarget();
    file.reset (std::fopen (temporary.getFile().getFullPathName().toRawUTF8(), "w+b"));

    if (file == nullptr)
        fail (reason (errno));
}

bool OutputFile::write (const void* data, std::size_t size)
{
    if (error == 0 && size == 0) // then there need not be any data
        return true;

    if (error != 0 || ! succeeds (std::fwrite (data, 1, size, file.get()) == size))
        return false;

    position += static_cast<juce::int64> (size);
    return true;
}

bool OutputFile::setPosition (juce::int64 newPosition)
{
    position = newPosition;
    return error == 0 && succeeds (std::fseek (file.get(), static_cast<long> (newPosition), SEEK_SET) == 0);
}

bool OutputFile::read (juce::int64 start, void* data, std::size_t size)
{
    return setPosition (start) && std::fread (data, 1, size, file.get()) == size;
}

std::unique_ptr<juce::OutputStream> OutputFile::createStream()
{
    return std::make_unique<Forwarder> (*this);
}

void OutputFile::throwIfFailed() const
{
    if (error != 0)
        fail (reason (error));
}

void OutputFile::finish()
{
    succeeds (std::fclose (file.release()) == 0);
    throwIfFailed();

    std::error_code problem;
    std::filesystem::rename (nativePath (temporary.getFile()), nativePath (target), problem);

    if (problem)
        fail (reason (problem.value()));
}

void OutputFile::fail (const std::string& whatIsWrong) const
{
    throw FileError (target.getFullPathName().toStdString() + ": " + whatIsWrong);
}

void OutputFile::checkTarget() const
{
    namespace fs = std::filesystem;
    std::error_code ignored;
    const auto status = fs::status (nativePath (target), ignored);

    if (fs::is_directory (status))
        fail ("cannot be written: it is a directory");

    if (fs::exists (status) && ! fs::is_regular_file (status))
        fail ("cannot be written: it is not a regular file");

    if (! target.getParentDirectory().isDirectory())
        fail ("cannot be written: its directory does not exist");
}

bool OutputFile::succeeds (bool success)
{
    if (! success && error == 0)
        error = errno != 0 ? errno : EIO;

    return success;
}
} // namespace Zn::Tools
