#pragma once

#include "Foundation/Events/Listener.h"
#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/Card.h"

#include <memory>
#include <vector>

namespace Zn::GUI
{
/** How JUCE's menus look in our editor. Their heading may have a second, quieter line. Thread: message. */
class MenuLook : public juce::LookAndFeel_V4
{
public:
    explicit MenuLook (AssetScheme::Canvas& canvasToUse);

    juce::Font getPopupMenuFont() override { return font; }
    int getPopupMenuBorderSize() override;
    void getIdealPopupMenuItemSize (const juce::String& text,
                                    bool isSeparator,
                                    int standardHeight,
                                    int& idealWidth,
                                    int& idealHeight) override;
    void drawPopupMenuBackground (juce::Graphics& g, int width, int height) override;
    void drawPopupMenuBackgroundWithOptions (juce::Graphics& g,
                                             int width,
                                             int height,
                                             const juce::PopupMenu::Options& options) override;
    void drawPopupMenuItem (juce::Graphics& g,
                            const juce::Rectangle<int>& area,
                            bool isSeparator,
                            bool isActive,
                            bool isHighlighted,
                            bool isTicked,
                            bool hasSubMenu,
                            const juce::String& text,
                            const juce::String& shortcut,
                            const juce::Drawable* icon,
                            const juce::Colour* textColour) override;
    void drawPopupMenuSectionHeader (juce::Graphics& g,
                                     const juce::Rectangle<int>& area,
                                     const juce::String& text) override;
    void drawPopupMenuUpDownArrow (juce::Graphics& g, int width, int height, bool isUp) override;
    void preparePopupMenuWindow (juce::Component& window) override;

private:
    void makeFonts();
    float itemInset() const;

    AssetScheme::Canvas& canvas;
    juce::Font font, titleFont, quietFont;
    SVGPainter tick { "check.svg" }, more { "next.svg" }, up { "up.svg" }, down { "down.svg" };
    std::vector<std::unique_ptr<CardShadow>> shadows;
    Events::Listener listener;
};
} // namespace Zn::GUI
