#include "Hosts/PluginLibrary.h"

#include <pluginterfaces/base/ipluginbase.h>

#include <dlfcn.h>

#include <array>
#include <fstream>
#include <stdexcept>

namespace Zn::Tests
{
namespace
{
template <typename Function>
Function* symbolOf (void* handle, const char* name)
{
    if (auto* symbol = ::dlsym (handle, name))
        return reinterpret_cast<Function*> (symbol);

    throw std::runtime_error (std::string ("no ") + name);
}

std::string libraryIn (const juce::File& bundle)
{
    const auto found = bundle.findChildFiles (juce::File::findFiles, true, "*.so");
    return found.isEmpty() ? std::string() : found.getFirst().getFullPathName().toStdString();
}
} // namespace

bool isLoaded (const std::string& endOfPath)
{
    std::ifstream maps ("/proc/self/maps");

    for (std::string line; std::getline (maps, line);)
        if (line.ends_with (endOfPath))
            return true;

    return false;
}

VST3Library::VST3Library (const std::string& bundle)
    : handle (::dlopen (libraryIn (juce::File (bundle)).c_str(), RTLD_NOW | RTLD_LOCAL))
{
    if (handle == nullptr || ! symbolOf<bool (void*)> (handle, "ModuleEntry") (handle))
        throw std::runtime_error ("cannot load " + bundle);
}

VST3Library::~VST3Library()
{
    symbolOf<bool()> (handle, "ModuleExit")();
    ::dlclose (handle);
}

int VST3Library::scan() const
{
    using namespace Steinberg;

    const auto factory =
        Steinberg::IPtr<IPluginFactory>::adopt (symbolOf<IPluginFactory*()> (handle, "GetPluginFactory")());
    const auto numClasses = factory->countClasses();

    for (auto i = 0; i < numClasses; ++i)
    {
        PClassInfo info;
        void* object = nullptr;

        if (factory->getClassInfo (i, &info) != kResultOk
            || factory->createInstance (info.cid, IPluginBase::iid, &object) != kResultOk)
            throw std::runtime_error (std::string ("cannot make a ") + info.name);

        auto* plugin = static_cast<IPluginBase*> (object);
        plugin->initialize (nullptr);
        plugin->terminate();
        plugin->release();
    }

    return numClasses;
}
} // namespace Zn::Tests
