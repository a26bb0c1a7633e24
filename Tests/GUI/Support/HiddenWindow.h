#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::Tests
{
/** A window that needs no screen: the focus and the keys go through it as through a real one. */
class HiddenWindow : public juce::Component
{
public:
    /** The content outlives it. */
    explicit HiddenWindow (juce::Component& content)
    {
        setSize (content.getWidth(), content.getHeight());
        addAndMakeVisible (content);
        setVisible (true);
        addToDesktop (0);
        content.grabKeyboardFocus();
    }

    /** As JUCE writes it, such as "shift + tab". Whether anybody took it. */
    bool press (const juce::String& key)
    {
        auto& peer = *getPeer();
        peer.handleKeyUpOrDown (true);
        return peer.handleKeyPress (juce::KeyPress::createFromDescription (key));
    }

    /** Of what has the focus; empty where it has none. */
    static juce::String focused()
    {
        const auto* component = getCurrentlyFocusedComponent();
        return component != nullptr ? component->getComponentID() : juce::String();
    }

private:
    struct Peer : juce::ComponentPeer
    {
        using ComponentPeer::ComponentPeer;

        juce::Rectangle<int> getBounds() const override { return component.getBounds(); }
        juce::Point<float> localToGlobal (juce::Point<float> local) override { return local; }
        juce::Point<float> globalToLocal (juce::Point<float> global) override { return global; }
        juce::BorderSize<int> getFrameSize() const override { return {}; }
        OptionalBorderSize getFrameSizeIfPresent() const override { return {}; }
        juce::StringArray getAvailableRenderingEngines() override { return {}; }
        void* getNativeHandle() const override { return nullptr; }

        bool isFocused() const override { return true; }
        bool isMinimised() const override { return false; }
        bool isFullScreen() const override { return false; }
        bool setAlwaysOnTop (bool) override { return true; }
        bool contains (juce::Point<int> point, bool) const override { return getBounds().contains (point); }

        void setVisible (bool) override {}
        void setTitle (const juce::String&) override {}
        void setBounds (const juce::Rectangle<int>&, bool) override {}
        void setMinimised (bool) override {}
        void setFullScreen (bool) override {}
        void setIcon (const juce::Image&) override {}
        void setAlpha (float) override {}
        void toFront (bool) override {}
        void toBehind (ComponentPeer*) override {}
        void grabFocus() override {}
        void repaint (const juce::Rectangle<int>&) override {}
        void performAnyPendingRepaintsNow() override {}
        void textInputRequired (juce::Point<int>, juce::TextInputTarget&) override {}
    };

    juce::ComponentPeer* createNewPeer (int styleFlags, void*) override
    {
        return new Peer (*this, styleFlags); // JUCE takes it
    }
};
} // namespace Zn::Tests
