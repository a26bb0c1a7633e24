#include "Presets/Base.h"

#include "Foundation/Singleton.h"
#include "Presets/AtomicFile.h"
#include "Presets/FactoryArchive.h"
#include "Presets/FactoryContent.h"
#include "Presets/Folders.h"
#include "Presets/HeaderCache.h"
#include "Presets/Initializer.h"
#include "Presets/PresetFile.h"
#include "Presets/PresetFinder.h"
#include "Presets/Reflection/JsonText.h"
#include "Presets/Reflection/Loader.h"
#include "Presets/Reflection/Saver.h"
#include "Presets/Validator.h"

#include <utility>

namespace Zn::Presets
{
namespace
{
auto& validator()
{
    return Singleton::get<Validation::Validator>();
}

auto& headers()
{
    return Singleton::get<HeaderCache>();
}

auto& initializers()
{
    return Singleton::get<Initializer::Initializers>();
}

/** For what a click or a start asks for: a preset that breaks off leaves what it has set so far. */
template <typename Load>
void loadQuietly (Load&& load)
{
    try
    {
        load();
    }
    catch (const std::exception&)
    {}
}
} // namespace

juce::File Base::getUserFolder() const
{
    return Folders::user ("Presets");
}

bool Base::isValid (const nlohmann::json& documentHeader) const
{
    return DocumentHeader::isValid (documentHeader, { getMinimumVersion(), getProduct() });
}

void Base::init()
{
    prepareFirstUse();
    loadDefault();
}

juce::File Base::getDevelopmentFolder() const
{
    return Folders::development();
}

juce::File Base::getFactoryFolder() const
{
    return Folders::factory ("Presets");
}

const Binaries::Library& Base::getArchives() const
{
    static const Binaries::Library none;
    return none;
}

juce::File Base::getContentFolder() const
{
    const auto development = getDevelopmentFolder();
    return development.isDirectory() ? development.getChildFile (getProduct()) : getFactoryFolder();
}

void Base::prepareFirstUse()
{
    const auto install = [this] {
        const auto folder = getContentFolder();
        folder.createDirectory();
        getUserFolder().createDirectory();

        if (! getDevelopmentFolder().isDirectory())
            installFactoryContent (getFactoryZip(), folder);
    };

    initializers().prepare (
        typeid (*this),
        [this] { return createDocument (ReflectorContext::forPresetFile()); },
        install);
}

Binaries::Bytes Base::getFactoryZip() const
{
    return getArchives().find (Binaries::resourceName (getZipName().toStdString()));
}

void Base::reflect (Reflector& r)
{
    if (! r.isLoading())
        reflectDocument (r);
    else if (r.getSize() > 0)
        reflectBetweenEvents (r);
}

void Base::reflectBetweenEvents (Reflector& r)
{
    aboutToLoad.callListeners();

    try
    {
        reflectDocument (r);
    }
    catch (...)
    {
        reportLoaded(); // whoever has made way for the load comes back
        throw;
    }

    reportLoaded();
}

void Base::reportLoaded()
{
    loaded.callListeners();
    changed.callListeners();
}

void Base::reflectDocument (Reflector& r)
{
    if (! header.reflect (r, { getMinimumVersion(), getProduct() }))
        return;

    reflectExtra (r);
    reflectMembers (r);
}

nlohmann::json Base::createDocument (ReflectorContext context)
{
    return Json::save (*this, context);
}

void Base::applyDocument (nlohmann::json document, ReflectorContext context)
{
    Json::load (*this, document, context);
}

void Base::applyAsPreset (nlohmann::json document, const juce::String& name)
{
    document["name"] = name.toStdString();
    document["dirty"] = false;
    document["id"] = idOf (document).toStdString();
    applyDocument (std::move (document), ReflectorContext::forPresetFile());
}

bool Base::isValidFile (const juce::File& file) const
{
    return validator().isValid (getProduct(), file, [&] {
        return PresetFile::hasExtension (file, getExtension()) && isValid (headers().get (file));
    });
}

nlohmann::json Base::load (const juce::File& file)
{
    if (file == juce::File() || file.isDirectory() || ! PresetFile::hasExtension (file, getExtension())
        || ! isValidFile (file))
        return nullptr;

    auto document = PresetFile::read (file);

    // A file that was valid once may have been changed since.
    if (! document.is_object())
        return nullptr;

    lastFile = file;
    applyAsPreset (document, file.getFileNameWithoutExtension());
    return document;
}

bool Base::save (const juce::URL& destination)
{
    const auto file = PresetFile::fileToSave (destination, getExtension());

    if (file == juce::File())
        return false;

    const auto name = file.getFileNameWithoutExtension();
    const auto previous = std::exchange (header, DocumentHeader::forSaving (name));
    const auto bytes = PresetFile::toBytes (createDocument (ReflectorContext::forPresetFile()));

    if (bytes.size() > Json::largestPresetText || ! replaceFile (file, bytes, Durability::survivesPowerLoss))
    {
        header = previous;
        return false;
    }

    lastFile = file;
    takeIn (file);
    return true;
}

bool Base::move (const juce::File& file, const juce::File& target)
{
    if (! file.moveFileTo (target))
        return false;

    if (lastFile == file)
        lastFile = target;

    takeIn (target);
    return true;
}

/** A file of ours that has just come to be. */
void Base::takeIn (const juce::File& file)
{
    headers().forget (file);
    validator().setValid (getProduct(), file);
    rescan();
}

const std::vector<Base::Entry>& Base::getList()
{
    return list.get ([this] {
        std::vector<Entry> entries;

        for (const auto& folder : { getContentFolder(), getUserFolder() })
            for (const auto& file : findPresetFiles (folder, getExtension()))
                if (isValidFile (file))
                    entries.push_back ({ file, idOf (headers().get (file)) });

        return entries;
    });
}

int Base::getPosition()
{
    return positionOf (getList(), header.id, header.name, lastFile);
}

void Base::rescan()
{
    list.forget();
    changed.callListeners();
}

void Base::step (int direction)
{
    const auto entries = getList(); // a copy: listeners may save
    const auto size = static_cast<int> (entries.size());
    auto position = getPosition();

    for (auto numTried = 0; numTried < size; ++numTried)
    {
        position = steppedPosition (position, direction, size);
        auto isRefused = false; // what breaks off is no less where the user is now: it shows its name

        loadQuietly ([&] { isRefused = load (entries[static_cast<std::size_t> (position)].file).is_null(); });

        if (! isRefused)
            return;
    }
}

void Base::loadDefault()
{
    loadQuietly ([this] {
        if (const auto file = getDefaultPresetFile(); load (file).is_null() && file != juce::File())
            loadFromArchive (file);
    });
}

void Base::loadFromArchive (const juce::File& file)
{
    FactoryArchive archive (getFactoryZip());
    const auto path = file.getRelativePathFrom (getContentFolder()).replaceCharacter ('\\', '/');
    const auto bytes = archive.read (path);

    if (auto document = bytes ? Json::parse (*bytes, Json::largestPresetText) : nlohmann::json();
        isValid (document))
        applyAsPreset (std::move (document), file.getFileNameWithoutExtension());
}

void Base::loadInit()
{
    loadQuietly ([this] {
        if (auto document = initializers().getDocument (typeid (*this)); isValid (document))
            applyAsPreset (std::move (document), "Init");
    });
}

void Base::setName (const juce::String& newName)
{
    if (std::exchange (header.name, newName) != newName)
        changed.callListeners();
}

void Base::setDirty (bool shouldBeDirty)
{
    if (std::exchange (header.dirty, shouldBeDirty) != shouldBeDirty)
        changed.callListeners();
}
} // namespace Zn::Presets
