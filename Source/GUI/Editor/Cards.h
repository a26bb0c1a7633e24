#pragma once

#include "Foundation/CallbackFunc.h"
#include "GUI/Framework/AssetScheme/Canvas.h"
#include "GUI/Widgets/TooltipSource.h"

namespace Zn::GUI
{
/** The tooltip: name and value, what it is for, and the key for it. Thread: message. */
class TooltipCard : public juce::Component
{
public:
    explicit TooltipCard (const AssetScheme::Canvas& canvasToUse);

    /** Takes the size that the text needs. */
    void setText (const TooltipText& newText);

    /** Below a control, or above it, or at the pointer where the control is larger than that would make sense for. */
    void place (juce::Rectangle<int> control, juce::Point<int> pointer, juce::Rectangle<int> editor);

    void paint (juce::Graphics& g) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    const AssetScheme::Canvas& canvas;
    juce::TextLayout heading, help;
    juce::String shortcut;
    juce::Font shortcutFont;
};

/** The name and the value of what is being dragged. Thread: message. */
class ReadoutCard : public juce::Component
{
public:
    explicit ReadoutCard (const AssetScheme::Canvas& canvasToUse);

    void show (const juce::String& newName, const juce::String& newValue, juce::Point<int> pointer);

    void paint (juce::Graphics& g) override;

private:
    const AssetScheme::Canvas& canvas;
    juce::String name, value;
    juce::Font nameFont, valueFont;
    int nameWidth = 0; // pixels
};

/** A line at the foot of the editor with something that can be done about it. Thread: message. */
class MessageCard : public juce::Component
{
public:
    explicit MessageCard (const AssetScheme::Canvas& canvasToUse);

    /** `finished` is called ahead of the action. */
    void show (const juce::String& newText,
               const juce::String& actionText,
               CallbackFunc action,
               CallbackFunc finished);
    void place();

    bool isBusy() const { return isMouseOver (true) || hasKeyboardFocus (true); }

    void paint (juce::Graphics& g) override;

private:
    const AssetScheme::Canvas& canvas;
    juce::String text;
    juce::Font font;
    int numLines = 1;
    juce::HyperlinkButton link;
};
} // namespace Zn::GUI
