#pragma once

#include "GUI/Editor/Page.h"
#include "GUI/Standalone/KeyboardStrip.h"

#include <juce_audio_processors/juce_audio_processors.h>

namespace Zn::GUI
{
/** What the window of the program shows: the editor, and below it the keyboard strip. The editor's keys act wherever
    the focus is. While it is there, JUCE's own dialogues look like the editor. Thread: message.
*/
class StandaloneView : public juce::Component
{
public:
    /** The page lies in the editor. */
    StandaloneView (std::unique_ptr<juce::AudioProcessorEditor> editorToShow,
                    Page& pageOfEditor,
                    CallbackFunc showDevices);
    ~StandaloneView() override;

    /** As the editor's, with the strip. */
    static void limit (juce::ComponentBoundsConstrainer& constrainer);

    KeyboardStrip& getStrip() noexcept { return strip; }

    void resized() override;
    void paint (juce::Graphics& g) override;
    bool keyPressed (const juce::KeyPress& key) override;
    std::unique_ptr<juce::ComponentTraverser> createKeyboardFocusTraverser() override
    {
        return page.createKeyboardFocusTraverser();
    }
    void focusGained (FocusChangeType) override { page.grabKeyboardFocus(); }
    void childBoundsChanged (juce::Component* child) override;

private:
    struct UsualSize : juce::Component
    {
        UsualSize();
    };

    Page& page;

    // Of the dialogues that JUCE opens in windows of their own: as in an editor of the usual size.
    UsualSize usual;
    AssetScheme::Canvas canvas { usual };
    EditorLook look { canvas };

    std::unique_ptr<juce::AudioProcessorEditor> editor;
    KeyboardStrip strip;
    Events::Listener schemeListener;
    bool isLayingOut = false;
};
} // namespace Zn::GUI
