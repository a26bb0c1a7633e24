#pragma once

#include "Foundation/Singleton.h"
#include "GUI/Editor/Page.h"
#include "GUI/Support/Hand.h"
#include "GUI/Support/UserFiles.h"
#include "Support/MessageLoop.h"

namespace Zn::Tests
{
/** A plug-in with its editor open, at the size it opens with, without a window. */
struct OpenEditor
{
    explicit OpenEditor (Audio::Plugins::Vornel::StartUp startUp = Audio::Plugins::Vornel::StartUp::empty)
        : processor (startUp)
    {
        const auto [width, height] = GUI::Page::defaultSize();
        page.setSize (width, height);
    }

    /** The part of the editor with a name of the scheme; fails the test and throws if there is none of that type. */
    template <typename ComponentType = juce::Component>
    ComponentType& find (const juce::String& element)
    {
        return Hand::find<ComponentType> (page, element);
    }

    /** Lets the parts look at what they show, as they do all the time in a window. */
    void poll() { page.getContext().polls.callListeners(); }

    auto& getState() { return processor.getState(); }

    Singleton::UserToken singletonsStay;
    UserFiles userFiles;
    Audio::Plugins::Vornel::Processor processor;
    GUI::Page page { processor };
};
} // namespace Zn::Tests
