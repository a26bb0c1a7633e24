#pragma once

#include "Foundation/Events/Listener.h"
#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/Card.h"

#include <memory>
#include <vector>

namespace Zn::GUI
{
/** How the parts that JUCE brings look in our editor: menus, text fields, scroll bars, lists, the file browsers of
    systems without one, and the dialogue for devices. Fonts and colours are those of the scheme.

    The heading of a menu may have a second, quieter line. Thread: message.
*/
class EditorLook : public juce::LookAndFeel_V4
{
public:
    explicit EditorLook (AssetScheme::Canvas& canvasToUse);

    juce::Typeface::Ptr getTypefaceForFont (const juce::Font& font) override;

    juce::Font getPopupMenuFont() override { return menuFont; }
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

    void
    fillTextEditorBackground (juce::Graphics& g, int width, int height, juce::TextEditor& field) override;
    void drawTextEditorOutline (juce::Graphics& g, int width, int height, juce::TextEditor& field) override;

    void drawButtonBackground (juce::Graphics& g,
                               juce::Button& button,
                               const juce::Colour& usual,
                               bool isOver,
                               bool isDown) override;
    void drawComboBox (juce::Graphics& g,
                       int width,
                       int height,
                       bool isDown,
                       int buttonX,
                       int buttonY,
                       int buttonWidth,
                       int buttonHeight,
                       juce::ComboBox& box) override;
    void drawTickBox (juce::Graphics& g,
                      juce::Component& owner,
                      float x,
                      float y,
                      float width,
                      float height,
                      bool isTicked,
                      bool isEnabled,
                      bool isOver,
                      bool isDown) override;

    void drawScrollbar (juce::Graphics& g,
                        juce::ScrollBar& bar,
                        int x,
                        int y,
                        int width,
                        int height,
                        bool isVertical,
                        int thumbStart,
                        int thumbSize,
                        bool isOver,
                        bool isDown) override;
    int getDefaultScrollbarWidth() override;

    juce::Font getLabelFont (juce::Label&) override { return menuFont; }
    juce::Font getTextButtonFont (juce::TextButton&, int) override { return menuFont; }
    juce::Font getComboBoxFont (juce::ComboBox&) override { return menuFont; }
    juce::Font getAlertWindowTitleFont() override { return titleFont; }
    juce::Font getAlertWindowMessageFont() override { return menuFont; }
    juce::Font getAlertWindowFont() override { return menuFont; }

    /** The property of a text field that has not understood its text: its edge is red. */
    static const juce::Identifier refused;

private:
    void update();
    void paintField (juce::Graphics& g, juce::Rectangle<float> area, juce::Colour fill) const;
    float menuItemInset() const;

    AssetScheme::Canvas& canvas;
    juce::Font menuFont, titleFont, quietFont;
    SVGPainter tick, more, up, down;
    std::vector<std::unique_ptr<CardShadow>> menuShadows;
    Events::Listener listener;
};
} // namespace Zn::GUI
