#include "Plugin/Vornel/FactoryArchives.h"

#include <FactoryData.h>

namespace Zn::Audio::Plugins::Vornel
{
const Binaries::Library& factoryArchives()
{
    static const auto archives = Binaries::libraryOf (FactoryData::namedResourceList,
                                                      FactoryData::originalFilenames,
                                                      FactoryData::namedResourceListSize,
                                                      FactoryData::getNamedResource);
    return archives;
}
} // namespace Zn::Audio::Plugins::Vornel
