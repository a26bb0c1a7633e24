#include "Foundation/Trash.h"

namespace Zn
{
bool moveToTrash (const juce::File& file)
{
#if JUCE_LINUX || JUCE_BSD
    juce::File ("~/.local/share/Trash/files").createDirectory(); // where nobody has thrown away anything yet
#endif

    return file.moveToTrash();
}
} // namespace Zn
