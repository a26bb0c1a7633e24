#include "GUI/Presets/PresetActions.h"

#include "Foundation/Trash.h"
#include "GUI/Presets/SaveTarget.h"
#include "GUI/Presets/SoundRandomiser.h"
#include "Presets/PresetFile.h"
#include "Presets/Reflection/JsonText.h"

namespace Zn::GUI
{
namespace
{
constexpr auto indent = 4;

nlohmann::json documentFrom (const juce::String& text)
{
    return Json::parse (text.toStdString(), Json::largestPresetText);
}

/** For what a click asks for: what breaks off leaves what it has set so far. */
template <typename Load>
bool loadQuietly (Load&& load)
{
    try
    {
        return load();
    }
    catch (const std::exception&)
    {
        return true;
    }
}
} // namespace

PresetActions::PresetActions (EditorContext& contextToUse, PresetKind kindToUse)
    : context (contextToUse), kind (std::move (kindToUse))
{}

/** Loads are steps of undo by themselves: one that is still open would swallow them. */
void PresetActions::makeReady()
{
    context.edits.finish();
    context.processor.finishPendingLoad();
}

std::optional<juce::File> PresetActions::getCurrentFile()
{
    if (const auto position = getLibrary().getPosition(); position >= 0)
        return getLibrary().getList()[static_cast<std::size_t> (position)].file;

    return {};
}

bool PresetActions::load (const juce::File& file)
{
    makeReady();
    return loadQuietly ([&] { return ! getLibrary().load (file).is_null(); });
}

void PresetActions::step (int direction)
{
    makeReady();
    getLibrary().step (direction);
}

void PresetActions::loadDefault()
{
    makeReady();
    getLibrary().loadDefault();
}

void PresetActions::loadInit()
{
    makeReady();
    getLibrary().loadInit();
}

void PresetActions::randomiseSound()
{
    context.edits.perform ("Randomise sound", [this] {
        randomise (kind.state.params.sound, juce::Random::getSystemRandom());
        return true;
    });
}

juce::String PresetActions::toText()
{
    const juce::ScopedValueSetter<bool> wholly (kind.state.savesParams, true);
    return Json::toText (getLibrary().createDocument (ReflectorContext::forPresetFile()), indent);
}

bool PresetActions::isPreset (const juce::String& text) const
{
    return text.containsChar ('{') && kind.library.isValid (documentFrom (text));
}

bool PresetActions::loadText (const juce::String& text)
{
    auto document = documentFrom (text);

    if (! getLibrary().isValid (document))
        return false;

    makeReady();
    return loadQuietly ([&] {
        getLibrary().applyDocument (std::move (document), ReflectorContext::forPresetFile());
        return true;
    });
}

bool PresetActions::canSaveInPlace()
{
    const auto file = getCurrentFile();
    return file && isOwnFile (getLibrary(), *file);
}

juce::String PresetActions::save (const juce::File& target)
{
    makeReady();

    if (const auto problem = SaveTarget::whyNotWritable (getLibrary(), target); problem.isNotEmpty())
        return problem;

    if (! getLibrary().save (juce::URL (target)))
        return "The file could not be written. Is the disk full?";

    context.processor.getUndo().keepSaved();
    return {};
}

bool PresetActions::bringsSound (const juce::File& file) const
{
    const auto document = Presets::PresetFile::read (file);
    return document.is_object() && document.contains ("Params") && document.at ("Params").is_object();
}

void PresetActions::rescan()
{
    getLibrary().rescan();
}

void PresetActions::showFolder()
{
    const auto file = getCurrentFile();
    const auto folder = getLibrary().getUserFolder();

    if (file && isOwnFile (getLibrary(), *file))
        file->revealToUser();
    else if (folder.isDirectory() || folder.createDirectory().wasOk())
        folder.revealToUser();
}

juce::String PresetActions::rename (const juce::File& file, const juce::String& newName)
{
    const auto name = SaveTarget::legalName (newName);
    const auto target = file.getSiblingFile (name + "." + getLibrary().getExtension());
    const auto oldName = file.getFileNameWithoutExtension();
    const auto isCurrent = getCurrentFile() == file;

    if (! isOwnFile (getLibrary(), file) || name.isEmpty())
        return "This name cannot be used.";

    if (name == oldName)
        return {};

    if (target.existsAsFile() && target != file)
        return "There is a preset of this name already.";

    if (! getLibrary().move (file, target))
        return "The file could not be renamed.";

    renameFavourite (oldName, name);

    if (isCurrent)
    {
        getLibrary().setName (name);
        context.processor.getUndo().keepSaved();
    }

    return {};
}

juce::String PresetActions::remove (const juce::File& file)
{
    if (! isOwnFile (getLibrary(), file))
        return "Only your own presets can be deleted.";

    if (! moveToTrash (file))
        return "The file could not be moved to the bin.";

    getLibrary().rescan();
    return {};
}

bool PresetActions::isFavourite (const juce::String& name) const
{
    return context.settings.get().favourites.contains (favouriteKey (kind.library, name));
}

void PresetActions::setFavourite (const juce::String& name, bool shouldBeFavourite)
{
    auto values = context.settings.get();
    const auto key = favouriteKey (kind.library, name);

    if (shouldBeFavourite)
        values.favourites.addIfNotAlreadyThere (key);
    else
        values.favourites.removeString (key);

    context.settings.set (values);
}

void PresetActions::renameFavourite (const juce::String& oldName, const juce::String& newName)
{
    if (! isFavourite (oldName))
        return;

    setFavourite (oldName, false);
    setFavourite (newName, true);
}
} // namespace Zn::GUI
