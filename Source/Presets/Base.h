#pragma once

#include "Foundation/Binaries.h"
#include "Foundation/Events/Broadcaster.h"
#include "Presets/DocumentHeader.h"
#include "Presets/PresetList.h"
#include "Presets/Reflection/Reflector.h"

#include <juce_core/juce_core.h>
#include <nlohmann/json.hpp>

#include <vector>

namespace Zn::Presets
{
/** A model that lives in preset files of its own kind: knows their folders, installs what the program ships,
    lists, checks, loads, saves and steps through them.

    A document is the model with a header in front, see DocumentHeader. A file that is not valid is neither listed
    nor loaded, and nobody is told. What goes wrong after that, while a document is applied, leaves as an exception
    of the JSON library or of a text conversion; `step`, `init`, `loadDefault` and `loadInit` catch it.

    The program's files do not reach this floor by linking: a concrete library overrides `getArchives`. init() is
    called once the object is complete, since it calls virtual functions. Whoever uses a library keeps a
    Singleton::UserToken. Thread: message.
*/
class Base
{
public:
    using Entry = PresetEntry;

    Base() = default;
    virtual ~Base() = default;

    Base (const Base&) = delete;
    Base& operator= (const Base&) = delete;

    /** Older documents are refused. */
    virtual Version getMinimumVersion() const { return {}; }

    virtual juce::File getUserFolder() const;
    virtual juce::String getExtension() const { return "json"; } // without its point
    virtual juce::String getProduct() const { return "Vornel"; } // what a file must say it belongs to

    /** Lies in getContentFolder(); no file by default. */
    virtual juce::File getDefaultPresetFile() const { return {}; }

    virtual juce::String getZipName() const { return "FactoryPresets.zip"; }

    /** Whether a document's version and product are ours. Of a file it is given the keys of the header alone. Does not
        throw.
    */
    virtual bool isValid (const nlohmann::json& header) const;

    /** What is done once for each new object: prepareFirstUse(), then loadDefault(). */
    virtual void init();

    virtual juce::File getDevelopmentFolder() const;
    virtual juce::File getFactoryFolder() const;

protected:
    /** Where getZipName() is looked for. None by default. */
    virtual const Binaries::Library& getArchives() const;

    virtual void reflectExtra (Reflector&) {}
    virtual void reflectMembers (Reflector&) {}

public:
    /** The factory folder or, on the machine of whoever makes the presets, the development folder. */
    juce::File getContentFolder() const;

    /** First use of this type in the process: keeps the document of the object as it is now, for loadInit, and
        installs the factory content. A library that is a member of another is prepared before either loads.
    */
    void prepareFirstUse();

    /** The header and what the concrete library adds. Loading fires both events, unless the document is empty. */
    void reflect (Reflector& r);

    nlohmann::json createDocument (ReflectorContext context);

    /** An empty document applies nothing. Throws what reflecting throws. */
    void applyDocument (nlohmann::json document, ReflectorContext context);

    /** Whether a file would be listed and loaded. The first answer for a path holds as long as the process. */
    bool isValidFile (const juce::File& file) const;

    /** Loads a preset file and takes its name. Returns the document as it stands in the file, or null if the file is
        refused, which changes nothing. Throws what applying throws.
    */
    nlohmann::json load (const juce::File& file);

    /** Writes a preset file under a new stamp, and takes its name. The file's name is made legal and given our
        extension. False if nothing could be written: a file that was there is then still there, whole.
    */
    bool save (const juce::URL& destination);

    /** Gives a preset file another place, where there is none yet. Whether it is there now. */
    bool move (const juce::File& file, const juce::File& target);

    /** Factory presets, then the user's. Built when first asked for, and again after each save. */
    const std::vector<Entry>& getList();

    /** Where in the list the preset is that is loaded; -1 if it is no longer there. Of files that hold the same under
        one name it is the one that was loaded or saved last.
    */
    int getPosition();

    /** The list is searched for anew: files have come or gone. */
    void rescan();

    /** Loads the preset after (+1) or before (-1) this one, round the ends of the list; files that have gone since are
        passed over.
    */
    void step (int direction);

    void loadDefault(); // from the program itself when it is in no folder
    void loadInit();    // the object's state at its first use

    const juce::String& getName() const noexcept { return header.name; }
    bool isDirty() const noexcept { return header.dirty; }

    /** When it was saved; together with its name it says which preset this is. */
    const juce::String& getId() const noexcept { return header.id; }

    void setName (const juce::String& newName);
    void setDirty (bool shouldBeDirty); // after every edit by the user

    /** Around everything that loads: every aboutToLoad is followed by one loaded. */
    Events::Broadcaster aboutToLoad, loaded;

    Events::Broadcaster changed; // name, id, dirty or list

private:
    void reflectDocument (Reflector& r);
    void reflectBetweenEvents (Reflector& r);
    void reportLoaded();
    void takeIn (const juce::File& file);
    void applyAsPreset (nlohmann::json document, const juce::String& name);
    Binaries::Bytes getFactoryZip() const;
    void loadFromArchive (const juce::File& file);

    DocumentHeader header;
    juce::File lastFile; // loaded or saved
    PresetList list;
};
} // namespace Zn::Presets
