#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/Caption.h"
#include "GUI/Widgets/EditorContext.h"

#include <functional>
#include <optional>

namespace Zn::GUI
{
/** What lies over the window while a file that is welcome is dragged over it. Thread: message. */
class DropTarget : public AssetScheme::Element<>
{
public:
    explicit DropTarget (EditorContext& contextToUse);

    /** The words, an icon's file, and a colour of the scheme. */
    void invite (const juce::String& words, const juce::String& icon, const std::string& accentToUse);

    const juce::String& getInvitation() const noexcept { return caption.getText(); }

    void schemeChanged() override;
    void paint (juce::Graphics& g) override;

private:
    EditorContext& context;
    std::string accent = "Midi";
    Caption caption { { .cut = AssetScheme::Cut::bold, .iconSize = "IconSizeLarge" } };
    juce::Path edge;    // dashed
    float inset = 0.0f; // pixels
};

/** Takes the files that are dropped anywhere on the window, of the kinds that somebody has a use for. The page, which
    JUCE asks, hands on what it is told. Thread: message.
*/
class FileDrops
{
public:
    struct Kind
    {
        juce::String invitation; // as "Play this file"
        juce::String icon;       // as "midi.svg"
        std::string accent;      // a colour of the scheme
        std::function<bool (const juce::StringArray&)> accepts;
        std::function<void (const juce::StringArray&)> drop;
    };

    FileDrops (EditorContext& contextToUse, std::vector<Kind> kindsToTake);

    /** To lie above all else. */
    DropTarget& getTarget() noexcept { return target; }

    bool isInterestedIn (const juce::StringArray& files) const { return kindOf (files) != nullptr; }
    void enter (const juce::StringArray& files);
    void exit() { target.setVisible (false); }
    void drop (const juce::StringArray& files);

private:
    const Kind* kindOf (const juce::StringArray& files) const;

    EditorContext& context;
    const std::vector<Kind> kinds;
    DropTarget target;
};
} // namespace Zn::GUI
