#pragma once

#include "Foundation/Events/HasBroadcaster.h"
#include "GUI/Framework/AssetScheme/FileParser.h"

#include <juce_core/juce_core.h>

namespace Zn::GUI
{
/** What a user wants of every editor, kept in a file of theirs. Tells its listeners of changes, and writes them
    at once; takes in what other open editors write. Whatever cannot be read in the file has its default; a file that
    cannot be read at all is kept beside the new one when that is written. What cannot be written counts all the same,
    and is written with the next change. Thread: message.
*/
class UserSettings : public Events::HasBroadcaster
{
public:
    struct Values
    {
        int middleC = 3; // the octave that note 60 stands in: 3 or 4
        bool tooltips = true;
        bool reducedMotion = false; // no fades, pulses and trails
        int playHeadHertz = 60;     // 60 or 30
        bool followsPlayingSlot = true;
        bool wheelTurnsKnobs = true;
        bool ownColours = false;         // those of the user's Colors.json
        int chordsPlayed = 0;            // up to ten: then the hint in the roll stays away
        juce::StringArray favourites {}; // presets, as "product/name"

        bool operator== (const Values&) const = default;
    };

    /** Reads the file; a file that does not exist is made by the first change. */
    explicit UserSettings (const juce::File& fileToUse = defaultFile());

    /** In the folder where the program keeps its own things for each user. */
    static juce::File defaultFile();

    const Values& get() const noexcept { return values; }
    void set (const Values& newValues);

    const juce::File& getFile() const noexcept { return watcher.getFile(); }

    /** Called when the file could not be written, but not again until it could. */
    Events::Broadcaster& getFailures() noexcept { return failures; }

    /** Tries once more to write what could not be written. */
    void retry();

    /** Looks at the file at once, as it does twice a second. */
    void check() { watcher.check(); }

private:
    Values merged (Values target, const Values& wanted) const;
    void read();
    void write (const Values& wanted);
    void tell (bool isWritten);
    void take (const Values& newValues);

    AssetScheme::FileParser watcher;
    Values inFile; // as it was read or written last
    Values values;
    bool hasFailed = false;
    Events::Broadcaster failures;
};
} // namespace Zn::GUI
