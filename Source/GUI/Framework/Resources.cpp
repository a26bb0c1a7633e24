#include "GUI/Framework/Resources.h"

#include <GUIData.h>

namespace Zn::GUI
{
const Binaries::Library& resources()
{
    static const auto library = Binaries::libraryOf (GUIData::namedResourceList,
                                                     GUIData::originalFilenames,
                                                     GUIData::namedResourceListSize,
                                                     GUIData::getNamedResource);
    return library;
}

Binaries::Bytes contentOf (const juce::String& fileName, const Binaries::Library& library)
{
    return library.find (Binaries::resourceName (fileName.toStdString()));
}

std::string_view textOf (Binaries::Bytes content) noexcept
{
    return { reinterpret_cast<const char*> (content.data()), content.size() };
}
} // namespace Zn::GUI
